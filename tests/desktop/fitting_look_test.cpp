// What holds for the look of all fitting windows, on every page: all of the panel can be read, nothing lies
// over anything else, and the panel is no wider than it must be. The environment variable KORVET_PICTURES
// names a folder that gets a picture of each.
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <memory>
#include <vector>

#include "desktop/sketch/sketch_scroll.h"
#include "frame/catalogue.h"
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

    /// Shows every page of every window at a height; `scroll` is the frame of the whole panel.
    void ForEachPage(int height, const Look& look) const {
        for (const auto& [name, shown] : windows_) {
            GoToFirstPage(*shown, height);
            for (std::size_t page = 0; page < shown->table.pages.size(); ++page) {
                Show(name, page, *shown, look);
                shown->Get("btnPoint_0").click();
            }
        }
    }

    /// The same for the first page of every window alone.
    void ForEachFirstPage(int height, const Look& look) const {
        for (const auto& [name, shown] : windows_) {
            GoToFirstPage(*shown, height);
            Show(name, 0, *shown, look);
        }
    }

  private:
    struct NamedView {
        QString name;
        std::unique_ptr<ViewOfTable> shown;
    };

    static void GoToFirstPage(ViewOfTable& shown, int height) {
        shown.view.resize(1000, height);
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

/// The panel is no wider than its widest part.
void VerifyWidth(const ViewOfTable& shown, const QScrollArea& scroll, const QString& page) {
    const int bar = scroll.verticalScrollBar()->sizeHint().width();
    int widest = shown.Get<QGroupBox>("fraControls").minimumSizeHint().width();
    for (const auto* sketch : shown.view.findChildren<SketchPage*>()) {
        widest = std::max(widest, sketch->minimumSizeHint().width() + bar);
    }
    constexpr int Margins = 2 * 10;
    QVERIFY2(scroll.width() <= widest + Margins + bar, qPrintable(page));
}

/// A picture of the whole panel; with a choice of pattern, of its first.
void TakePicture(const QString& page, const ViewOfTable& shown, const QScrollArea& scroll) {
    const QTemporaryDir otherwise;
    const QString folder = qEnvironmentVariable("KORVET_PICTURES", otherwise.path());
    QVERIFY(QDir().mkpath(folder));
    if (auto* first = shown.Find("optPatternSelect_0")) {
        first->click();
        QApplication::processEvents();
    }
    QVERIFY(scroll.widget()->grab().save(QDir(folder).filePath(page + QStringLiteral(".png"))));
}

}  // namespace

/// Every page at its largest.
class FittingLook : public QObject {
    Q_OBJECT
  private slots:
    void everyPageIsWhole() {
        const AllWindows windows;
        int pages = 0;
        windows.ForEachPage(1200, [&](const QString& page, ViewOfTable& shown, const QScrollArea& scroll) {
            VerifyPanel(*scroll.widget(), page);
            QVERIFY2(!scroll.horizontalScrollBar()->isVisible(), qPrintable(page));
            VerifyWidth(shown, scroll, page);
            TakePicture(page, shown, scroll);
            ++pages;
        });
        QVERIFY(pages > 0);
    }

    void onAMonitorOfMiddlingHeightOnlyTheSketchScrolls() {
        const QPalette usual = QApplication::palette();
        QApplication::setPalette(DarkPalette());
        const AllWindows windows;
        windows.ForEachFirstPage(700, [](const QString& page, ViewOfTable& shown, const QScrollArea& scroll) {
            VerifyPanel(*scroll.widget(), page);
            QVERIFY2(!scroll.verticalScrollBar()->isVisible(), qPrintable(page));
            SketchPage* const sketch = ShownSketch(*scroll.widget());
            QVERIFY2(sketch->width() >= sketch->minimumSizeHint().width(), qPrintable(page));
            for (QLineEdit* box : sketch->Boxes()) {
                SketchScroll::Reveal(*box);
                QVERIFY2(box->visibleRegion().boundingRect() == box->rect(),
                         qPrintable(page + box->objectName()));
            }
            TakePicture(page + QStringLiteral("-dark"), shown, scroll);
        });
        QApplication::setPalette(usual);
    }

    void thePanelGrowsWithTheFont() {
        ViewOfTable shown(frmRightCone1);
        QApplication::processEvents();
        const auto* scroll = shown.view.findChild<QScrollArea*>();
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

/// Every page at its lowest.
class LowFittingLook : public QObject {
    Q_OBJECT
  private slots:
    void aLowWindowScrollsToTheLastControl() {
        const AllWindows windows;
        int pages = 0;
        windows.ForEachPage(360, [&](const QString& page, ViewOfTable&, const QScrollArea& scroll) {
            VerifyPanel(*scroll.widget(), page);
            QVERIFY2(scroll.verticalScrollBar()->isVisible(), qPrintable(page));
            QVERIFY2(!scroll.horizontalScrollBar()->isVisible(), qPrintable(page));
            ++pages;
        });
        QVERIFY(pages > 0);
    }
};

static const Registered<FittingLook> registeredFittingLook("FittingLook", Scale::One);
static const Registered<LowFittingLook> registeredLowFittingLook("LowFittingLook", Scale::Two);

}  // namespace korvet::desktop

#include "fitting_look_test.moc"
