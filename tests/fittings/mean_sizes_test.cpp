// Mean sizes of walls 6 thick, by hand: half of it towards the mean line, or the whole across two walls.
#include "fittings/mean_sizes.h"

#include <gtest/gtest.h>

#include "core/math_module.h"
#include "tests/support/form_on_boxes.h"
#include "tests/support/near.h"
#include "tests/support/refusals.h"

namespace korvet {
namespace {

/// Box 0 holds 200, box 1 holds 40.
FittingForm& SizesFrom(FormOnBoxes& boxes, std::int16_t side) {
    boxes.settings.Thickness = 6;
    boxes.settings.InOutMean = side;
    return boxes.form;
}

TEST(MeanSizes, InsideSizesGrowToTheMeanLine) {
    FormOnBoxes boxes({"200", "40"});
    const FittingForm& form = SizesFrom(boxes, InsideDimension);
    EXPECT_EQ(MeanRadiusOfDiameter(form, 0), 103);
    EXPECT_EQ(MeanRadiusOfDiameter(form, 1), 23);
    EXPECT_EQ(MeanRadius(form, 0), 203);
    EXPECT_EQ(MeanRadius(form, 1), 43);
    EXPECT_EQ(MeanLength(form, 0), 206);
    EXPECT_EQ(MeanConeRadius(form, 0, 0), 103);
    // 3 cos 60 = 1.5
    EXPECT_NEAR(MeanConeRadius(form, 0, DegToRad(60)), 101.5, Near);
}

TEST(MeanSizes, OutsideSizesShrinkToTheMeanLine) {
    FormOnBoxes boxes({"200", "40"});
    const FittingForm& form = SizesFrom(boxes, OutsideDimension);
    EXPECT_EQ(MeanRadiusOfDiameter(form, 0), 97);
    EXPECT_EQ(MeanRadius(form, 1), 37);
    EXPECT_EQ(MeanLength(form, 0), 194);
    EXPECT_EQ(MeanConeRadius(form, 0, 0), 97);
    EXPECT_NEAR(MeanConeRadius(form, 0, DegToRad(60)), 98.5, Near);
}

TEST(MeanSizes, MeanSizesStayAsTheyAre) {
    FormOnBoxes boxes({"200", "40"});
    const FittingForm& form = SizesFrom(boxes, MeanDimension);
    EXPECT_EQ(MeanRadiusOfDiameter(form, 0), 100);
    EXPECT_EQ(MeanRadiusOfDiameter(form, 0, 10), 100);
    EXPECT_EQ(MeanRadius(form, 1), 40);
    EXPECT_EQ(MeanLength(form, 0), 200);
    EXPECT_EQ(MeanConeRadius(form, 0, DegToRad(60)), 100);
}

TEST(MeanSizes, AWallMayHaveAThicknessOfItsOwn) {
    FormOnBoxes boxes({"200", "40"});
    EXPECT_EQ(MeanRadiusOfDiameter(SizesFrom(boxes, InsideDimension), 0, 10), 105);
    EXPECT_EQ(MeanRadiusOfDiameter(SizesFrom(boxes, OutsideDimension), 1, 10), 15);
}

TEST(MeanSizes, ARoundWallNeedsRoomForHalfItsThickness) {
    FormOnBoxes boxes({"200", "40"});
    FittingForm& form = SizesFrom(boxes, OutsideDimension);
    EXPECT_EQ(CheckRoundWall(form, 1, 3), Passed);
    EXPECT_EQ(boxes.Refusal(1), "");
    EXPECT_EQ(CheckRoundWall(form, 1, 2.999), Refused);
    EXPECT_EQ(boxes.Refusal(1), NoRoom);
}

TEST(MeanSizes, TheWallOfAConeNeedsLessRoomTheMoreItLeans) {
    FormOnBoxes boxes({"200", "40"});
    FittingForm& form = SizesFrom(boxes, OutsideDimension);
    EXPECT_EQ(CheckConeWall(form, 0, 3, 0), Passed);
    EXPECT_EQ(CheckConeWall(form, 0, 1.501, DegToRad(60)), Passed);
    EXPECT_EQ(boxes.Refusal(0), "");
    EXPECT_EQ(CheckConeWall(form, 0, 2.999, 0), Refused);
    EXPECT_EQ(boxes.Refusal(0), NoRoom);
    EXPECT_EQ(CheckConeWall(form, 1, 1.499, DegToRad(60)), Refused);
    EXPECT_EQ(boxes.Refusal(1), NoRoom);
}

}  // namespace
}  // namespace korvet
