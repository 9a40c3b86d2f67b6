// How the settings dialog is worked on and read.
#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "core/thick_compensator.h"
#include "dialogs/options_dialog.h"
#include "tests/dialogs/pattern_settings_fixture.h"
#include "tests/support/memory_file_store.h"

namespace korvet {
namespace {

using Dialog = PatternSettingsDialog;

TEST_F(PatternSettings, OkReadsEveryControl) {
    CPatternSettings settings = WithLaps();
    const bool accepted = Run(settings, [](Dialog& d) {
        d.Change(d.cboJoinAngle.edit, "12.5");
        d.Change(d.txtThickness, "1.5");
        d.Change(d.txtThicknessA, "2.5");
        d.Change(d.txtThicknessB, "3.5");
        d.Change(d.cboSegs.edit, "50");
        d.Change(d.txtKerfSpacing, "0.2");
        d.optFullHalf.selected = Dialog::HalfPattern;
        d.optTemplateType.selected = 1;
        d.optInOutMean.selected = 1;
        d.optInOutMeanBranch.selected = 2;
        d.ClickJoinType(Dialog::Lap);
        d.Change(d.txtLapSize[0], "10");
        d.Change(d.txtLapSize[1], "20");
        d.Change(d.txtLapSize[2], "30");
        d.ClickOK();
        EXPECT_EQ(d.lblStatus, "OK");
        EXPECT_FALSE(d.visible);
    });
    EXPECT_TRUE(accepted);
    EXPECT_EQ(settings.JoinAngle, 12.5);
    EXPECT_EQ(settings.Thickness, 1.5);
    EXPECT_EQ(settings.ThicknessA, 2.5);
    EXPECT_EQ(settings.ThicknessB, 3.5);
    EXPECT_EQ(settings.segs, 50);
    EXPECT_EQ(settings.KerfSpacing, 0.2);
    EXPECT_TRUE(settings.HalfPattern);
    EXPECT_EQ(settings.TemplateType, 1);
    EXPECT_EQ(settings.InOutMean, InsideDimension);
    EXPECT_EQ(settings.PositionString, "inside");
    EXPECT_EQ(settings.LapSize0, 10);
    EXPECT_EQ(settings.LapSize1, 20);
    EXPECT_EQ(settings.LapSize2, 30);
    EXPECT_EQ(settings.JoinType, 1);
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(PatternSettings, AThicknessBelowNothingStaysInTheDialog) {
    CPatternSettings settings;
    settings.Thickness = 2;
    for (const auto& [text, accepted] :
         {std::pair{"-0.001", false}, {"0", true}, {"-0", true}, {"1e-9", true}}) {
        CPatternSettings changed = settings;
        ui.messages.clear();
        const bool taken = Run(changed, [text = text](Dialog& d) {
            d.Change(d.txtThickness, text);
            d.ClickOK();
        });
        EXPECT_EQ(taken, accepted) << text;
        EXPECT_EQ(changed.Thickness == 2, !accepted);
        if (!accepted) {
            EXPECT_EQ(ui.Texts(),
                      (std::vector<std::string>{"This dimension must be equal to or greater than 0"}));
            EXPECT_EQ(ui.messages.at(0).title, "User Error");
            EXPECT_EQ(ui.messages.at(0).control, "txtThickness");
            EXPECT_EQ(dialog.focus, "txtThickness");
        }
    }
}

TEST_F(PatternSettings, OnlyThicknessesThatCanBeTypedAreHeldToNothing) {
    const auto takes = [this](CPatternSettings settings, TextBox Dialog::*box) {
        return Run(settings, [box](Dialog& d) {
            d.Change(d.*box, "-1");
            d.ClickOK();
        });
    };
    CPatternSettings greyed;
    greyed.MaterialDisable = true;
    EXPECT_TRUE(takes(greyed, &Dialog::txtThickness));
    CPatternSettings branch = greyed;
    branch.BranchMaterialEnable = true;
    EXPECT_TRUE(takes(branch, &Dialog::txtThickness));
    EXPECT_FALSE(takes(branch, &Dialog::txtThicknessA));
    EXPECT_FALSE(takes(branch, &Dialog::txtThicknessB));
    EXPECT_TRUE(takes(CPatternSettings(), &Dialog::txtThicknessA));
}

TEST_F(PatternSettings, ABranchReadsTheOptionsOfItsOwnFrame) {
    CPatternSettings settings;
    settings.BranchMaterialEnable = true;
    Run(settings, [](Dialog& d) {
        d.optInOutMean.selected = 1;
        d.optInOutMeanBranch.selected = 2;
        d.ClickOK();
    });
    EXPECT_EQ(settings.InOutMean, OutsideDimension);
    EXPECT_EQ(settings.PositionString, "outside");
}

TEST_F(PatternSettings, AnUnknownSideOfTheMaterialReadsAsMean) {
    for (const int side : {-1, 3, 32767}) {
        CPatternSettings settings;
        settings.InOutMean = static_cast<std::int16_t>(side);
        Run(settings, [](Dialog& d) { d.ClickOK(); });
        EXPECT_EQ(settings.InOutMean, MeanDimension);
        EXPECT_EQ(settings.PositionString, "mean");
    }
}

TEST_F(PatternSettings, CancelReadsNothing) {
    for (const bool click : {true, false}) {
        CPatternSettings settings = WithLaps();
        settings.Thickness = 1;
        EXPECT_FALSE(Run(settings, [click](Dialog& d) {
            d.Change(d.txtThickness, "9");
            d.Change(d.cboSegs.edit, "96");
            if (click) {
                d.ClickCancel();
            }
            EXPECT_EQ(d.lblStatus, "  ");
        }));
        EXPECT_EQ(settings.Thickness, 1);
        EXPECT_EQ(settings.segs, 24);
        EXPECT_FALSE(dialog.visible);
    }
}

TEST_F(PatternSettings, AnOkIsForgottenWhenTheDialogIsShownAgain) {
    CPatternSettings settings;
    EXPECT_TRUE(Run(settings, [](Dialog& d) { d.ClickOK(); }));
    EXPECT_FALSE(Run(settings, [](Dialog& d) { d.ClickCancel(); }));
}

struct BadSetting {
    TextBox& (*box)(Dialog&);
    const char* text;
    const char* message;
};

TEST_F(PatternSettings, ABadBoxKeepsTheDialogOpenInTheOrderOfTheBoxes) {
    const char* notANumber = "Not a valid number";
    const std::vector<BadSetting> order = {
        {[](Dialog& d) -> TextBox& { return d.txtThickness; }, "x", notANumber},
        {[](Dialog& d) -> TextBox& { return d.txtThicknessA; }, "", notANumber},
        {[](Dialog& d) -> TextBox& { return d.txtThicknessB; }, "-", notANumber},
        {[](Dialog& d) -> TextBox& { return d.txtLapSize[0]; }, "x", notANumber},
        {[](Dialog& d) -> TextBox& { return d.txtLapSize[1]; }, "x", notANumber},
        {[](Dialog& d) -> TextBox& { return d.txtLapSize[2]; }, "x", notANumber},
        {[](Dialog& d) -> TextBox& { return d.cboSegs.edit; }, "x", notANumber},
        {[](Dialog& d) -> TextBox& { return d.cboJoinAngle.edit; }, "x", notANumber},
        {[](Dialog& d) -> TextBox& { return d.txtKerfSpacing; }, "x", notANumber},
        {[](Dialog& d) -> TextBox& { return d.cboSegs.edit; }, "0", "This dimension must be greater than 0"},
        {[](Dialog& d) -> TextBox& { return d.cboSegs.edit; }, "1.5",
         "This dimension must be an integer (whole number)"},
        {[](Dialog& d) -> TextBox& { return d.cboSegs.edit; }, "100001",
         "This dimension must be equal to or less than 100000"}};
    CPatternSettings settings = WithLaps();
    settings.JoinType = 1;
    settings.LapSize1 = 20;
    const bool accepted = Run(settings, [&](Dialog& d) {
        for (std::size_t i = 0; i < order.size(); ++i) {
            // The bad box, and all that are tested after it.
            std::vector<std::pair<TextBox*, std::string>> right;
            for (std::size_t k = i; k < order.size() && (k == i || k < 9); ++k) {
                TextBox& box = order[k].box(d);
                right.emplace_back(&box, box.text);
                box.text = order[k].text;
            }
            ui.messages.clear();
            d.ClickOK();
            EXPECT_EQ(ui.Texts(), std::vector<std::string>{order[i].message}) << i;
            EXPECT_EQ(d.focus, order[i].box(d).name) << i;
            EXPECT_TRUE(d.visible);
            EXPECT_EQ(d.lblStatus, "  ");
            for (const auto& [box, text] : right) {
                box->text = text;
            }
        }
    });
    EXPECT_FALSE(accepted);
}

TEST_F(PatternSettings, ALapNeedsASize) {
    CPatternSettings settings = WithLaps();
    Run(settings, [this](Dialog& d) {
        d.ClickJoinType(Dialog::Lap);
        d.Change(d.cboSegs.edit, "x");
        d.ClickOK();
        ASSERT_EQ(ui.messages.size(), 1U);
        EXPECT_EQ(ui.messages[0].text, "A lap join has been requested but no 'Lap Size' is specified");
        EXPECT_EQ(ui.messages[0].style, PlainBox);
        EXPECT_EQ(ui.messages[0].control, "txtLapSize_0");
        EXPECT_EQ(ui.messages[0].title, "Korvet Development");
        EXPECT_TRUE(d.visible);
        d.Change(d.cboSegs.edit, "24");
        d.Change(d.txtLapSize[2], "0.01");
        d.ClickOK();
        EXPECT_FALSE(d.visible);
    });
    EXPECT_EQ(ui.messages.size(), 1U);
    EXPECT_EQ(settings.LapSize2, 0.01);
}

TEST_F(PatternSettings, AButtJoinNeedsNoSizeAndKeepsWhatIsShown) {
    CPatternSettings settings = WithLaps();
    settings.LapSize0 = 12;
    EXPECT_TRUE(Run(settings, [](Dialog& d) { d.ClickOK(); }));
    EXPECT_EQ(settings.LapSize0, 0) << "the box showed 0";
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(PatternSettings, AnEditedSizeTurnsRedUntilTheNextShow) {
    CPatternSettings settings = WithLaps();
    Run(settings, [this](Dialog& d) {
        for (TextBox* box : {&d.txtThickness, &d.txtThicknessA, &d.txtThicknessB, &d.txtLapSize[0],
                             &d.txtLapSize[1], &d.txtLapSize[2]}) {
            EXPECT_EQ(box->textColor, Black);
            d.Change(*box, "-");
            EXPECT_EQ(box->textColor, 255);
            EXPECT_TRUE(ui.messages.empty());
            d.Change(*box, "1x");
            EXPECT_EQ(ui.Texts(), std::vector<std::string>{"Not a valid number"});
            EXPECT_EQ(box->selectionLength, 2U);
            ui.messages.clear();
        }
        d.Change(d.cboSegs.edit, "x");
        d.Change(d.cboJoinAngle.edit, "x");
        d.Change(d.txtKerfSpacing, "x");
        EXPECT_EQ(d.cboSegs.edit.textColor, Black);
        EXPECT_TRUE(ui.messages.empty());
    });
    const Dialog shown = Shown(settings);
    EXPECT_EQ(shown.txtThickness.textColor, Black);
    EXPECT_EQ(shown.txtLapSize[2].textColor, Black);
    EXPECT_EQ(shown.txtThickness.text, "0");
}

TEST_F(PatternSettings, AFocusedBoxIsSelected) {
    Dialog d;
    d.txtThicknessA.text = "12.5";
    d.Focus(d.txtThicknessA);
    EXPECT_EQ(d.focus, "txtThicknessA");
    EXPECT_EQ(d.txtThicknessA.selectionLength, 4U);
}

TEST_F(PatternSettings, TheFocusIsKeptWhenTheDialogHides) {
    CPatternSettings settings;
    Run(settings, [](Dialog& d) {
        d.Change(d.cboSegs.edit, "x");
        d.ClickOK();
        d.ClickCancel();
    });
    EXPECT_EQ(dialog.focus, "cboSegs");
}

TEST_F(PatternSettings, TheGlobalOptionsOpenOnTop) {
    MemoryFileStore files;
    int shown = 0;
    ui.onOptions = [&](OptionsDialog& d) {
        ++shown;
        d.CmbDefaultSegs.edit.text = "72";
        d.ClickOK();
    };
    CPatternSettings settings;
    Run(settings, [&](Dialog& d) { d.ClickOptions(files); });
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(options.DefaultSegs, 72);
    EXPECT_EQ(settings.segs, 24);
}

TEST_F(PatternSettings, ADialogThatIsNotShownTakesNoEvents) {
    CPatternSettings settings;
    Run(settings);
    EXPECT_THROW(dialog.ClickOK(), std::logic_error);
    EXPECT_THROW(Dialog().Change(dialog.txtThickness, "1"), std::logic_error);
}

}  // namespace
}  // namespace korvet
