// Points in polar form, and the dimension lines that can be told with them.
#include "sketch/sketch_points.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "core/checked.h"
#include "core/math_module.h"
#include "fittings/windows.h"
#include "sketch/sample_model.h"
#include "sketch/sketch_layout.h"
#include "tests/sketch/solid_reading.h"

namespace korvet {
namespace {

using std::numbers::sqrt3;

void ExpectAt(const C3DPoint& point, double x, double y, double z) {
    EXPECT_NEAR(point.x, x, 1e-9);
    EXPECT_NEAR(point.y, y, 1e-9);
    EXPECT_NEAR(point.z, z, 1e-9);
}

C3DPoint OfNoModel(const SketchPoint& point) {
    return SketchPointInSpace({}, point);
}

TEST(SketchStep, LeadsInTheElevationFromXUpward) {
    ExpectAt(OfNoModel(PolarXZ({}, 30, 200)), 100 * sqrt3, 0, 100);
    ExpectAt(OfNoModel(PolarXZ({}, 120, 200)), -100, 0, 100 * sqrt3);
    ExpectAt(OfNoModel(PolarXZ(AtXZ(-400, 5), 60, 400)), -200, 0, 200 * sqrt3 + 5);
    ExpectAt(OfNoModel(PolarXZ({.dy = 7}, -90, 10)), 0, 7, -10);
}

TEST(SketchStep, LeadsOnThePlanFromXTowardsY) {
    ExpectAt(OfNoModel(PolarXY({}, -60, 100)), 50, -50 * sqrt3, 0);
    ExpectAt(OfNoModel(PolarXY(AtXZ(1, 2), 135, 10 * std::numbers::sqrt2)), -9, 10, 2);
}

TEST(SketchStep, RisesInItsBearing) {
    ExpectAt(OfNoModel({.step = {.length = 2, .rise = 30, .bearing = 90}}), 0, sqrt3, 1);
}

TEST(SketchStep, ASlopeIsAsLongAsItsRunTakes) {
    ExpectAt(OfNoModel(SlopeXZ(AtXZ(-150, 0), 60, 150)), 0, 0, 150 * sqrt3);
    ExpectAt(OfNoModel(SlopeXZ(AtXZ(150, 0), 120, 150)), 0, 0, 150 * sqrt3);
    ExpectAt(OfNoModel(SlopeXZ(AtXZ(0, 100), -45, 30)), 30, 0, 70);
}

TEST(SketchPoints, AStationIsFoundByItsNumber) {
    const CRuleSurfs model =
        Model({Strip({{1, 2, 3}}, {{4, 5, 6}, {7, 8, 9}}), Strip({{10, 11, 12}, {13, 14, 15}}, {{0, 0, 0}})});
    ExpectAt(SketchPointInSpace(model, StationOf(2, 1)), 4, 5, 6);
    ExpectAt(SketchPointInSpace(model, StationOf(2, 2)), 7, 8, 9);
    ExpectAt(SketchPointInSpace(model, OfSurface(2, StationOf(1, 2))), 13, 14, 15);
    EXPECT_THROW(SketchPointInSpace(model, StationOf(2, 0)), ListError);
    EXPECT_THROW(SketchPointInSpace(model, StationOf(2, 3)), ListError);
    EXPECT_THROW(SketchPointInSpace(model, OfSurface(3, StationOf(1, 1))), ListError);
}

// What sketches of other fittings will say, said of shapes that stand: each line must end where the shape,
// which knows nothing of it, has its own point.

TEST(SketchPoints, ALengthAlongATiltedAxisEndsWhereTheAxesCross) {
    // A branch of 280 at 60 degrees, 15 before the trunk's axis.
    const CRuleSurfs branch = SampleModel(frmBranch, 1);
    const C3DPoint crossing = SketchPointInSpace(branch, PolarXZ(MiddleOf(1), 150, 280));
    EXPECT_NEAR(crossing.x, 0, 1e-9);
    EXPECT_NEAR(crossing.y, -15, 1e-9);
    const C3DPoint end = SketchPointInSpace(branch, MiddleOf(1));
    EXPECT_NEAR(Distance3D(crossing, end), 280, 1e-9);
}

TEST(SketchPoints, AnAngleBetweenAxesHasItsRays) {
    // The last piece of a bend of 60 degrees ends 120 beyond the arc of 400 about (-400, 0).
    const CRuleSurfs bend = SampleModel(frmSegBendParallel, 1);
    const C3DPoint arcEnd = SketchPointInSpace(bend, PolarXZ(AtXZ(-400, 0), 60, 400));
    const C3DPoint end = SketchPointInSpace(bend, OfSurface(4, MiddleOf(1)));
    const double sine = sqrt3 / 2;
    ExpectAt(end, arcEnd.x - 120 * sine, 0, arcEnd.z + 60);
    // And on the plan: the base of a pipe that is turned by 60 degrees has its lowest and highest points
    // there.
    const CRuleSurfs pipe = SampleModel(frmRightCylinder, 4);
    const C3DPoint turned = SketchPointInSpace(pipe, PolarXY({}, -60, 100));
    const C3DPoint low = SketchPointInSpace(pipe, SpotOf(2, Spot::MinZ));
    const C3DPoint high = SketchPointInSpace(pipe, SpotOf(2, Spot::MaxZ));
    EXPECT_NEAR(std::fabs(turned.x * low.y - turned.y * low.x), 0, 1e-6);
    EXPECT_NEAR(std::fabs(turned.x * high.y - turned.y * high.x), 0, 1e-6);
}

TEST(SketchPoints, TheRadiusOfACornerPointsAtIt) {
    // A base of 300 by 200 with corners of 50.
    const CRuleSurfs transition = SampleModel(frmRectRound2, 0);
    for (const double angle : {0.0, 45.0, 90.0}) {
        const C3DPoint onCorner = SketchPointInSpace(transition, PolarXY({.dx = 100, .dy = 50}, angle, 50));
        double nearest = 1e9;
        for (const C3DPoint& station : *transition.Item(1).List2) {
            nearest = std::min(nearest, Distance3D(onCorner, station));
        }
        EXPECT_LT(nearest, 2.5) << angle;  // half a step of the corner's stations
    }
}

TEST(SketchPoints, ADiameterBetweenStations) {
    const CRuleSurfs cone = SampleModel(frmRightCone1, 1);
    const auto count = static_cast<int>(cone.Item(1).List2->Count());
    const C3DPoint seam = SketchPointInSpace(cone, StationOf(2, 1));
    const C3DPoint opposite = SketchPointInSpace(cone, StationOf(2, (count + 1) / 2));
    EXPECT_NEAR(Distance3D(seam, opposite), 300, 1e-9);
}

TEST(SketchPoints, TheWallsOfAConeMeetAtItsApex) {
    // 300 wide at the base, 120 wide 250 above.
    const CRuleSurfs cone = SampleModel(frmRightCone1, 1);
    const double angle = std::atan2(250, 90) * 180 / std::numbers::pi;
    const C3DPoint apex = SketchPointInSpace(cone, SlopeXZ(SpotOf(2, Spot::MinX), angle, 150));
    ExpectAt(apex, 0, 0, 150 * 250.0 / 90);
}

TEST(SketchPoints, APageIsDrawnFromSteps) {
    WindowTable table = frmSegBendParallel;
    std::vector<PageEntry> pages(table.pages.begin(), table.pages.end());
    std::vector<BoxEntry> boxes(pages[1].boxes.begin(), pages[1].boxes.end());
    const SketchPoint end = OfSurface(4, MiddleOf(1));
    boxes[0].dimension = AngleSize(Side::Left, AtXZ(-400, 0), end, PolarXZ(AtXZ(-400, 0), 60, 400));
    boxes[1].dimension = CountNote(Side::Above);
    pages[1].boxes = boxes;
    table.pages = pages;
    const PageSketch sketch = MakePageSketch(table, 1);
    EXPECT_NEAR(sketch.dimensions[0].b.x, -200, 1e-9);
    EXPECT_NEAR(sketch.dimensions[0].b.y, 200 * sqrt3, 1e-9);
    EXPECT_TRUE(sketch.dimensions[0].aDrawn);
    EXPECT_FALSE(sketch.dimensions[0].bDrawn);  // the shape shows no line to there
    EXPECT_EQ(sketch.dimensions[1].kind, DimensionKind::Note);
}

}  // namespace
}  // namespace korvet
