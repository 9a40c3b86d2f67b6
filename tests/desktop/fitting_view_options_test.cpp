// What only some fitting windows have on their panels: options, the steps between pages, further options.
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSet>
#include <QStringList>
#include <array>

#include "dialogs/branch_additional_dialog.h"
#include "fittings/cones/right_cone.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/fitting_views.h"

namespace korvet::desktop {
namespace {

constexpr std::string_view Pipes[] = {"Trunk", "Branch"};
constexpr std::string_view Sides[] = {"Center line", " Flush side"};

/// A window with everything that a window can have: steps on both pages, axes on the second one.
WindowTable FullTable() {
    static const std::array<PageEntry, 2> pages = [] {
        std::array<PageEntry, 2> made = {frmRightCone1.pages[0], frmRightCone1.pages[1]};
        made[1].angleOptions = true;
        return made;
    }();
    WindowTable table = frmRightCone1;
    table.pages = pages;
    table.firstDtype = 0;
    table.patternSelect = Pipes;
    table.flushSide = Sides;
    table.moreButtons = true;
    table.branchMaterialEnable = true;
    return table;
}

/// A cone whatever the boxes hold.
Outcome BuildAnyCone(FittingForm&, const FittingHandle& fitting) {
    fitting.As<CRightCone>().BaseRad = 100;
    fitting.As<CRightCone>().ConeAngle = 0.5;
    fitting.As<CRightCone>().CPHeight1 = 50;
    return Passed;
}

/// The buttons of a group that are on.
QStringList On(const ViewOfTable& shown, const QString& group) {
    QStringList on;
    for (const QRadioButton* button : shown.view.findChildren<QRadioButton*>()) {
        if (button->objectName().startsWith(group) && button->isChecked()) {
            on << button->objectName();
        }
    }
    return on;
}

/// Where a widget's upper edge stands in the view.
int TopOf(const ViewOfTable& shown, const QWidget& widget) {
    return widget.mapTo(&shown.view, QPoint(0, 0)).y();
}

}  // namespace

class FittingViewOptionsTest : public QObject {
    Q_OBJECT
  private slots:
    void aWindowWithoutThemHasNone() {
        const ViewOfTable shown(frmRightCone1);
        QVERIFY(shown.view.findChildren<QRadioButton*>().isEmpty());
        for (const char* name : {"btnMore_0", "btnMore_1", "btnBack_0", "btnBack_1", "btnPosition"}) {
            QVERIFY2(shown.Find(name) == nullptr, name);
        }
        for (const char* name : {"fraPatternSelect", "fraFlushSide", "fraTopAngle", "fraBaseAngle"}) {
            QVERIFY2(shown.Find<QGroupBox>(name) == nullptr, name);
        }
    }

    void aBoxOfTwoPagesIsOneText() {
        const std::array<PageEntry, 2> pages = {frmRightCone1.pages[1], frmRightCone1.pages[1]};
        WindowTable table = frmRightCone1;
        table.pages = pages;
        table.firstDtype = 0;
        table.buildFitting = BuildAnyCone;
        ViewOfTable shown(table);
        const QList<QLineEdit*> edits = shown.view.findChildren<QLineEdit*>("txtParameter_4");
        QCOMPARE(edits.size(), 2);
        QTest::keyClicks(edits[0], "25");
        QCOMPARE(edits[1]->text(), edits[0]->text());
        shown.window.ClickPoint(0);
        for (const std::size_t box : {3U, 4U}) {
            shown.window.FocusBox(box);
            shown.view.Project();
        }
        QLineEdit* const shownEdit = edits[edits[0]->isVisible() ? 0 : 1];
        QVERIFY(shownEdit->isVisible() && shownEdit->hasFocus());
    }

    void aPageWithoutBoxesLeavesTheFocusToTheDrawing() {
        std::array<PageEntry, 1> pages = {frmRightCone1.pages[1]};
        WindowTable table = frmRightCone1;
        table.pages = pages;
        table.firstDtype = 0;
        pages[0].boxes = pages[0].boxes.first(0);
        pages[0].labels = {};
        table.buildFitting = BuildAnyCone;
        ViewOfTable shown(table);
        shown.view.FocusFirstBox();
        QCOMPARE(QApplication::focusWidget()->accessibleName(), QString("Drawing"));
    }

    void aPatternIsSelectedAndNothingIsDrawn() {
        ViewOfTable shown(FullTable());
        QCOMPARE(shown.Get<QGroupBox>("fraPatternSelect").title(), QString("Select Pattern"));
        QCOMPARE(shown.Get("optPatternSelect_0").text(), QString("Trunk"));
        QCOMPARE(shown.Get("optPatternSelect_1").text(), QString("Branch"));
        QVERIFY(shown.Find("optPatternSelect_2") == nullptr);
        QCOMPARE(On(shown, "optPatternSelect"), QStringList());
        shown.Get("optPatternSelect_1").click();
        QVERIFY(shown.window.controls.options.optPatternSelect.IsOn(1));
        QCOMPARE(shown.window.miscellaneous, std::int16_t{2});
        QCOMPARE(On(shown, "optPatternSelect"), QStringList{"optPatternSelect_1"});
        shown.Get("optPatternSelect_0").click();
        QCOMPARE(shown.window.miscellaneous, std::int16_t{1});
        QCOMPARE(On(shown, "optPatternSelect"), QStringList{"optPatternSelect_0"});
        QVERIFY(!shown.window.hasModel);
        QVERIFY(shown.shell.ui.messages.empty());
        QCOMPARE(shown.events, 2);
    }

    void theSketchShowsOffTheSelectedPatternsSurface() {
        static constexpr int surfaces[] = {1, 2};  // a cone has the first one alone
        WindowTable table = FullTable();
        table.patternSurface = surfaces;
        ViewOfTable shown(table);
        QApplication::processEvents();
        QWidget& page = shown.Get<QWidget>("Picture1_0");
        const QImage plain = page.grab().toImage();
        shown.Get("optPatternSelect_0").click();
        QCOMPARE(page.grab().toImage(), plain);
        shown.Get("optPatternSelect_1").click();
        const QImage pale = page.grab().toImage();
        QVERIFY(pale != plain);
        shown.Get("btnMore_0").click();
        shown.Get("optPatternSelect_0").click();
        shown.Get("btnBack_1").click();
        QApplication::processEvents();
        shown.Get<QLineEdit>("txtParameter_0").setFocus();
        QCOMPARE(page.grab().toImage(), plain);
    }

    void aSelectionThatTheModelLostIsShownAsNone() {
        ViewOfTable shown(FullTable());
        FittingOptions& options = shown.window.controls.options;
        shown.Get("optPatternSelect_0").click();
        shown.Get("optFlushSide_1").click();
        options.optPatternSelect.selected.reset();
        options.optTopAngle.selected.reset();
        options.optFlushSide.selected = 0;
        shown.view.Project();
        QCOMPARE(On(shown, "opt"), QStringList({"optBaseAngle_1", "optFlushSide_0"}));
        QVERIFY(!options.optPatternSelect.selected);
        shown.Get("optPatternSelect_0").click();  // the one that was on before
        QVERIFY(options.optPatternSelect.IsOn(0));
    }

    void theFlushSideIsTheModels() {
        ViewOfTable shown(FullTable());
        QCOMPARE(shown.Get<QGroupBox>("fraFlushSide").title(), QString("Flush side"));
        QCOMPARE(shown.Get("optFlushSide_1").text(), QString("Flush side"));
        QCOMPARE(On(shown, "optFlushSide"), QStringList{"optFlushSide_0"});
        shown.Get("optFlushSide_1").click();
        QVERIFY(shown.window.controls.options.optFlushSide.IsOn(1));
        shown.Get("optFlushSide_0").click();
        QVERIFY(shown.window.controls.options.optFlushSide.IsOn(0));
        QCOMPARE(shown.window.miscellaneous, std::int16_t{0});
    }

    void theAxesStandBelowTheSketchOfTheirPage() {
        ViewOfTable shown(FullTable());
        QCOMPARE(shown.window.dtype, std::int16_t{0});
        QVERIFY(!shown.Get("optTopAngle_0").isVisible());
        shown.Get("btnMore_0").click();
        for (const char* name : {"fraTopAngle", "fraBaseAngle"}) {
            const QGroupBox& frame = shown.Get<QGroupBox>(name);
            const QWidget& sketch = shown.Get<QWidget>("Picture1_1");
            QVERIFY2(frame.isVisible(), name);
            QVERIFY(TopOf(shown, frame) >= TopOf(shown, sketch) + sketch.height());
        }
        QCOMPARE(shown.Get<QGroupBox>("fraTopAngle").title(), QString("Top angle"));
        QCOMPARE(shown.Get<QGroupBox>("fraBaseAngle").title(), QString("Base angle"));
        QCOMPARE(shown.Get("optBaseAngle_0").text(), QString("Angle about X-axis"));
        QCOMPARE(On(shown, "optTopAngle"), QStringList{"optTopAngle_1"});
        QCOMPARE(On(shown, "optBaseAngle"), QStringList{"optBaseAngle_1"});
        shown.Get("optTopAngle_0").click();
        const FittingOptions& options = shown.window.controls.options;
        QVERIFY(options.optTopAngle.IsOn(0) && options.optBaseAngle.IsOn(1));
        shown.Get("optBaseAngle_0").click();
        shown.Get("optTopAngle_1").click();
        QVERIFY(options.optTopAngle.IsOn(1) && options.optBaseAngle.IsOn(0));
        QCOMPARE(On(shown, "optTopAngle"), QStringList{"optTopAngle_1"});
        QCOMPARE(On(shown, "optBaseAngle"), QStringList{"optBaseAngle_0"});
    }

    void moreAndBackStepTheTypeAndGoToTheFirstBox() {
        ViewOfTable shown(FullTable());
        QVERIFY(shown.Get("btnMore_0").isVisible() && shown.Get("btnMore_0").isEnabled());
        QVERIFY(shown.Get("btnBack_0").isHidden());
        QCOMPARE(shown.Get("btnMore_0").text(), QString("More"));
        shown.Get("btnMore_0").click();
        QCOMPARE(shown.window.dtype, std::int16_t{1});
        QCOMPARE(shown.Get<QLabel>("lblDtype").text(), QString("Type 2"));
        QVERIFY(shown.Get<QLineEdit>("txtParameter_3").hasFocus());
        QVERIFY(shown.Get("btnMore_1").isHidden());
        QVERIFY(shown.Get("btnBack_1").isVisible() && !shown.Get("btnMore_0").isVisible());
        QCOMPARE(shown.Get("btnBack_1").text(), QString("Back"));
        shown.Get("btnBack_1").click();
        QCOMPARE(shown.window.dtype, std::int16_t{0});
        QVERIFY(shown.Get<QLineEdit>("txtParameter_0").hasFocus());
    }

    void theFirstDrawingFixesThePage() {
        ViewOfTable shown(FullTable());
        for (const BoxEntry& box : shown.table.pages[0].boxes) {
            shown.window.ChangeBox(static_cast<std::size_t>(box.index), std::string(box.sample));
        }
        shown.window.SelectPattern(0);
        shown.Get("btnView_9").click();
        QVERIFY(shown.window.hasModel);
        QVERIFY(!shown.Get("btnMore_0").isEnabled());
    }

    void theFurtherOptionsAreAsked() {
        ViewOfTable shown(FullTable());
        QCOMPARE(shown.Get("btnPosition").text(), QString("Additional Options"));
        shown.shell.ui.onBranchAdditional = [](BranchAdditionalDialog& dialog) {
            dialog.SelectJoin(SetOnJoin);
            dialog.ClickOK();
        };
        shown.Get("btnPosition").click();
        QCOMPARE(shown.window.branch.join, SetOnJoin);
    }

    void tabLeadsFromTheBoxesToTheOptionsInTheirOrder() {
        ViewOfTable shown(FullTable());
        shown.Get("btnMore_0").click();
        QStringList visited;
        for (int i = 0; i < 9; ++i) {
            visited << shown.view.focusWidget()->objectName();
            QTest::keyClick(shown.view.focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(visited, QStringList({"txtParameter_3", "txtParameter_4", "txtParameter_5", "optTopAngle_1",
                                       "optBaseAngle_1", "optPatternSelect_0", "optFlushSide_0",
                                       "btnPosition", "txtParameter_3"}));
    }

    void theKeysSelectWithinAGroup() {
        ViewOfTable shown(FullTable());
        const FittingOptions& options = shown.window.controls.options;
        shown.Get("optPatternSelect_0").setFocus(Qt::TabFocusReason);
        QVERIFY(!options.optPatternSelect.selected);
        QTest::keyClick(shown.view.focusWidget(), Qt::Key_Right);
        QCOMPARE(shown.view.focusWidget()->objectName(), QString("optPatternSelect_1"));
        QTest::keyClick(shown.view.focusWidget(), Qt::Key_Space);
        QVERIFY(options.optPatternSelect.IsOn(1));
        QTest::keyClick(shown.view.focusWidget(), Qt::Key_Left);
        QVERIFY(options.optPatternSelect.IsOn(0));
        QTest::keyClick(shown.view.focusWidget(), Qt::Key_Tab);
        QCOMPARE(shown.view.focusWidget()->objectName(), QString("optFlushSide_0"));
    }

    void aRefusalTakesTheFocusFromAnOption() {
        ViewOfTable shown(FullTable());
        auto& box = shown.Get<QLineEdit>("txtParameter_0");
        box.setFocus(Qt::TabFocusReason);
        shown.Get("optPatternSelect_0").setFocus(Qt::MouseFocusReason);
        QCOMPARE(shown.window.controls.focus, std::string("optPatternSelect_0"));
        shown.Get("btnView_9").click();  // with 0 in the first box
        QCOMPARE(shown.shell.ui.messages.size(), 1U);
        QVERIFY(box.hasFocus());
        QCOMPARE(box.selectedText(), QString("0"));
    }

    void everyControlIsSpokenOfByANameOfItsOwn() {
        ViewOfTable shown(FullTable());
        shown.view.SpeakWindow("Development 2");
        QCOMPARE(shown.Get("optTopAngle_0").accessibleName(),
                 QString("Top angle: Angle about X-axis, Development 2"));
        QCOMPARE(shown.Get("optPatternSelect_1").accessibleName(),
                 QString("Select Pattern: Branch, Development 2"));
        QCOMPARE(shown.Get("btnMore_0").accessibleName(), QString("More, to type 2, Development 2"));
        QSet<QString> names;
        int controls = 0;
        for (const auto* button : shown.view.findChildren<QAbstractButton*>()) {
            if (button->objectName().startsWith("qt_") || button->objectName().isEmpty()) {
                continue;
            }
            ++controls;
            QVERIFY2(button->accessibleName().endsWith(", Development 2"), qPrintable(button->objectName()));
            names.insert(button->accessibleName());
        }
        QCOMPARE(controls, 10 + 2 + 3 + 8 + 4 + 1);  // views, types, commands, options, steps, position
        QCOMPARE(names.size(), controls);
        shown.view.SpeakWindow({});
        QCOMPARE(shown.Get("btnPosition").accessibleName(), QString("Additional Options"));
    }
};

static const Registered<FittingViewOptionsTest> registeredFittingViewOptionsTest("FittingViewOptionsTest");

}  // namespace korvet::desktop

#include "fitting_view_options_test.moc"
