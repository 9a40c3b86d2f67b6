// What holds for the look of all fitting windows, on every page: all of the panel can be read, nothing lies
// over anything else, and the panel is no wider than it must be. The environment variable KORVET_PICTURES
// names a folder that gets a picture of each.
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QToolButton>
#include <map>
#include <memory>
#include <vector>

#include "desktop/bindings.h"
#include "desktop/sketch/sketch_page.h"
#include "frame/catalogue.h"
#include "tests/desktop/desk.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/fitting_views.h"
#include "tests/desktop/palettes.h"

namespace korvet::desktop {
namespace {

/// What stands on the panel and has nothing else on it.
QList<QWidget*> ShownControls(const QWidget& panel) {
    QList<QWidget*> shown;
    for (QWidget* widget : panel.findChildren<QWidget*>()) {
        const bool control = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                             qobject_cast<QLineEdit*>(widget) != nullptr ||
                             qobject_cast<QLabel*>(widget) != nullptr;
        if (control && widget->isVisible()) {
            shown.append(widget);
        }
    }
    return shown;
}

QRect PlaceOn(const QWidget& panel, const QWidget& widget) {
    return {widget.mapTo(&panel, QPoint(0, 0)), widget.size()};
}

void VerifyControls(const QWidget& panel, const QList<QWidget*>& controls, const QString& page) {
    for (const QWidget* widget : controls) {
        const QString name = page + ": " + widget->objectName();
        const QRect place = PlaceOn(panel, *widget);
        QVERIFY2(panel.rect().contains(place), qPrintable(name));
        const QSize needed = widget->minimumSizeHint();
        QVERIFY2(place.width() >= needed.width() && place.height() >= needed.height(), qPrintable(name));
        for (const QWidget* other : controls) {
            QVERIFY2(widget == other || !place.intersects(PlaceOn(panel, *other)),
                     qPrintable(name + " over " + other->objectName()));
        }
    }
}

/// The sketch of the page that is shown.
SketchPage* ShownSketch(const QWidget& panel) {
    SketchPage* shown = nullptr;
    for (auto* sketch : panel.findChildren<SketchPage*>()) {
        if (sketch->isVisible()) {
            shown = sketch;
        }
    }
    return shown;
}

/// The sketch on its own, as it may scroll, and what stands around it.
void VerifyPanel(const QWidget& panel, const QString& page) {
    const SketchPage* const sketch = ShownSketch(panel);
    QVERIFY2(sketch != nullptr, qPrintable(page));
    const QList<QWidget*> boxes = ShownControls(*sketch);
    VerifyControls(*sketch, boxes, page);
    QList<QWidget*> controls = ShownControls(panel);
    controls.removeIf([&](QWidget* control) { return boxes.contains(control); });
    QVERIFY2(controls.size() > 10, qPrintable(page));
    VerifyControls(panel, controls, page);
}

/// The windows of the catalogue, each with its view.
class AllWindows {
  public:
    using Look = std::function<void(const QString& page, ViewOfTable& shown, const QScrollArea& scroll)>;

    AllWindows() {
        for (const CatalogueRow& row : Catalogue) {
            windows_.push_back(
                {QString::fromUtf8(row.window.data(), static_cast<qsizetype>(row.window.size())),
                 std::make_unique<ViewOfTable>(*row.table)});
        }
    }

    /// Shows every page of every window at a size; `scroll` is the frame of the whole panel.
    void ForEachPage(QSize size, const Look& look) const {
        for (const auto& [name, shown] : windows_) {
            GoToFirstPage(*shown, size);
            for (std::size_t page = 0; page < shown->table.pages.size(); ++page) {
                Show(name, page, *shown, look);
                shown->Get("btnPoint_0").click();
            }
        }
    }

    /// The same for the first page of every window alone.
    void ForEachFirstPage(QSize size, const Look& look) const {
        for (const auto& [name, shown] : windows_) {
            GoToFirstPage(*shown, size);
            Show(name, 0, *shown, look);
        }
    }

  private:
    struct NamedView {
        QString name;
        std::unique_ptr<ViewOfTable> shown;
    };

    static void GoToFirstPage(ViewOfTable& shown, QSize size) {
        shown.view.resize(size);
        while (shown.Get("btnPoint_1").isEnabled()) {
            shown.Get("btnPoint_1").click();
        }
    }

    static void Show(const QString& name, std::size_t page, ViewOfTable& shown, const Look& look) {
        QApplication::processEvents();
        look(name + QStringLiteral("-%1").arg(page + 1), shown, *shown.view.findChild<QScrollArea*>());
    }

    std::vector<NamedView> windows_;
};

/// The button that all the work leads to is as wide as the panel and says what it does; Redraw is smaller.
void VerifyButtons(const ViewOfTable& shown, const QScrollArea& scroll, const QString& page) {
    const auto& pattern = shown.Get<QToolButton>("btnView_9");
    const auto& redraw = shown.Get<QToolButton>("btnRedraw");
    constexpr int Margins = 2 * 5;
    QVERIFY2(pattern.width() == scroll.widget()->width() - Margins, qPrintable(page));
    QCOMPARE(pattern.text(), QString("Create or update pattern"));
    QVERIFY2(redraw.width() < pattern.width() / 3 && redraw.height() < pattern.height(), qPrintable(page));
}

/// More and Back stand in a row with the arrows, outside of them.
void VerifySteps(const ViewOfTable& shown, const QWidget& panel, const QString& page) {
    const QRect back = PlaceOn(panel, shown.Get("btnPoint_1"));
    const QRect next = PlaceOn(panel, shown.Get("btnPoint_0"));
    for (const auto* step : panel.findChildren<QToolButton*>(QRegularExpression("btn(More|Back)_"))) {
        if (step->isVisible()) {
            const QRect place = PlaceOn(panel, *step);
            const bool more = step->objectName().startsWith("btnMore");
            QVERIFY2(std::abs(place.center().y() - next.center().y()) <= 2, qPrintable(page));
            QVERIFY2(more ? place.left() > next.right() : place.right() < back.left(), qPrintable(page));
        }
    }
}

/// What a maximised window has of a screen of 1024 by 768, in a frame with the title bar of a desktop.
QSize RoomOnASmallScreen() {
    constexpr int TitleBar = 30;
    Desk desk;
    desk.window.resize(1024, 768 - TitleBar);
    desk.New();
    QApplication::processEvents();
    return desk.ActiveView().View().size();
}

void VerifySeen(const QLineEdit& box, const QString& page) {
    const QRect seen = box.visibleRegion().boundingRect();
    const QString what = page + box.objectName() + QString(": %1 x %2").arg(seen.width()).arg(seen.height());
    QVERIFY2(seen == box.rect(), qPrintable(what));
}

/// Every box of a page can be seen whole, after a scroll by less than three fifths of what is seen of the
/// page.
void VerifyReach(const ViewOfTable& shown, const QScrollArea& scroll, const QString& page) {
    QVERIFY2(!scroll.verticalScrollBar()->isVisible() && !scroll.horizontalScrollBar()->isVisible(),
             qPrintable(page));
    SketchPage* const sketch = ShownSketch(*scroll.widget());
    const auto* const frame = qobject_cast<QScrollArea*>(sketch->parentWidget()->parentWidget());
    const int scrolled = frame->verticalScrollBar()->maximum();
    QVERIFY2(scrolled <= frame->viewport()->height() * 3 / 5,
             qPrintable(page + QString(": %1 of %2").arg(scrolled).arg(frame->viewport()->height())));
    QVERIFY2(frame->horizontalScrollBar()->maximum() == 0, qPrintable(page));
    for (QLineEdit* box : sketch->Boxes()) {
        RevealWidget(*box);
        VerifySeen(*box, page);
    }
    QVERIFY2(scroll.width() <= shown.view.width() / 2, qPrintable(page));
}

/// A picture of the whole panel; with a choice of pattern, of its first.
void TakePicture(const QString& page, const ViewOfTable& shown, QWidget& pictured) {
    const QTemporaryDir otherwise;
    const QString folder = qEnvironmentVariable("KORVET_PICTURES", otherwise.path());
    QVERIFY(QDir().mkpath(folder));
    if (auto* first = shown.Find("optPatternSelect_0")) {
        first->click();
        QApplication::processEvents();
    }
    QVERIFY(pictured.grab().save(QDir(folder).filePath(page + QStringLiteral(".png"))));
}

}  // namespace

/// Every page at its largest.
class FittingLook : public QObject {
    Q_OBJECT
  private slots:
    void everyPageIsWhole() {
        const AllWindows windows;
        std::map<int, int> pagesOfWidth;
        windows.ForEachPage({1100, 1200},
                            [&](const QString& page, ViewOfTable& shown, const QScrollArea& scroll) {
                                VerifyPanel(*scroll.widget(), page);
                                QVERIFY2(!scroll.horizontalScrollBar()->isVisible(), qPrintable(page));
                                VerifyButtons(shown, scroll, page);
                                VerifySteps(shown, *scroll.widget(), page);
                                TakePicture(page, shown, *scroll.widget());
                                ++pagesOfWidth[scroll.width()];
                            });
        QCOMPARE(pagesOfWidth.size(), 2U);
    }

    void onAMonitorOfMiddlingHeightOnlyTheSketchScrolls() {
        const QPalette usual = QApplication::palette();
        QApplication::setPalette(DarkPalette());
        const AllWindows windows;
        windows.ForEachFirstPage(
            {1100, 700}, [](const QString& page, ViewOfTable& shown, const QScrollArea& scroll) {
                VerifyPanel(*scroll.widget(), page);
                QVERIFY2(!scroll.verticalScrollBar()->isVisible(), qPrintable(page));
                SketchPage* const sketch = ShownSketch(*scroll.widget());
                QVERIFY2(sketch->width() >= sketch->minimumSizeHint().width(), qPrintable(page));
                for (QLineEdit* box : sketch->Boxes()) {
                    RevealWidget(*box);
                    VerifySeen(*box, page);
                }
                TakePicture(page + QStringLiteral("-dark"), shown, *scroll.widget());
            });
        QApplication::setPalette(usual);
    }

    void ofANarrowWindowTheDrawingHasHalf() {
        for (const int width : {300, 500, 800, 1400}) {
            ViewOfTable shown(frmBends);
            shown.view.resize(width, 600);
            QApplication::processEvents();
            QVERIFY(shown.view.findChild<QScrollArea*>()->width() <= width / 2);
            QVERIFY(shown.Get<QWidget>("pboxGraphicWindow").width() >= width / 2 - 20);
            RevealWidget(shown.Get("btnView_9"));
            QVERIFY(!shown.Get("btnView_9").visibleRegion().isEmpty());
        }
    }

    void thePanelGrowsWithTheFont() {
        ViewOfTable shown(frmRightCone1);
        QApplication::processEvents();
        const auto* scroll = shown.view.findChild<QScrollArea*>();
        shown.view.resize(1600, 900);
        const int before = scroll->width();
        QFont font = shown.view.font();
        font.setPointSizeF(font.pointSizeF() * 1.7);
        shown.view.setFont(font);
        QApplication::processEvents();
        VerifyPanel(*scroll->widget(), QStringLiteral("large"));
        QVERIFY(scroll->width() > before);
        QVERIFY(!scroll->horizontalScrollBar()->isVisible());
    }
};

/// Every page on a small screen.
class SmallFittingLook : public QObject {
    Q_OBJECT
  private slots:
    void onASmallScreenEveryBoxIsASmallScrollAway() {
        const AllWindows windows;
        windows.ForEachPage(RoomOnASmallScreen(),
                            [](const QString& page, ViewOfTable& shown, const QScrollArea& scroll) {
                                VerifyReach(shown, scroll, page);
                                VerifyPanel(*scroll.widget(), page);
                                TakePicture(page + QStringLiteral("-small"), shown, shown.view);
                            });
    }
};

/// Every page at its lowest.
class LowFittingLook : public QObject {
    Q_OBJECT
  private slots:
    void aLowWindowScrollsToTheLastControl() {
        const AllWindows windows;
        int pages = 0;
        windows.ForEachPage({1100, 360}, [&](const QString& page, ViewOfTable&, const QScrollArea& scroll) {
            VerifyPanel(*scroll.widget(), page);
            QVERIFY2(scroll.verticalScrollBar()->isVisible(), qPrintable(page));
            QVERIFY2(!scroll.horizontalScrollBar()->isVisible(), qPrintable(page));
            ++pages;
        });
        QVERIFY(pages > 0);
    }
};

static const Registered<FittingLook> registeredFittingLook("FittingLook", Scale::One);
static const Registered<SmallFittingLook> registeredSmallFittingLook("SmallFittingLook", Scale::One);
static const Registered<LowFittingLook> registeredLowFittingLook("LowFittingLook", Scale::Two);

}  // namespace korvet::desktop

#include "fitting_look_test.moc"
