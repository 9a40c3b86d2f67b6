// What the table of a fitting window says by itself.
#include "form/window_table.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "core/checked.h"
#include "tests/support/form_on_boxes.h"

namespace korvet {
namespace {

enum Box : int { Diameter = 0, ConeAngle = 7 };

constexpr BoxEntry Boxes[] = {{Diameter, "Base diameter", "300"},
                              {ConeAngle, "Cone angle (degrees, included)", "60"}};
constexpr BoxEntry OtherBoxes[] = {{Diameter, "Diameter", "300"}, {3, "Height", "60", {}, "00"}};
constexpr PageEntry Pages[] = {{Boxes, {}}, {OtherBoxes, {}}};
constexpr std::string_view Choices[] = {"Trunk", "Branch"};

struct CNothing {
    FittingInputs inputs;
    FittingResults results;
    void ConstructModel() {}
    void DevelopModel() {}
};

Outcome Accept(FittingForm&, const FittingHandle&) {
    return Passed;
}

Outcome Refuse(FittingForm& form, const FittingHandle&) {
    return form.Refuse(BranchTooLarge);
}

WindowTable Table() {
    return {.pages = Pages, .newFitting = FittingHandle::Make<CNothing>, .buildFitting = Accept};
}

TEST(LabelOf, IsThatOfTheBoxWithoutItsUnit) {
    EXPECT_EQ(LabelOf(Pages[0], {Diameter}), "Base diameter = ");
    EXPECT_EQ(LabelOf(Pages[0], {ConeAngle}), "Cone angle = ");
    EXPECT_EQ(LabelOf(Pages[1], {Diameter}), "Diameter = ") << "as its own page calls it";
}

TEST(LabelOf, IsTheLinesOwnWhereItHasOne) {
    EXPECT_EQ(LabelOf(Pages[0], {ConeAngle, "Height 2  = "}), "Height 2  = ");
    EXPECT_EQ(LabelOf(Pages[0], {NoBox, "Bend angle = ", "90"}), "Bend angle = ");
}

TEST(LabelOf, OfABoxThatThePageHasNotIsAMistakeInTheTable) {
    EXPECT_THROW(LabelOf(Pages[1], {ConeAngle}), std::logic_error);
    EXPECT_THROW(LabelOf(Pages[0], {NoBox}), std::logic_error);
}

TEST(WindowTable, CountsTheBoxesOfAllPagesByTheirIndex) {
    EXPECT_EQ(Table().BoxCount(), 8U);
}

TEST(HalfPatternsOfAWindow, AreToldOfOnlyWhereThereAreAny) {
    CPatternSettings settings;
    WindowTable table = Table();
    EXPECT_FALSE(TellsOfHalf(table, settings));
    settings.HalfPattern = true;
    for (const auto& [patterns, told] : {std::pair{HalfPatterns::Offered, true},
                                         {HalfPatterns::FromFiles, true},
                                         {HalfPatterns::RefusedByClass, false},
                                         {HalfPatterns::None, false}}) {
        table.halfPatterns = patterns;
        EXPECT_EQ(TellsOfHalf(table, settings), told);
        EXPECT_EQ(StartSettings(table, 24).HalfPatternDisable, patterns != HalfPatterns::Offered);
    }
}

TEST(WindowTable, StartsItsSettingsWithItsFlags) {
    WindowTable table = Table();
    table.joinAngleDisable = table.kerfEnabled = true;
    table.inOutMean = InsideDimension;
    const CPatternSettings settings = StartSettings(table, 48);
    EXPECT_EQ(settings.segs, 48);
    EXPECT_TRUE(settings.JoinAngleDisable);
    EXPECT_TRUE(settings.KerfEnabled);
    EXPECT_FALSE(settings.TemplateTypeEnabled);
    EXPECT_EQ(settings.InOutMean, InsideDimension);
    EXPECT_EQ(settings.PositionString, "inside");
}

TEST(WindowTable, StartsWithTiltsAboutYTheFirstFlushSideAndNoPattern) {
    WindowTable table = Table();
    EXPECT_TRUE(StartOptions(table).optTopAngle.captions.empty());
    PageEntry tilted = Pages[0];
    tilted.angleOptions = true;
    table.pages = {&tilted, 1};
    table.patternSelect = table.flushSide = Choices;
    const FittingOptions options = StartOptions(table);
    EXPECT_TRUE(options.optTopAngle.IsOn(1));
    EXPECT_TRUE(options.optBaseAngle.IsOn(1));
    EXPECT_TRUE(options.optFlushSide.IsOn(0));
    EXPECT_EQ(options.optPatternSelect.captions, (std::vector<std::string>{"Trunk", "Branch"}));
    EXPECT_FALSE(options.optPatternSelect.selected);
}

TEST(WindowTable, HasTheRestOfABuildBehindTheQuestionForThePattern) {
    FormOnBoxes boxes({});
    boxes.choices.optPatternSelect.captions = {"Trunk", "Branch"};
    FittingForm form({boxes.ui, boxes.options, '.', boxes.focus},
                     {boxes.boxes, boxes.settings, boxes.choices, boxes.branch, "Test", 0, 0, true});
    WindowTable table = Table();
    table.afterPatternChoice = Refuse;
    const FittingHandle fitting = table.newFitting();
    EXPECT_EQ(BuildChosenPattern(table, form, fitting), Refused);
    EXPECT_EQ(boxes.ui.Texts(), std::vector<std::string>{"A pattern must be selected"});
    boxes.ui.messages.clear();
    boxes.choices.optPatternSelect.selected = 0;
    EXPECT_EQ(BuildChosenPattern(table, form, fitting), Refused);
    ASSERT_EQ(boxes.ui.messages.size(), 1U);
    EXPECT_TRUE(boxes.ui.messages[0].text.starts_with("\r\n Either the branch pipe diameter"));
    table.afterPatternChoice = nullptr;
    EXPECT_EQ(BuildChosenPattern(table, form, fitting), Passed);
}

TEST(HoldSeam, GreysTheSeamAngleAndSetsItToNothing) {
    CPatternSettings settings;
    settings.JoinAngle = 30;
    HoldSeam(settings, false);
    EXPECT_EQ(settings.JoinAngle, 30);
    HoldSeam(settings, true);
    EXPECT_TRUE(settings.JoinAngleDisable);
    EXPECT_EQ(settings.JoinAngle, 0);
}

constexpr BoxEntry TwoBoxes[] = {{0, "Length 1", "10"}, {2, "Length 2", "20"}};

TEST(SizesWithinReach, HaveALargest) {
    const PageEntry page = {TwoBoxes, {}};
    for (const char* text : {"1e9", "-1e9", "0"}) {
        FormOnBoxes boxes{"5", "1e30", text};  // the one between is not on the page
        EXPECT_NO_THROW(RequireSizesWithinReach(boxes.form, page)) << text;
    }
    for (const char* text : {"1.000001e9", "-1.000001e9", "1e300"}) {
        FormOnBoxes boxes{"5", "0", text};
        try {
            RequireSizesWithinReach(boxes.form, page);
            ADD_FAILURE() << text;
        } catch (const ArithmeticError& error) {
            EXPECT_STREQ(error.what(), "Length 2 is above a thousand million");
        }
    }
}

}  // namespace
}  // namespace korvet
