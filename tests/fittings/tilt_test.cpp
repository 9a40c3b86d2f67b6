// Limits of tilts from triangles that everybody knows.
#include "fittings/tilt.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/form_on_boxes.h"
#include "tests/support/near.h"

namespace korvet {
namespace {

TEST(TiltLimit, IsTheSlopeFromTheLowerEnd) {
    EXPECT_NEAR(TiltLimit(70, 70), 45, Near);
    EXPECT_NEAR(TiltLimit(5, 5 * std::sqrt(3.0)), 30, Near);
    EXPECT_NEAR(TiltLimit(5 * std::sqrt(3.0), 5), 60, Near);
    EXPECT_NEAR(TiltLimit(0, 5), 0, Near);
    EXPECT_NEAR(TiltLimit(5, 0), 90, Near);
    EXPECT_NEAR(TiltLimit(5, -0.0), 90, Near) << "as it may be typed";
    EXPECT_NEAR(TiltLimit(5, -5), -45, Near);
}

TEST(CheckTiltWithin, LimitsThemselvesAreRefused) {
    FormOnBoxes boxes({"-90", "20", "-89.9", "19.9"});
    EXPECT_EQ(CheckTiltWithin(boxes.form, 0, -90, 20), Refused);
    EXPECT_EQ(boxes.Refusal(0), "This dimension must be greater than -90");
    EXPECT_EQ(CheckTiltWithin(boxes.form, 1, -90, 20), Refused);
    EXPECT_EQ(boxes.Refusal(1), "This dimension must be less than 20");
    EXPECT_EQ(CheckTiltWithin(boxes.form, 2, -90, 20), Passed);
    EXPECT_EQ(CheckTiltWithin(boxes.form, 3, -90, 20), Passed);
    EXPECT_EQ(boxes.Refusal(3), "");
}

TEST(CheckTiltWithin, LowerLimitComesFirst) {
    FormOnBoxes boxes({"10"});
    EXPECT_EQ(CheckTiltWithin(boxes.form, 0, 15, 5), Refused);
    EXPECT_EQ(boxes.Refusal(0), "This dimension must be greater than 15");
}

TEST(CheckPlaneTilt, IsTheSameToEitherSide) {
    FormOnBoxes boxes({"-45.1", "45.1", "-44.9", "44.9"});
    EXPECT_EQ(CheckPlaneTilt(boxes.form, 0, 70, 70), Refused);
    EXPECT_EQ(boxes.Refusal(0), "This dimension must be greater than -45");
    EXPECT_EQ(CheckPlaneTilt(boxes.form, 1, 70, 70), Refused);
    EXPECT_EQ(boxes.Refusal(1), "This dimension must be less than 45");
    EXPECT_EQ(CheckPlaneTilt(boxes.form, 2, 70, 70), Passed);
    EXPECT_EQ(CheckPlaneTilt(boxes.form, 3, 70, 70), Passed);
    EXPECT_EQ(boxes.Refusal(3), "");
}

}  // namespace
}  // namespace korvet
