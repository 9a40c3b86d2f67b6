// What a build sees of its window.
#include "form/fitting_form.h"

#include <gtest/gtest.h>

#include "core/checked.h"
#include "tests/support/form_on_boxes.h"

namespace korvet {
namespace {

constexpr std::string_view Patterns[] = {"Trunk", "Branch"};

/// A window with two axes and two patterns to choose, none of them chosen.
struct FormWithChoices : FormOnBoxes {
    explicit FormWithChoices(std::initializer_list<std::string> texts) : FormOnBoxes(texts) {
        for (OptionGroup* group : {&choices.optTopAngle, &choices.optBaseAngle, &choices.optPatternSelect}) {
            group->captions.assign(std::begin(Patterns), std::end(Patterns));
        }
    }
};

TEST(FittingForm, AddressesItsBoxesByIndex) {
    FormOnBoxes boxes({"10", "0", "-3", "word"});
    FittingForm& form = boxes.form;
    boxes.settings.Thickness = 2;
    boxes.settings.InOutMean = InsideDimension;
    EXPECT_EQ(form.Value(0), 10);
    EXPECT_THROW(static_cast<void>(form.Value(3)), ArithmeticError);
    EXPECT_EQ(form.Compensator(RoundWall).NewDistance(form.Value(0), 0, 0), 11);
    EXPECT_EQ(form.Compensator(RoundWall, 6).NewDistance(form.Value(0), 0, 0), 13);

    EXPECT_EQ(form.CheckPositive(0), Passed);
    EXPECT_EQ(form.CheckAllPositive(0, 2, 1), Refused);
    EXPECT_EQ(boxes.Refusal(2), "This dimension must be greater than 0") << "the first in the order given";
    EXPECT_EQ(form.CheckNumber(3), Refused);
    EXPECT_EQ(boxes.Refusal(3), "Not a valid number");
    EXPECT_EQ(form.CheckNumber(2), Passed);
}

TEST(FittingForm, AnAngleNeedsItsOwnAxis) {
    FormWithChoices boxes({"5", "0"});
    boxes.focus = "btnRedraw";
    EXPECT_EQ(boxes.form.CheckAxes(0, 1), Refused);
    EXPECT_EQ(boxes.ui.Texts(), std::vector<std::string>{"X or Y axis of rotation must be selected"});
    EXPECT_EQ(boxes.focus, "btnRedraw") << "no box is at fault";
    boxes.choices.optTopAngle.selected = 0;
    EXPECT_EQ(boxes.form.CheckAxes(0, 1), Passed);
    EXPECT_EQ(boxes.form.CheckAxes(1, 0), Refused) << "the base has none";
}

TEST(FittingForm, APatternIsAskedForInAPatternViewAlone) {
    FormWithChoices boxes({});
    EXPECT_EQ(boxes.form.CheckPatternSelected(), Passed) << "a view of the model";
    FittingForm pattern({boxes.ui, boxes.options, '.', boxes.focus},
                        {boxes.boxes, boxes.settings, boxes.choices, boxes.branch, "Test", 0, 0, true});
    EXPECT_EQ(pattern.CheckPatternSelected(), Refused);
    EXPECT_EQ(boxes.ui.Texts(), std::vector<std::string>{"A pattern must be selected"});
    boxes.choices.optPatternSelect.selected = 1;
    EXPECT_EQ(pattern.CheckPatternSelected(), Passed);
    boxes.choices.optPatternSelect = {};
    EXPECT_EQ(pattern.CheckPatternSelected(), Passed) << "there is none to select";
}

TEST(FittingForm, ARefusedHalfPatternIsTakenOutOfTheSettings) {
    FormOnBoxes boxes({});
    boxes.settings.HalfPattern = true;
    boxes.form.RefuseHalfPattern();
    EXPECT_EQ(boxes.ui.Texts(), std::vector<std::string>{"Half pattern not applicable to this item"});
    EXPECT_EQ(boxes.ui.messages[0].title, "User Error");
    EXPECT_FALSE(boxes.settings.HalfPattern);
}

}  // namespace
}  // namespace korvet
