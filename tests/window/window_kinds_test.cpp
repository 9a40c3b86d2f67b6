// What a fitting window can be beyond boxes and types: lines without a box, work behind the text block,
// buttons from page to page, a branch with two thicknesses. The window is the right cone's with another
// table.
#include <gtest/gtest.h>

#include "dialogs/branch_additional_dialog.h"
#include "fittings/cones/right_cone.h"
#include "fittings/windows.h"
#include "frame/catalogue.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {
namespace {

class WindowKindsTest : public testing::Test {
  protected:
    /// A window of the table as it stands, on the cone's second type with its sample sizes.
    CFittingWindow& Open() {
        row = *FindCategory("Right Cone");
        row.table = &table;
        window.emplace(shell.context, row, nullptr);
        for (const BoxEntry& box : table.pages[1].boxes) {
            window->ChangeBox(static_cast<std::size_t>(box.index), std::string(box.sample));
        }
        return *window;
    }

    [[nodiscard]] std::vector<std::string> TextBlock() const {
        std::vector<std::string> lines;
        for (const CLabel& label : *window->labels) {
            lines.push_back(label.LabelString);
        }
        return lines;
    }

    TestShell shell;
    WindowTable table = frmRightCone1;
    CatalogueRow row = *FindCategory("Right Cone");
    std::optional<CFittingWindow> window;
};

TEST_F(WindowKindsTest, ALineOfTheTextBlockMayHaveNoBox) {
    const std::array<LabelEntry, 2> labels = {{{NoBox, "Offset X = ", "0"}, {3}}};
    std::array<PageEntry, 3> pages = {table.pages[0], table.pages[1], table.pages[2]};
    pages[1].labels = labels;
    table.pages = pages;
    ASSERT_EQ(Open().BuildFitting(), Passed);
    EXPECT_EQ(
        TextBlock(),
        (std::vector<std::string>{
            "", "", "Offset X = 0", "Base diameter = " + std::string(table.pages[1].boxes[0].sample),
            "Thickness = 0", "Dimensions are based on the mean", "Right Cone  Full pattern  21 Nov 2026"}));
}

TEST_F(WindowKindsTest, AHalfPatternThatABuildRefusesIsNotToldOf) {
    table.buildFitting = [](FittingForm& form, const FittingHandle& fitting) {
        if (form.settings.HalfPattern) {
            form.RefuseHalfPattern();
        }
        return frmRightCone1.buildFitting(form, fitting);
    };
    Open().settings.HalfPattern = true;
    window->ClickView(0);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"Half pattern not applicable to this item"});
    EXPECT_EQ(window->labels->Last().LabelString, "Right Cone  Full pattern  21 Nov 2026");
    EXPECT_FALSE(window->fitting->Inputs().HalfPattern);
    window->Redraw();
    EXPECT_EQ(shell.ui.messages.size(), 1U) << "said once";
}

TEST_F(WindowKindsTest, ARefusalBehindTheTextBlockEndsTheBuild) {
    table.afterPatternChoice = [](FittingForm& form, const FittingHandle&) {
        return form.Refuse(BranchTooLarge);
    };
    EXPECT_EQ(Open().BuildFitting(), Refused);
    EXPECT_FALSE(window->hasModel);
    ASSERT_EQ(shell.ui.messages.size(), 1U);
    EXPECT_TRUE(shell.ui.messages[0].text.starts_with("\r\n Either the branch pipe diameter"));
}

TEST_F(WindowKindsTest, APatternMustBeSelectedBeforeOneIsDrawn) {
    static constexpr std::array<std::string_view, 2> Choices = {"Trunk", "Branch"};
    table.patternSelect = Choices;
    Open().FocusBox(4);
    window->ClickView(0);
    EXPECT_TRUE(window->hasModel);
    window->ClickView(PatternButton);
    EXPECT_FALSE(window->hasModel);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"A pattern must be selected"});
    EXPECT_EQ(shell.ui.messages[0].control, "optPatternSelect");
    EXPECT_EQ(window->controls.focus, "txtParameter_4");
    EXPECT_EQ(window->views->Count(), 1U);
    window->SelectPattern(0);
    window->ClickView(PatternButton);
    EXPECT_TRUE(window->hasModel);
}

TEST_F(WindowKindsTest, AnAngleNeedsAnAxis) {
    std::array<PageEntry, 3> pages = {table.pages[0], table.pages[1], table.pages[2]};
    pages[1].angleOptions = true;
    table.pages = pages;
    // Boxes 0 and 1 stand for the angles: they are on another page and hold no sample.
    table.afterPatternChoice = [](FittingForm& form, const FittingHandle&) { return form.CheckAxes(0, 1); };
    Open();
    FittingOptions& options = window->controls.options;
    EXPECT_EQ(options.optTopAngle.captions,
              (std::vector<std::string>{"Angle about X-axis", "Angle about Y-axis"}));
    EXPECT_TRUE(options.optTopAngle.IsOn(1));
    EXPECT_TRUE(options.optBaseAngle.IsOn(1));
    options.optTopAngle.selected.reset();
    EXPECT_EQ(window->BuildFitting(), Passed) << "no angle, no axis";
    window->ChangeBox(1, "5");
    EXPECT_EQ(window->BuildFitting(), Passed) << "the base has its axis";
    window->FocusBox(3);
    window->ChangeBox(0, "-5");
    EXPECT_EQ(window->BuildFitting(), Refused);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"X or Y axis of rotation must be selected"});
    EXPECT_EQ(shell.ui.messages[0].control, "optTopAngle");
    EXPECT_EQ(window->controls.focus, "txtParameter_3");
    options.optTopAngle.selected = 0;
    EXPECT_EQ(window->BuildFitting(), Passed);
    options.optBaseAngle.selected.reset();
    EXPECT_EQ(window->BuildFitting(), Refused);
}

TEST_F(WindowKindsTest, PagesMayShareABox) {
    std::array<PageEntry, 3> pages = {table.pages[0], table.pages[1], table.pages[1]};
    table.pages = pages;
    EXPECT_EQ(table.BoxCount(), 6U) << "boxes 0 to 5";
    EXPECT_EQ(Open().controls.txtParameter.size(), 6U);
}

TEST_F(WindowKindsTest, AFlushSideIsAlwaysSelected) {
    static constexpr std::array<std::string_view, 2> Sides = {"Center line", "Left"};
    table.flushSide = Sides;
    EXPECT_TRUE(Open().controls.options.optFlushSide.IsOn(0));
    window->SelectOption(&FittingOptions::optFlushSide, 1);
    EXPECT_TRUE(window->controls.options.optFlushSide.IsOn(1));
}

TEST_F(WindowKindsTest, AFittingWithoutAHalfPatternIsWholeEvenIfAFileBringsAHalf) {
    table.halfPatterns = HalfPatterns::None;
    Open().settings.HalfPattern = true;
    window->ClickView(PatternButton);
    ASSERT_TRUE(window->hasModel);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(window->labels->Last().LabelString, "Right Cone  Full pattern  21 Nov 2026");
    EXPECT_FALSE(window->settings.HalfPattern);
    const auto stations = static_cast<std::size_t>(window->settings.segs) + 1;
    EXPECT_EQ(window->fitting->Results().PatternSurface.List1->Count(), stations);
}

/// A cone whose class has no half pattern, and says so.
struct CWholeCone : CRightCone {
    void ConstructModel() {
        if (inputs.HalfPattern) {
            inputs.HalfPattern = false;
            results.warnings.push_back({HalfPatternNotApplicable, true});
        }
        CRightCone::ConstructModel();
    }
    void DevelopModel() {
        ConstructModel();
        CRightCone::DevelopModel();
    }
};

Outcome BuildWholeCone(FittingForm&, CWholeCone& cone) {
    cone.BaseRad = 100;
    cone.ConeAngle = 0.5;
    cone.CPHeight1 = 50;
    return Passed;
}

TEST_F(WindowKindsTest, AHalfPatternThatTheClassRefusesIsSaidOnce) {
    table.halfPatterns = HalfPatterns::RefusedByClass;
    table.newFitting = [] { return FittingHandle(std::make_shared<CWholeCone>()); };
    table.buildFitting = BuildAs<CWholeCone, BuildWholeCone>;
    Open().settings.HalfPattern = true;
    window->ClickView(PatternButton);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"Half pattern not applicable to this item"});
    EXPECT_EQ(window->labels->Last().LabelString, "Right Cone  Full pattern  21 Nov 2026");
    EXPECT_FALSE(window->settings.HalfPattern);
    window->Redraw();
    EXPECT_EQ(shell.ui.messages.size(), 1U);
}

TEST_F(WindowKindsTest, AHalfPatternThatTheClassRefusesIsSaidOnceOfModelAndPatternTogether) {
    table.halfPatterns = HalfPatterns::RefusedByClass;
    table.newFitting = [] { return FittingHandle(std::make_shared<CWholeCone>()); };
    table.buildFitting = BuildAs<CWholeCone, BuildWholeCone>;
    Open().settings.HalfPattern = true;
    ASSERT_TRUE(window->MakeModelAndPattern());
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"Half pattern not applicable to this item"});
    EXPECT_FALSE(window->settings.HalfPattern);
    ASSERT_TRUE(window->MakeModelAndPattern());
    EXPECT_EQ(shell.ui.messages.size(), 1U);
}

/// A cone whose class warns in words of its own and by a message.
struct CTalkingCone : CRightCone {
    void ConstructModel() {
        results.warnings = {{.text = "The legs cross"}, {.messageId = SeamLapTooLarge, .userError = true}};
        CRightCone::ConstructModel();
    }
};

TEST_F(WindowKindsTest, AWarningMayHaveATextOfItsOwn) {
    table.newFitting = FittingHandle::Make<CTalkingCone>;
    Open().ClickView(0);
    ASSERT_EQ(shell.ui.messages.size(), 2U);
    EXPECT_EQ(shell.ui.messages[0].text, "The legs cross");
    EXPECT_EQ(shell.ui.messages[1].text, "Lap join along seam may be too large");
    EXPECT_EQ(shell.ui.messages[1].title, "User Error");
}

TEST_F(WindowKindsTest, AnotherNumberOfSidesStartsTheSeamAnew) {
    std::array<PageEntry, 3> pages = {table.pages[0], table.pages[1], table.pages[2]};
    pages[1].sidesBox = 0;  // of another page: it takes any number here
    table.pages = pages;
    Open().ChangeBox(0, "6");
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(window->noOfSides, 6);
    window->settings.JoinAngle = 60;
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(window->settings.JoinAngle, 60) << "still six sides";
    window->ChangeBox(0, "8");
    window->ChangeBox(3, "0");
    EXPECT_EQ(window->BuildFitting(), Refused);
    EXPECT_EQ(window->settings.JoinAngle, 60) << "a refused build changes nothing";
    window->ChangeBox(3, "300");
    ASSERT_EQ(window->BuildFitting(), Passed);
    EXPECT_EQ(window->settings.JoinAngle, 0);
    EXPECT_EQ(window->noOfSides, 8);
}

TEST_F(WindowKindsTest, TheSeamOfAFileBelongsToItsSides) {
    std::array<PageEntry, 3> pages = {table.pages[0], table.pages[1], table.pages[2]};
    pages[1].sidesBox = 0;
    table.pages = pages;
    Open().ChangeBox(0, "6");
    window->ClickView(0);
    window->settings.JoinAngle = 60;
    ASSERT_EQ(window->SaveFile("six.Kvt"), Passed);
    Open();
    ASSERT_EQ(window->LoadFile("six.Kvt"), Passed);
    EXPECT_EQ(window->noOfSides, 6);
    EXPECT_EQ(window->settings.JoinAngle, 60);
}

TEST_F(WindowKindsTest, MoreAndBackStepTheTypeUntilTheFirstDrawing) {
    table.moreButtons = true;
    Open();
    const WindowModel& controls = window->controls;
    ASSERT_EQ(window->dtype, 1);
    ASSERT_EQ(controls.btnMore.size(), 3U);
    EXPECT_FALSE(controls.btnMore[2].visible) << "nothing comes behind the last page";
    EXPECT_FALSE(controls.btnBack[0].visible);
    window->ClickMore(1);
    EXPECT_EQ(window->dtype, 2);
    EXPECT_TRUE(controls.Picture1[2].visible);
    EXPECT_FALSE(controls.Picture1[1].visible);
    window->ClickBack(2);
    EXPECT_EQ(window->dtype, 1);
    window->ClickView(0);
    ASSERT_TRUE(window->hasModel);
    EXPECT_FALSE(controls.btnMore[1].enabled);
    EXPECT_FALSE(controls.btnBack[1].enabled);
    window->ClickMore(1);
    window->ClickBack(1);
    EXPECT_EQ(window->dtype, 1);
}

TEST_F(WindowKindsTest, ABranchTellsBothThicknessesAndItsJoin) {
    table.branchMaterialEnable = true;
    Open().settings.ThicknessA = 2.5;
    window->settings.ThicknessB = 4;
    EXPECT_TRUE(window->controls.btnPosition.visible);
    for (const auto& [join, text] : {std::pair{SetInJoin, "Branch type is Set IN"},
                                     {SetOnJoin, "Branch type is Set ON"},
                                     {MeanToMeanJoin, "Branch type is Mean to Mean"}}) {
        window->branch.join = join;
        ASSERT_EQ(window->BuildFitting(), Passed);
        const std::vector<std::string> lines = TextBlock();
        ASSERT_EQ(lines.size(), 2 + table.pages[1].labels.size() + 5);
        EXPECT_EQ(lines.end()[-5], "Thickness of branch pipe = 2.5");
        EXPECT_EQ(lines.end()[-4], "Thickness of trunk pipe = 4");
        EXPECT_EQ(lines.end()[-3], text);
    }
}

TEST_F(WindowKindsTest, TheFurtherOptionsAreStoredByOkAndTheWindowIsDrawnAnew) {
    table.branchMaterialEnable = true;
    Open().ClickView(0);
    shell.ui.onBranchAdditional = [](BranchAdditionalDialog& dialog) {
        EXPECT_TRUE(dialog.optInOrOn.IsOn(MeanToMeanJoin));
        dialog.SelectJoin(SetOnJoin);
        dialog.chkHeelCompensation.checked = true;
        dialog.ClickCancel();
    };
    const auto before = TextBlock();
    window->settings.ThicknessA = 2.5;
    window->ClickPosition();
    EXPECT_EQ(window->branch.join, MeanToMeanJoin);
    EXPECT_FALSE(window->branch.heelCompensation);
    EXPECT_NE(TextBlock(), before) << "the window is drawn anew after Cancel too";
    shell.ui.onBranchAdditional = [](BranchAdditionalDialog& dialog) {
        dialog.SelectJoin(SetOnJoin);
        dialog.chkHeelCompensation.checked = true;
        dialog.ClickOK();
    };
    window->ClickPosition();
    EXPECT_EQ(window->branch.join, SetOnJoin);
    EXPECT_TRUE(window->branch.heelCompensation);
    EXPECT_EQ(TextBlock().end()[-3], "Branch type is Set ON");
}

TEST_F(WindowKindsTest, ThicknessesAndJoinSurviveAFile) {
    table.branchMaterialEnable = table.materialDisable = true;
    Open().ClickView(0);
    window->settings.ThicknessA = 2.5;
    window->settings.ThicknessB = 4;
    window->branch = {SetInJoin, true};
    ASSERT_EQ(window->SaveFile("branch.Kvt"), Passed);
    Open();
    ASSERT_EQ(window->LoadFile("branch.Kvt"), Passed);
    EXPECT_EQ(window->settings.ThicknessA, 2.5);
    EXPECT_EQ(window->settings.ThicknessB, 4);
    EXPECT_EQ(window->branch.join, SetInJoin);
    EXPECT_TRUE(window->branch.heelCompensation);
    EXPECT_TRUE(window->settings.BranchMaterialEnable) << "so that the thicknesses can be typed";
    EXPECT_TRUE(window->settings.MaterialDisable);
}

TEST(BranchAdditionalDialogTest, TheHeelIsAMatterOfASetOnBranch) {
    BranchAdditionalDialog dialog({SetOnJoin, true});
    EXPECT_EQ(dialog.caption, "Additional Options");
    EXPECT_EQ(dialog.fraBranchTypes, "Branch Types");
    EXPECT_EQ(dialog.optInOrOn.captions,
              (std::vector<std::string>{"SET-IN type join", "SET-ON type join", "MEAN  to MEAN  type join"}));
    EXPECT_EQ(dialog.chkHeelCompensation.caption, "Apply Heel Compensation");
    EXPECT_TRUE(dialog.chkHeelCompensation.enabled);
    EXPECT_TRUE(dialog.chkHeelCompensation.checked);
    EXPECT_EQ(dialog.fraDescription[SetOnJoin].heel.size(), 4U);
    for (const std::size_t join : {SetInJoin, MeanToMeanJoin, SetOnJoin}) {
        dialog.SelectJoin(join);
        EXPECT_EQ(dialog.chkHeelCompensation.enabled, join == SetOnJoin);
        for (std::size_t i = 0; i < dialog.fraDescription.size(); ++i) {
            EXPECT_EQ(dialog.fraDescription.at(i).visible, i == join);
        }
    }
    EXPECT_TRUE(dialog.Chosen().heelCompensation) << "the tick waits for a set-on branch";
}

TEST(BranchAdditionalDialogTest, SaysWhatEachJoinMatches) {
    const BranchAdditionalDialog dialog({});
    const auto& [setIn, setOn, mean] = dialog.fraDescription;
    EXPECT_EQ(setIn.caption, "Set In Branch");
    EXPECT_EQ(setOn.caption, "Set On Branch");
    EXPECT_EQ(mean.caption, "Mean to Mean Branch");
    EXPECT_EQ(setIn.branch[0], "The branch pipe is shaped to match the MEAN");
    EXPECT_EQ(setIn.hole[0], "The hole in the trunk pipe is set to the OUTSIDE ");
    EXPECT_EQ(setOn.branch[0], "The branch pipe is shaped to match the OUTSIDE ");
    EXPECT_EQ(setOn.hole[1], "diameter (ID) of the branch pipe. ");
    EXPECT_EQ(setOn.heel[0], "If the \"Apply Heel Compensation\" option is checked ");
    EXPECT_EQ(mean.hole[0], "The hole in the trunk pipe is set to the MEAN");
    EXPECT_TRUE(mean.visible);
}

}  // namespace
}  // namespace korvet
