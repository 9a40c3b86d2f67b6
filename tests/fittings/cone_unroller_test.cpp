// The cone as a wall to cut and to lay flat: against the equations of cone and plane, and the developed
// sector.
#include "fittings/cone_unroller.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/checked.h"
#include "core/math_module.h"
#include "fittings/ring.h"
#include "tests/support/near.h"

namespace korvet {
namespace {

/// 60 wide and 80 high: the slant height is 100.
Cone Wall() {
    return {60, 80, std::atan(0.75)};
}

/// The distance from the axis at which the wall stands at a height.
double RadiusAt(double z) {
    return 60 - 0.75 * z;
}

TEST(Cone, PointsAtASlantLieOnTheWallAtThatDistanceFromTheApex) {
    EXPECT_EQ(ApexOf(Wall()).z, 80);
    for (const Station& station : ClosedRing(-1, 24)) {
        for (const double slant : {0.0, 12.5, 100.0, 130.0}) {
            const C3DPoint point = PointAtSlant(Wall(), station.angle, slant);
            EXPECT_NEAR(Distance3D(ApexOf(Wall()), point), slant, Near);
            EXPECT_NEAR(std::hypot(point.x, point.y), RadiusAt(point.z), Near);
            EXPECT_NEAR(point.x * std::sin(station.angle), point.y * std::cos(station.angle), Near);
            EXPECT_EQ(point.Flag, PlainStation);
        }
    }
}

TEST(Cone, PointsOnAPlaneLieOnBoth) {
    for (const double degrees : {-35.0, 0.0, 20.0, 50.0}) {
        const CutPlane plane = {DegToRad(degrees), 30};
        for (const Station& station : ClosedRing(0.2, 17)) {
            const C3DPoint point = PointOnPlane(Wall(), station.angle, plane);
            EXPECT_NEAR(std::hypot(point.x, point.y), RadiusAt(point.z), Near);
            EXPECT_NEAR(point.z, 30 - point.x * std::tan(plane.tilt), Near) << "falls towards +x";
        }
    }
}

TEST(Cone, ALevelPlaneIsOneSlantAllRound) {
    for (const Station& station : ClosedRing(0, 12)) {
        EXPECT_NEAR(SlantToPlane(Wall(), station.angle, {0, 0}), 100, Near);
        EXPECT_NEAR(SlantToPlane(Wall(), station.angle, {0, 60}), 25, Near);
    }
}

TEST(Cone, WithoutHeightThereIsNoSlant) {
    EXPECT_THROW(SlantToPlane({60, 0, QuarterTurn}, 0, {0, 10}), ArithmeticError);
}

TEST(ConeUnroller, AWholeTurnIsTheSectorOfTheSlantHeight) {
    ConeUnroller unroller(Wall());
    EXPECT_EQ(unroller.FlatAngle(0), 0);
    EXPECT_NEAR(unroller.FlatAngle(FullTurn), 0.6 * FullTurn, Near) << "2 PI r / s";
    EXPECT_NEAR(unroller.FlatAngle(-1), -0.6, Near);
}

TEST(ConeUnroller, AnglesOfAnEdgeRunOnPastTheTurn) {
    ConeUnroller unroller(Wall());
    double before = 0;
    int turns = 0;
    for (const Station& station : Ring(2, 1, 20)) {
        const double planAngle = PlanAngle({}, PolarPoint({}, station.angle, 60));
        turns += planAngle < std::fmod(station.angle - 1, FullTurn) ? 1 : 0;
        const double flat = unroller.NextFlatAngle(planAngle);
        EXPECT_NEAR(flat, 0.6 * station.angle, 1e-8);
        EXPECT_GT(flat, before);
        before = flat;
    }
    EXPECT_GE(turns, 3) << "the plan angle itself starts anew three times";
    EXPECT_NEAR(unroller.FlatAngle(1), 0.6, Near) << "single points know nothing of the walk";
}

TEST(ConeUnroller, PointsComeToLieAtTheirSlant) {
    const ConeUnroller unroller(Wall());
    C3DPoint point = PointAtSlant(Wall(), 1.25, 37);
    point.Flag = CornerRuleStation;
    EXPECT_NEAR(unroller.Slant(point), 37, Near);
    const C3DPoint flat = unroller.Flat(point, unroller.FlatAngle(1.25));
    EXPECT_NEAR(flat.x, 37 * std::cos(0.75), Near);
    EXPECT_NEAR(flat.y, 37 * std::sin(0.75), Near);
    EXPECT_EQ(flat.z, 0);
    EXPECT_EQ(flat.Flag, CornerRuleStation);
}

TEST(ConeUnroller, NeighboursKeepTheirDistanceAsTheStepsGrowSmall) {
    // Two points of a hole, at other heights and 0.001 apart in angle: the flat chord is the one in space.
    const ConeUnroller unroller(Wall());
    const C3DPoint a = PointAtSlant(Wall(), 0.5, 60);
    const C3DPoint b = PointAtSlant(Wall(), 0.501, 60.02);
    const double flat =
        Distance3D(unroller.Flat(a, unroller.FlatAngle(0.5)), unroller.Flat(b, unroller.FlatAngle(0.501)));
    EXPECT_NEAR(flat, Distance3D(a, b), 1e-8);
}

TEST(ConeUnroller, APointIsNoCone) {
    EXPECT_THROW(ConeUnroller({0, 0, 0}).NextFlatAngle(1), ArithmeticError);
}

}  // namespace
}  // namespace korvet
