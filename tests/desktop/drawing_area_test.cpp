// The drawing area of a fitting window: its mouse modes, and the picture that it keeps.
#include <QAction>
#include <QTest>
#include <cmath>

#include "tests/desktop/desktop_test.h"
#include "tests/desktop/fitting_view_hands.h"

namespace korvet::desktop {

class DrawingAreaTest : public QObject {
    Q_OBJECT
  private slots:
    void aDragZoomsToItsWindow() {
        Desk desk;
        CFittingWindow& window = desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        desk.window.Frame().RunMenu("mnuZoomExtents");
        desk.window.Frame().RunMenu("mnuZoomWindow");
        desk.window.Project();
        auto& area = static_cast<DrawingArea&>(Drawing(desk));
        const QPoint from(100, 80);
        const QPoint to(300, 230);
        const WorldPoint a = area.ToDrawing(from);
        const WorldPoint b = area.ToDrawing(to);
        Drag(area, from, to);
        const CViewPoint& view = window.views->Last();
        QVERIFY(std::fabs(view.PanX - (a.x + b.x) / 2) < 0.01);
        QVERIFY(std::fabs(view.PanY - (a.y + b.y) / 2) < 0.01);
        QVERIFY(!window.controls.pboxGraphicWindow.rubberBand);
    }

    void theRubberBandIsSeenWhileTheMouseIsDragged() {
        Desk desk;
        desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        desk.window.Frame().RunMenu("mnuPan");
        QWidget& area = Drawing(desk);
        const int before = Ink(area);
        QTest::mousePress(&area, Qt::LeftButton, Qt::NoModifier, {10, 10});
        QMouseEvent move(QEvent::MouseMove, QPoint(10, 400), area.mapToGlobal(QPoint(10, 400)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&area, &move);
        QVERIFY(Ink(area) > before + 100);
        QTest::keyClick(&area, Qt::Key_Escape);
        QCOMPARE(Ink(area), before);
        QTest::mouseRelease(&area, Qt::LeftButton, Qt::NoModifier, {10, 400});
        QCOMPARE(Ink(area), before);
    }

    void aDragMeasures() {
        Desk desk;
        desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        desk.window.Frame().RunMenu("mnuZoomExtents");
        desk.window.Frame().RunMenu("mnuMeasure");
        desk.window.Project();
        QVERIFY(Drawing(desk).toolTip().startsWith("Press left mouse button"));
        Drag(Drawing(desk), {40, 40}, {500, 500});
        QCOMPARE(desk.shell.ui.messages.size(), 1U);
        QVERIFY(desk.shell.ui.messages[0].text.starts_with("Distance = "));
    }

    void theWheelZoomsAtThePointer() {
        Desk desk;
        CFittingWindow& window = desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        auto& area = static_cast<DrawingArea&>(Drawing(desk));
        const QPoint at(150, 90);
        const WorldPoint under = area.ToDrawing(at);
        const double zoom = window.views->Last().ZoomFactor;
        TurnWheel(area, at, 1, 10000);
        TurnWheel(area, at, 1, 10100);
        QVERIFY(std::fabs(window.views->Last().ZoomFactor / zoom - 1 / 0.81) < 1e-9);
        QVERIFY(std::fabs(area.ToDrawing(at).x - under.x) < 0.01);
        QVERIFY(std::fabs(area.ToDrawing(at).y - under.y) < 0.01);
        QCOMPARE(window.views->Count(), 2U);
        TurnWheel(area, at, -1, 20000);
        QCOMPARE(window.views->Count(), 3U);
    }

    void theMiddleButtonPans() {
        Desk desk;
        CFittingWindow& window = desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        auto& area = static_cast<DrawingArea&>(Drawing(desk));
        const WorldPoint held = area.ToDrawing(QPoint(150, 90));
        QTest::mousePress(&area, Qt::MiddleButton, Qt::NoModifier, {150, 90});
        for (const QPoint to : {QPoint(180, 120), QPoint(220, 100)}) {
            QMouseEvent move(QEvent::MouseMove, to, area.mapToGlobal(to), Qt::NoButton, Qt::MiddleButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(&area, &move);
            QVERIFY(std::fabs(area.ToDrawing(to).x - held.x) < 0.01);
            QVERIFY(std::fabs(area.ToDrawing(to).y - held.y) < 0.01);
        }
        QTest::mouseRelease(&area, Qt::MiddleButton, Qt::NoModifier, {220, 100});
        QCOMPARE(window.views->Count(), 2U);
    }

    void theFirstPictureOfEachViewShowsAllOfIt() {
        Desk desk;
        desk.New();
        TypeCone(desk);
        for (const char* const button : {"btnView_9", "btnView_0", "btnView_5"}) {
            Click(desk.window, button);
            auto& area = static_cast<DrawingArea&>(Drawing(desk));
            const CFittingWindow& window = *desk.window.Frame().ActiveChild();
            QVERIFY(window.display.ShowsAll());
            QVERIFY(Ink(area) > 500);
        }
    }

    void theRightButtonShowsTheViewMenu() {
        Desk desk;
        desk.New();
        TypeCone(desk);
        ModalVisitor visitor;
        QTest::mousePress(&Drawing(desk), Qt::RightButton, Qt::NoModifier, {50, 50});
        QTest::qWait(30);
        QVERIFY(visitor.seen.empty());  // nothing is shown yet, so there is no view to change
        Click(desk.window, "btnView_9");
        QTest::mousePress(&Drawing(desk), Qt::RightButton, Qt::NoModifier, {50, 50});
        QTRY_COMPARE(visitor.seen, std::vector<std::string>{"mnuView"});
    }

    void aResizeKeepsThePicture() {
        Desk desk;
        CFittingWindow& window = desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        const QImage before = Drawing(desk).grab(QRect(0, 0, 200, 200)).toImage();
        const std::size_t views = window.views->Count();
        desk.window.resize(1300, 900);
        QApplication::processEvents();
        QCOMPARE(Drawing(desk).grab(QRect(0, 0, 200, 200)).toImage(), before);
        QCOMPARE(window.views->Count(), views);
        QVERIFY(desk.shell.ui.messages.empty());
    }

    void extentsFitTheSizeAfterAResize() {
        Desk desk;
        CFittingWindow& window = desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        desk.window.Frame().RunMenu("mnuZoomExtents");
        auto& area = static_cast<DrawingArea&>(Drawing(desk));
        const QSize before = area.size();
        for (const QSize size : {QSize(900, 900), QSize(1300, 500)}) {
            desk.window.resize(size);
            QApplication::processEvents();
            QVERIFY(area.size() != before);
            desk.window.Frame().RunMenu("mnuZoomExtents");
            double spanX = 0;
            double spanY = 0;
            for (const CRuleSurf& surface : window.display.Surfaces) {
                for (const PointList& list : {surface.List1, surface.List2}) {
                    for (const C3DPoint& point : *list) {
                        const QPointF place = area.ToWidget(point.x, point.y);
                        QVERIFY(QRectF(area.rect()).contains(place));
                        spanX = std::max(spanX, std::fabs(place.x() - area.width() / 2.0));
                        spanY = std::max(spanY, std::fabs(place.y() - area.height() / 2.0));
                    }
                }
            }
            QVERIFY(spanX > 0.45 * area.width() || spanY > 0.45 * area.height());
        }
    }

    void thePictureHasEveryPixelOfTheScreen() {
        Desk desk;
        CFittingWindow& window = desk.New();
        TypeCone(desk);
        Click(desk.window, "btnView_9");
        const PixelSize pixels = window.display.DisplayDevice->ScaleSize();
        const QWidget& area = Drawing(desk);
        QCOMPARE(pixels.width, std::floor(area.width() * area.devicePixelRatioF()));
        QCOMPARE(window.display.DisplayDevice->LogicalDpiY(), 96 * area.devicePixelRatioF());
    }
};

static const Registered<DrawingAreaTest> registeredDrawingAreaTest("DrawingAreaTest", Scale::Both);

}  // namespace korvet::desktop

#include "drawing_area_test.moc"
