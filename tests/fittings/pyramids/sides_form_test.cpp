// The number of sides of a fitting of equal sides.
#include "fittings/pyramids/sides_form.h"

#include "core/checked.h"
#include "tests/support/form_on_boxes.h"
#include "tests/support/refusals.h"

namespace korvet::sides_form_test {
namespace {

TEST(Sides, AreAWholeNumberFromThreeOn) {
    for (const auto& [text, refusal] : {std::pair<const char*, std::string>{"3", ""},
                                        {"3.0", ""},
                                        {"2", AtLeast + "3"},
                                        {"-6", AtLeast + "3"},
                                        {"2.5", WholeNumber},
                                        {"6.001", WholeNumber}}) {
        FormOnBoxes on({text});
        EXPECT_EQ(sides::CheckSides(on.form, 0), refusal.empty() ? Passed : Refused) << text;
        EXPECT_EQ(on.Refusal(0), refusal) << text;
    }
}

TEST(Sides, AreNoMoreThanAFileHolds) {
    FormOnBoxes on({"32767", "32768", "1e300"});
    EXPECT_EQ(sides::SidesOf(on.form, 0), 32767);
    EXPECT_THROW(sides::SidesOf(on.form, 1), ArithmeticError);
    EXPECT_THROW(sides::SidesOf(on.form, 2), ArithmeticError);
}

}  // namespace
}  // namespace korvet::sides_form_test
