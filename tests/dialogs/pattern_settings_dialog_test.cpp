// How the settings dialog shows what it is given.
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "core/thick_compensator.h"
#include "tests/dialogs/pattern_settings_fixture.h"

namespace korvet {
namespace {

using Dialog = PatternSettingsDialog;

std::array<bool, 3> LapBoxes(const Dialog& dialog) {
    return {dialog.txtLapSize[0].enabled, dialog.txtLapSize[1].enabled, dialog.txtLapSize[2].enabled};
}

std::array<std::string, 3> LapTexts(const Dialog& dialog) {
    return {dialog.txtLapSize[0].text, dialog.txtLapSize[1].text, dialog.txtLapSize[2].text};
}

constexpr std::array<bool, 3> AllOn = {true, true, true};
constexpr std::array<bool, 3> AllOff = {false, false, false};
const std::array<std::string, 3> NoSizes = {"0", "0", "0"};

TEST_F(PatternSettings, AreShownAsTheyAre) {
    CPatternSettings settings;
    settings.segs = 50;
    settings.Thickness = 1.5;
    settings.ThicknessA = 2.5;
    settings.ThicknessB = 3.5;
    settings.InOutMean = OutsideDimension;
    settings.JoinAngle = 22.5;
    settings.KerfSpacing = 0.25;
    settings.TemplateType = 1;
    settings.NoOfSides = 6;
    settings.HalfPattern = true;
    const Dialog shown = Shown(settings, ',');
    EXPECT_EQ(shown.caption, "Settings");
    EXPECT_EQ(shown.cboSegs.edit.text, "50");
    EXPECT_EQ(shown.txtThickness.text, "1,5");
    EXPECT_EQ(shown.txtThicknessA.text, "2,5");
    EXPECT_EQ(shown.txtThicknessB.text, "3,5");
    EXPECT_TRUE(shown.optInOutMean.IsOn(2));
    EXPECT_TRUE(shown.optInOutMeanBranch.IsOn(2));
    EXPECT_EQ(shown.cboJoinAngle.edit.text, "22,5");
    EXPECT_EQ(shown.txtKerfSpacing.text, "0,25");
    EXPECT_TRUE(shown.optTemplateType.IsOn(1));
    EXPECT_TRUE(shown.optFullHalf.IsOn(Dialog::HalfPattern));
    EXPECT_EQ(shown.lblNoOfSides, 6);
    EXPECT_EQ(shown.lblStatus, "  ");
    EXPECT_TRUE(shown.visible);
    EXPECT_EQ(shown.cboSegs.list, (std::vector<std::string>{"12", "24", "36", "48", "72", "96", "144"}));
}

TEST_F(PatternSettings, AFreshDialogStartsWithButtFullAndMean) {
    const Dialog fresh;
    EXPECT_TRUE(fresh.optJoinType.IsOn(Dialog::Butt));
    EXPECT_TRUE(fresh.optFullHalf.IsOn(Dialog::FullPattern));
    EXPECT_TRUE(fresh.optInOutMean.IsOn(0));
    EXPECT_EQ(fresh.txtKerfSpacing.text, "0");
    EXPECT_EQ(fresh.optInOutMean.captions, (std::vector<std::string>{"Mean", "Inside", "Outside"}));
    EXPECT_EQ(fresh.optTemplateType.captions,
              (std::vector<std::string>{"Mean thickness", "Wraps around OD"}));
    EXPECT_EQ(fresh.optJoinType.captions, (std::vector<std::string>{"Butt", "Lap"}));
    EXPECT_EQ(fresh.optFullHalf.captions, (std::vector<std::string>{"Full Pattern", "Half Pattern"}));
    EXPECT_EQ(fresh.fraJoinAngle.caption, "Join angle");
    EXPECT_EQ(fresh.fraJoinAngle.toolTip, "Angle of join");
    EXPECT_FALSE(fresh.visible);
}

TEST_F(PatternSettings, KerfAndTemplateAreOfferedWhereTheFittingHasThem) {
    CPatternSettings settings;
    Dialog shown = Shown(settings);
    EXPECT_FALSE(shown.fraKerfSpacing.enabled);
    EXPECT_FALSE(shown.txtKerfSpacing.enabled);
    EXPECT_FALSE(shown.fraTemplateType.enabled);
    EXPECT_FALSE(shown.optTemplateType.enabled);
    EXPECT_TRUE(shown.optTemplateType.IsOn(0));
    settings.KerfEnabled = true;
    settings.TemplateTypeEnabled = true;
    settings.TemplateType = 2;
    shown = Shown(settings);
    EXPECT_TRUE(shown.fraKerfSpacing.enabled);
    EXPECT_TRUE(shown.txtKerfSpacing.enabled);
    EXPECT_TRUE(shown.fraTemplateType.enabled);
    EXPECT_TRUE(shown.optTemplateType.enabled);
    EXPECT_TRUE(shown.optTemplateType.IsOn(0)) << "only 1 is the outside diameter";
}

TEST_F(PatternSettings, OneOfTheTwoMaterialFramesIsShown) {
    const Place place = {60, 3120, 3795, 2955};
    CPatternSettings settings;
    Dialog shown = Shown(settings);
    EXPECT_TRUE(shown.fraMaterial.visible);
    EXPECT_TRUE(shown.fraMaterial.enabled);
    EXPECT_TRUE(shown.txtThickness.enabled);
    EXPECT_TRUE(shown.optInOutMean.enabled);
    EXPECT_EQ(shown.fraMaterial.place, place);
    EXPECT_FALSE(shown.fraBranchMaterial.visible);

    settings.BranchMaterialEnable = true;
    shown = Shown(settings);
    EXPECT_FALSE(shown.fraMaterial.visible);
    EXPECT_TRUE(shown.fraBranchMaterial.visible);
    EXPECT_EQ(shown.fraBranchMaterial.place, place);

    // The windows of branches grey the single material and ask for the two thicknesses.
    settings.MaterialDisable = true;
    shown = Shown(settings);
    EXPECT_FALSE(shown.fraMaterial.visible);
    EXPECT_TRUE(shown.fraBranchMaterial.visible);
    EXPECT_EQ(shown.fraBranchMaterial.place, place);

    settings.BranchMaterialEnable = false;
    shown = Shown(settings);
    EXPECT_FALSE(shown.fraMaterial.enabled);
    EXPECT_FALSE(shown.txtThickness.enabled);
    EXPECT_FALSE(shown.optInOutMean.enabled);
    EXPECT_FALSE(shown.fraBranchMaterial.visible);

    shown = Shown(CPatternSettings());
    EXPECT_TRUE(shown.fraMaterial.enabled);
    EXPECT_TRUE(shown.txtThickness.enabled);
    EXPECT_TRUE(shown.optInOutMean.enabled);
}

TEST_F(PatternSettings, JoinAnglesOfARoundSectionGoInThirties) {
    EXPECT_EQ(Shown(CPatternSettings()).cboJoinAngle.list,
              (std::vector<std::string>{"0", "30", "60", "90", "120", "150", "180", "210", "240", "270",
                                        "300", "330"}));
}

TEST_F(PatternSettings, JoinAnglesOfAPolygonGoInHalfSides) {
    CPatternSettings settings;
    settings.NoOfSides = 4;
    EXPECT_EQ(Shown(settings).cboJoinAngle.list,
              (std::vector<std::string>{"0", "45", "90", "135", "180", "225", "270", "315"}));
    settings.NoOfSides = 16;
    EXPECT_EQ(Shown(settings, ',').cboJoinAngle.list.at(1), "11,25");
    for (int sides = 1; sides <= 100; ++sides) {
        settings.NoOfSides = static_cast<std::int16_t>(sides);
        EXPECT_EQ(Shown(settings).cboJoinAngle.list.size(), static_cast<std::size_t>(2 * sides));
    }
    settings.NoOfSides = 0;
    EXPECT_EQ(Shown(settings).cboJoinAngle.list.size(), 12U) << "the list is made anew";
}

TEST_F(PatternSettings, TheJoinAngleIsGreyedWhereTheFittingFixesIt) {
    CPatternSettings settings;
    settings.JoinAngleDisable = true;
    Dialog shown = Shown(settings);
    EXPECT_FALSE(shown.fraJoinAngle.enabled);
    EXPECT_FALSE(shown.cboJoinAngle.edit.enabled);
    shown = Shown(CPatternSettings());
    EXPECT_TRUE(shown.fraJoinAngle.enabled);
    EXPECT_TRUE(shown.cboJoinAngle.edit.enabled);
}

TEST_F(PatternSettings, AWindowWithoutLapsCannotGetOne) {
    CPatternSettings settings = WithLaps(NoLaps);
    settings.JoinType = 1;
    settings.LapSize1 = 20;
    const Dialog shown = Shown(settings);
    EXPECT_FALSE(shown.optJoinType.enabled);
    EXPECT_TRUE(shown.optJoinType.IsOn(Dialog::Butt));
    EXPECT_EQ(LapBoxes(shown), AllOff);
    EXPECT_EQ(LapTexts(shown), NoSizes);
    EXPECT_FALSE(shown.lblLapSize.enabled);
}

TEST_F(PatternSettings, AWindowWithoutLapsGetsNoneFromTheLastOne) {
    CPatternSettings lapped = WithLaps();
    Run(lapped, [](Dialog& d) { d.ClickJoinType(Dialog::Lap); });
    CPatternSettings without = WithLaps(NoLaps);
    without.JoinType = 1;
    EXPECT_TRUE(Run(without, [](Dialog& d) { d.ClickOK(); }));
    EXPECT_EQ(without.JoinType, 0);
    EXPECT_TRUE(Shown(WithLaps()).optJoinType.enabled) << "the next window has its laps again";
}

TEST_F(PatternSettings, AButtJoinGreysTheSizes) {
    CPatternSettings settings = WithLaps();
    settings.LapSize0 = 5;
    const Dialog shown = Shown(settings);
    EXPECT_TRUE(shown.optJoinType.enabled);
    EXPECT_TRUE(shown.optJoinType.IsOn(Dialog::Butt));
    EXPECT_EQ(LapBoxes(shown), AllOff);
    EXPECT_EQ(LapTexts(shown), NoSizes);
    EXPECT_FALSE(shown.lblLapSize.enabled);
}

TEST_F(PatternSettings, ALapShowsItsSizesButIsNotSelected) {
    CPatternSettings settings = WithLaps(SeamLapOnly);
    settings.JoinType = 1;
    settings.LapSize0 = 1;
    settings.LapSize1 = 20.5;
    settings.LapSize2 = 3;
    const Dialog shown = Shown(settings);
    EXPECT_TRUE(shown.optJoinType.IsOn(Dialog::Butt)) << "on a fresh dialog";
    EXPECT_EQ(LapBoxes(shown), AllOn) << "whatever the mask";
    EXPECT_TRUE(shown.lblLapSize.enabled);
    EXPECT_EQ(LapTexts(shown), (std::array<std::string, 3>{"1", "20.5", "3"}));
}

TEST_F(PatternSettings, ALapIsLostOnAFreshDialogUnlessItIsPressedAgain) {
    CPatternSettings settings = WithLaps();
    settings.JoinType = 1;
    settings.LapSize1 = 20;
    EXPECT_TRUE(Run(settings, [](Dialog& d) { d.ClickOK(); }));
    EXPECT_EQ(settings.JoinType, 0);
    EXPECT_EQ(settings.LapSize1, 20);
}

TEST_F(PatternSettings, ASelectedLapShowsThroughInTheNextWindow) {
    CPatternSettings first = WithLaps();
    Run(first, [](Dialog& d) {
        d.ClickJoinType(Dialog::Lap);
        d.Change(d.txtLapSize[1], "15");
        d.ClickOK();
    });
    EXPECT_EQ(first.JoinType, 1);
    EXPECT_EQ(first.LapSize1, 15);

    CPatternSettings second = WithLaps();
    second.JoinType = 1;
    second.LapSize1 = 7;
    EXPECT_TRUE(Shown(second).optJoinType.IsOn(Dialog::Lap));

    // A window with a butt join selects it for itself, and that too shows through.
    EXPECT_TRUE(Shown(WithLaps()).optJoinType.IsOn(Dialog::Butt));
    EXPECT_TRUE(Shown(second).optJoinType.IsOn(Dialog::Butt));
}

TEST_F(PatternSettings, ALapSelectedAndCancelledShowsThroughToo) {
    CPatternSettings settings = WithLaps();
    settings.JoinType = 1;
    EXPECT_FALSE(Run(settings, [](Dialog& d) {
        d.ClickJoinType(Dialog::Lap);
        d.ClickCancel();
    }));
    EXPECT_TRUE(Shown(settings).optJoinType.IsOn(Dialog::Lap));
}

TEST_F(PatternSettings, AWindowThatClosesUnloadsTheDialog) {
    CPatternSettings settings = WithLaps();
    settings.JoinType = 1;
    Run(settings, [](Dialog& d) { d.ClickJoinType(Dialog::Lap); });
    dialog = Dialog();
    EXPECT_TRUE(Shown(settings).optJoinType.IsOn(Dialog::Butt));
}

TEST_F(PatternSettings, PressingLapEnablesTheSizesOfTheMask) {
    for (int mask = 0; mask <= 7; ++mask) {
        Dialog d;
        d.lblLapEnableValue = static_cast<std::int16_t>(mask);
        d.ClickJoinType(Dialog::Lap);
        EXPECT_TRUE(d.optJoinType.IsOn(Dialog::Lap));
        EXPECT_FALSE(d.optJoinType.IsOn(Dialog::Butt));
        EXPECT_TRUE(d.lblLapSize.enabled);
        const bool size0 = mask == 1 || mask == 3 || mask == 5 || mask == 7;
        const bool size1 = mask == 2 || mask == 3 || mask == 6 || mask == 7;
        const bool size2 = mask >= 4;
        EXPECT_EQ(LapBoxes(d), (std::array<bool, 3>{size0, size1, size2})) << mask;
        d.ClickJoinType(Dialog::Butt);
        EXPECT_EQ(LapBoxes(d), AllOff);
        EXPECT_FALSE(d.lblLapSize.enabled);
    }
}

TEST_F(PatternSettings, PressingButtKeepsTheSizesThatAreShown) {
    CPatternSettings settings = WithLaps();
    settings.JoinType = 1;
    settings.LapSize0 = 5;
    Run(settings, [](Dialog& d) {
        d.ClickJoinType(Dialog::Butt);
        d.ClickOK();
    });
    EXPECT_EQ(settings.JoinType, 0);
    EXPECT_EQ(settings.LapSize0, 5);
}

TEST_F(PatternSettings, AForcedFullPatternStaysFull) {
    CPatternSettings settings;
    settings.HalfPattern = true;
    settings.HalfPatternDisable = true;
    const Dialog shown = Shown(settings);
    EXPECT_TRUE(shown.optFullHalf.IsOn(Dialog::FullPattern));
    EXPECT_FALSE(shown.optFullHalf.enabled);
    EXPECT_TRUE(settings.HalfPattern) << "until OK";
    EXPECT_TRUE(Run(settings, [](Dialog& d) { d.ClickOK(); }));
    EXPECT_FALSE(settings.HalfPattern);
    EXPECT_TRUE(Shown(CPatternSettings()).optFullHalf.enabled);
}

}  // namespace
}  // namespace korvet
