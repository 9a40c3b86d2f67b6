// What sizes must still give that pass every check: each requirement on both sides of its limit.
#include "fittings/makeable.h"

#include <gtest/gtest.h>

#include <array>

#include "core/checked.h"
#include "tests/support/form_on_boxes.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

TEST(Makeable, NeedsAWall) {
    EXPECT_THROW(RequireWall(0), ArithmeticError);
    EXPECT_NO_THROW(RequireWall(1e-9));
}

constexpr std::array<BoxEntry, 2> TwoBoxes = {{{0, "Length 1", "10"}, {2, "Length 2", "20"}}};

TEST(Makeable, HasNoSizeAboveTheLargest) {
    for (const char* text : {"1e9", "-1e9", "0"}) {
        FormOnBoxes boxes{"5", "1e30", text};  // the one between is not on the page
        EXPECT_NO_THROW(RequireWithinReach(boxes.form, TwoBoxes)) << text;
    }
    for (const char* text : {"1.000001e9", "-1.000001e9", "1e300"}) {
        FormOnBoxes boxes{"5", "0", text};
        try {
            RequireWithinReach(boxes.form, TwoBoxes);
            ADD_FAILURE() << text;
        } catch (const ArithmeticError& error) {
            EXPECT_STREQ(error.what(), "Length 2 is above a thousand million");
        }
    }
}

TEST(Makeable, HasNoPointBeyondTheLargest) {
    for (double C3DPoint::*coordinate : {&C3DPoint::x, &C3DPoint::y, &C3DPoint::z}) {
        for (PointList CRuleSurf::*list : {&CRuleSurf::List1, &CRuleSurf::List2, &CRuleSurf::List3,
                                           &CRuleSurf::LapList1, &CRuleSurf::LapList2}) {
            for (const double value : {1e9, -1e9, 1.000001e9, -1.000001e9}) {
                C3DPoint point;
                point.*coordinate = value;
                CRuleSurfs surfaces;
                surfaces.Add(Strip({{}}, {{}}));
                (surfaces.Add(Strip({{}}, {{}})).*list) = ListOf({{}, point});
                if (value == 1e9 || value == -1e9) {
                    EXPECT_NO_THROW(RequireWithinReach(surfaces));
                } else {
                    EXPECT_THROW(RequireWithinReach(surfaces), ArithmeticError);
                }
            }
        }
    }
}

}  // namespace
}  // namespace korvet
