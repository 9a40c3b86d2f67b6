#include "core/math_module.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "core/checked.h"
#include "core/constants.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

constexpr C3DPoint Origin = {0, 0, 0, 0};

C3DPoint At(double x, double y, double z = 0) {
    return {x, y, z, 0};
}

TEST(Constants, ArePatternMakersDigitsAndNotTheNearestDoubles) {
    EXPECT_EQ(std::bit_cast<std::uint64_t>(PI) & 0xFFFFU, 0x2D11U);
    EXPECT_NE(PI, std::acos(-1.0));
    EXPECT_EQ(PI, 3.14159265358979);
    EXPECT_EQ(QuarterTurn, 1.570796326794895);
    EXPECT_EQ(ThreeQuarterTurns, 4.712388980384685);
    EXPECT_EQ(FullTurn, 6.28318530717958);
    EXPECT_EQ(ClosingLimit, 6.28319530717958);
}

TEST(PolarPoint, StaysInThePlaneOfItsStartAndDropsTheFlag) {
    const C3DPoint point = PolarPoint({1, 2, 7, CornerRuleStation}, std::atan2(4.0, 3.0), 5);
    EXPECT_NEAR(point.x, 4, 1e-14);
    EXPECT_NEAR(point.y, 6, 1e-14);
    EXPECT_EQ(point.z, 7);
    EXPECT_EQ(point.Flag, 0);
}

TEST(PolarPoint, ANegativeDistanceGoesBackwards) {
    const C3DPoint point = PolarPoint(Origin, 0, -2);
    EXPECT_TRUE(Same(point, At(-2, 0)));
}

TEST(PolarPoint2D, GoesFromTheCentre) {
    const Point2D point = PolarPoint2D({10, 20}, 0, 3);
    EXPECT_EQ(point.u, 13);
    EXPECT_EQ(point.v, 20);
}

TEST(Degrees, UseTheLiteralOfPi) {
    EXPECT_EQ(DegToRad(180), PI);
    EXPECT_EQ(RadToDeg(PI), 180);
    EXPECT_EQ(DegToRad(0), 0);
    EXPECT_EQ(DegToRad(-90), -QuarterTurn);
    EXPECT_NE(DegToRad(180), std::acos(-1.0));
}

TEST(Distance, InSpaceAndInTheFlat) {
    EXPECT_EQ(Distance3D(At(1, 2, 3), At(3, 5, 9)), 7);
    EXPECT_EQ(Distance3D(At(1, 2, 3), At(1, 2, 3)), 0);
    EXPECT_EQ(Distance2D({1, 1}, {4, 5}), 5);
}

TEST(AbsValue, TurnsNegativeValues) {
    EXPECT_EQ(AbsValue(-2.5), 2.5);
    EXPECT_EQ(AbsValue(2.5), 2.5);
    EXPECT_EQ(AbsValue(0), 0);
}

TEST(PlanAngle, OfCoincidentPointsIsZero) {
    EXPECT_EQ(PlanAngle(At(3, 4, 0), At(3, 4, 99)), 0);
}

TEST(PlanAngle, OnTheAxesGivesTheLiterals) {
    EXPECT_EQ(PlanAngle(Origin, At(1, 0)), 0);
    EXPECT_EQ(PlanAngle(Origin, At(0, 1)), 1.570796326794895);
    EXPECT_EQ(PlanAngle(Origin, At(-1, 0)), 3.14159265358979);
    EXPECT_EQ(PlanAngle(Origin, At(0, -1)), 4.712388980384685);
}

TEST(PlanAngle, InTheFourQuadrants) {
    const double eighth = std::atan(1.0);
    EXPECT_EQ(PlanAngle(Origin, At(1, 1)), eighth);
    EXPECT_EQ(PlanAngle(Origin, At(-1, 1)), PI - eighth);
    EXPECT_EQ(PlanAngle(Origin, At(-1, -1)), PI + eighth);
    EXPECT_EQ(PlanAngle(Origin, At(1, -1)), 6.28318530717958 - eighth);
    EXPECT_GT(PlanAngle(Origin, At(1, -1)), 5);
}

TEST(PlanAngle, HasNoToleranceAtTheAxes) {
    EXPECT_GT(PlanAngle(Origin, At(1e-300, 1)), 0);
    EXPECT_NE(PlanAngle(Origin, At(1e-10, 1)), QuarterTurn);
    EXPECT_GT(PlanAngle(Origin, At(1, -1e-9)), 6);
}

TEST(PlanAngle, IsNeverNegativeAllRound) {
    for (int degree = -720; degree <= 720; ++degree) {
        const double t = DegToRad(degree);
        const double angle = PlanAngle(At(5, -3), PolarPoint(At(5, -3), t, 2));
        EXPECT_GE(angle, 0) << degree;
        EXPECT_LE(angle, FullTurn) << degree;
        EXPECT_NEAR(std::cos(angle), std::cos(t), 1e-12) << degree;
        EXPECT_NEAR(std::sin(angle), std::sin(t), 1e-12) << degree;
    }
}

TEST(PlanAngle, IgnoresZ) {
    EXPECT_EQ(PlanAngle(At(0, 0, 5), At(1, 1, -8)), std::atan(1.0));
}

TEST(PlanAngle2D, IsTheSameOnPairs) {
    EXPECT_EQ(PlanAngle2D({1, 1}, {1, 1}), 0);
    EXPECT_EQ(PlanAngle2D({0, 0}, {-1, 0}), PI);
    EXPECT_EQ(PlanAngle2D({2, 2}, {2, 0}), ThreeQuarterTurns);
    EXPECT_EQ(PlanAngle2D({0, 0}, {1, -1}), FullTurn - std::atan(1.0));
}

TEST(ArcCos, TakesInARoundingBeyondOne) {
    EXPECT_EQ(ArcCos(1), 0);
    EXPECT_EQ(ArcCos(1.000000001), 0);
    EXPECT_EQ(ArcCos(1.0000000049), 0);
    EXPECT_EQ(ArcCos(-1), PI);
    EXPECT_EQ(ArcCos(-1.000000001), PI);
    EXPECT_EQ(ArcCos(-1.0000000049), PI);
}

TEST(ArcCos, SnapsFromBelowToo) {
    EXPECT_EQ(ArcCos(0.999999996), 0);
    EXPECT_EQ(ArcCos(-0.999999996), PI);
    EXPECT_NEAR(ArcCos(0.99999999), std::acos(0.99999999), 1e-12);
    EXPECT_GT(ArcCos(0.99999999), 1e-4);
}

TEST(ArcCos, FailsBeyondItsBand) {
    EXPECT_THROW(ArcCos(1.00000001), ArithmeticError);
    EXPECT_THROW(ArcCos(-1.00000001), ArithmeticError);
    EXPECT_THROW(ArcCos(2), ArithmeticError);
    EXPECT_THROW(ArcCos(std::numeric_limits<double>::quiet_NaN()), ArithmeticError);
    EXPECT_THROW(ArcCos(std::numeric_limits<double>::infinity()), ArithmeticError);
}

TEST(ArcCos, InTheMiddle) {
    EXPECT_NEAR(ArcCos(0.5), std::acos(0.5), 1e-15);
    EXPECT_NEAR(ArcCos(0), std::acos(0.0), 1e-15);
    EXPECT_NEAR(ArcCos(-0.5), std::acos(-0.5), 1e-15);
}

TEST(ArcSin, OnlyExactOnesAreTakenIn) {
    EXPECT_EQ(ArcSin(1), 1.570796326794895);
    EXPECT_EQ(ArcSin(-1), -1.570796326794895);
    EXPECT_THROW(ArcSin(1.000000001), ArithmeticError);
    EXPECT_THROW(ArcSin(-1.000000001), ArithmeticError);
    EXPECT_THROW(ArcSin(std::nextafter(1.0, 2.0)), ArithmeticError);
}

TEST(ArcSin, InTheMiddle) {
    EXPECT_EQ(ArcSin(0), 0);
    EXPECT_NEAR(ArcSin(0.5), std::asin(0.5), 1e-15);
    EXPECT_NEAR(ArcSin(-0.8), std::asin(-0.8), 1e-15);
}

TEST(TriangleAngle, OfTheThreeFourFiveTriangle) {
    double a = 5;
    double b = 3;
    double c = 4;
    EXPECT_NEAR(TriangleAngle(a, b, c), std::acos(0.0), 1e-15);
    EXPECT_NEAR(TriangleAngle(b, a, c), std::asin(0.6), 1e-15);
    EXPECT_NEAR(TriangleAngle(c, a, b), std::asin(0.8), 1e-15);
    EXPECT_EQ(a, 5);
    EXPECT_EQ(b, 3);
    EXPECT_EQ(c, 4);
}

TEST(TriangleAngle, OfAFlatTriangleIsZeroOrPi) {
    double a = 3;
    double b = 1;
    double c = 2;
    EXPECT_EQ(TriangleAngle(a, b, c), PI);
    EXPECT_EQ(TriangleAngle(b, a, c), 0);
}

TEST(TriangleAngle, ATinySideBecomesZeroForTheCallerToo) {
    double a = 5e-09;
    double b = 1;
    double c = 1;
    EXPECT_EQ(TriangleAngle(a, b, c), 0);
    EXPECT_EQ(a, 0);

    double d = -5e-09;
    EXPECT_EQ(TriangleAngle(b, d, c), 0);
    EXPECT_EQ(d, 0);

    double e = 5e-09;
    EXPECT_EQ(TriangleAngle(b, c, e), 0);
    EXPECT_EQ(e, 0);
    EXPECT_EQ(b, 1);
    EXPECT_EQ(c, 1);
}

TEST(TriangleAngle, TheLimitIsComparedInSinglePrecision) {
    // The single nearest to 1e-08 lies below it, so a side of exactly 1e-08 still snaps.
    double atLimit = 1e-08;
    double b = 1;
    double c = 1;
    EXPECT_EQ(TriangleAngle(atLimit, b, c), 0);
    EXPECT_EQ(atLimit, 0);

    double above = 1.0001e-08;
    TriangleAngle(above, b, c);
    EXPECT_EQ(above, 1.0001e-08);
}

TEST(TriangleAngle, SidesThatCannotCloseAreAnError) {
    double a = 10;
    double b = 1;
    double c = 2;
    EXPECT_THROW(TriangleAngle(a, b, c), ArithmeticError);
}

double UnfoldingAngleOf(double a, double b, double c) {
    return UnfoldingAngle(a, b, c);
}

double TriangleAngleOf(double a, double b, double c) {
    return TriangleAngle(a, b, c);
}

TEST(UnfoldingAngle, IsTheTriangleAngleToTheLastDigitWhereItsCosineTellsIt) {
    for (double angle = 2e-4; angle < 3.1413; angle += 0.0037) {
        const double a = std::sqrt(9 + 16 - 24 * std::cos(angle));
        EXPECT_EQ(UnfoldingAngleOf(a, 3, 4), TriangleAngleOf(a, 3, 4)) << angle;
    }
}

TEST(UnfoldingAngle, OfAnIsoscelesTriangleHoweverNarrow) {
    // The base of a triangle with two sides of 1500 is 3000 sin(A / 2).
    for (const double base : {0.1, 0.01, 1e-4, 1e-6, 1e-7}) {
        EXPECT_NEAR(UnfoldingAngleOf(base, 1500, 1500), 2 * std::asin(base / 3000), 5e-16) << base;
    }
    EXPECT_EQ(TriangleAngleOf(0.1, 1500, 1500), 0) << "which counts as closed in its own way";
}

TEST(UnfoldingAngle, OfAnAlmostStraightTriangle) {
    // The far side of two sides of 1 falls short of 2 by 1 - cos(A / 2 from straight).
    const double bend = 1e-5;
    EXPECT_NEAR(UnfoldingAngleOf(2 * std::cos(bend / 2), 1, 1), PI - bend, 1e-9);
    EXPECT_EQ(TriangleAngleOf(2 * std::cos(bend / 2), 1, 1), PI);
}

TEST(UnfoldingAngle, ATriangleThatIsClosedFlatIsExactlyThat) {
    EXPECT_EQ(UnfoldingAngleOf(3, 1, 2), PI);
    EXPECT_EQ(UnfoldingAngleOf(3 - 2e-12, 1, 2), PI) << "within 1e-12 of the perimeter";
    EXPECT_LT(UnfoldingAngleOf(3 - 1e-11, 1, 2), PI);
    EXPECT_EQ(UnfoldingAngleOf(3 + 1e-9, 1, 2), PI) << "open, but within the rounding of the cosine";
    EXPECT_EQ(UnfoldingAngleOf(1, 3, 2), 0);
    EXPECT_EQ(UnfoldingAngleOf(1, 2, 3), 0);
    EXPECT_EQ(UnfoldingAngleOf(1 - 1e-9, 3, 2), 0);
    EXPECT_EQ(UnfoldingAngleOf(1 + 2e-12, 3, 2), 0);
    EXPECT_GT(UnfoldingAngleOf(1 + 1e-11, 3, 2), 0);
}

TEST(UnfoldingAngle, SidesSnapAsInTheTriangleAngle) {
    double a = 5e-09;
    double b = 1;
    double c = 1;
    EXPECT_EQ(UnfoldingAngle(a, b, c), 0);
    EXPECT_EQ(a, 0);
    EXPECT_EQ(UnfoldingAngleOf(1, 0, 1), 0);
    EXPECT_EQ(UnfoldingAngleOf(1, 1, 0), 0);
}

TEST(UnfoldingAngle, SidesThatCannotCloseAreAnError) {
    EXPECT_THROW(UnfoldingAngleOf(10, 1, 2), ArithmeticError);
    EXPECT_THROW(UnfoldingAngleOf(1, 10, 2), ArithmeticError);
    try {
        UnfoldingAngleOf(1.01, 2, 3.02);
        FAIL() << "it was closed";
    } catch (const ArithmeticError& error) {
        EXPECT_STREQ(error.what(), "the triangles of the pattern do not close");
    }
}

TEST(RightTriangle, HypotenuseAndLeg) {
    EXPECT_EQ(Hypotenuse(3, 4), 5);
    EXPECT_EQ(Hypotenuse(0, -2), 2);
    EXPECT_EQ(OtherLeg(3, 5), 4);
    EXPECT_EQ(OtherLeg(5, 5), 0);
    EXPECT_THROW(OtherLeg(5.0001, 5), ArithmeticError);
}

TEST(Inters, FindsTheCrossingOfTwoRays) {
    // From (4, 0) straight up and from (0, 0) along y = x.
    const Crossing crossing = Inters(At(1, 1), Origin, At(4, 1), At(4, 0));
    ASSERT_TRUE(crossing.point);
    EXPECT_NEAR(crossing.point->x, 4, 1e-12);
    EXPECT_NEAR(crossing.point->y, 4, 1e-12);
    EXPECT_EQ(crossing.point->Flag, 0);
    EXPECT_FALSE(crossing.zPresent);
}

TEST(Inters, TheLengthOfTheGivenRaysDoesNotMatter) {
    const Crossing near = Inters(At(0.01, 0.02), Origin, At(9.97, 0.01), At(10, 0));
    const Crossing far = Inters(At(100, 200), Origin, At(-20, 10), At(10, 0));
    // y = 2 x and y = (10 - x) / 3: x = 10 / 7.
    ASSERT_TRUE(near.point);
    ASSERT_TRUE(far.point);
    EXPECT_NEAR(near.point->x, 10.0 / 7, 1e-9);
    EXPECT_NEAR(near.point->y, 20.0 / 7, 1e-9);
    EXPECT_NEAR(far.point->x, 10.0 / 7, 1e-9);
    EXPECT_NEAR(far.point->y, 20.0 / 7, 1e-9);
}

TEST(Inters, RaysThatPartHaveNoCrossing) {
    EXPECT_FALSE(Inters(At(-1, 1), Origin, At(5, 1), At(4, 0)).point);
    // Angles that add up to PI exactly are already too much.
    EXPECT_FALSE(Inters(At(-1, 0), Origin, At(3, 0), At(4, 0)).point);
}

TEST(Inters, ReportsPointsOutsideThePlanAndGoesOn) {
    const Crossing crossing = Inters(At(1, 1, 2), At(0, 0, 2), At(4, 1, 2), At(4, 0, 2));
    EXPECT_TRUE(crossing.zPresent);
    ASSERT_TRUE(crossing.point);
    EXPECT_NEAR(crossing.point->x, 4, 1e-12);
    EXPECT_NEAR(crossing.point->y, 4, 1e-12);

    EXPECT_TRUE(Inters(At(1, 1, 1), Origin, At(4, 1), At(4, 0)).zPresent);
    EXPECT_TRUE(Inters(At(1, 1), At(0, 0, 1), At(4, 1), At(4, 0)).zPresent);
    EXPECT_TRUE(Inters(At(1, 1), Origin, At(4, 1, 1), At(4, 0)).zPresent);
    EXPECT_TRUE(Inters(At(1, 1), Origin, At(4, 1), At(4, 0, 1)).zPresent);
    EXPECT_STREQ(IntersZWarning, "Error in MathModule:Inters 'Z value present'");
}

TEST(MidPoint, IsTheMeanInSpaceWithoutAFlag) {
    const C3DPoint middle = MidPoint({1, 2, 3, 5}, {3, -2, 9, 5});
    EXPECT_TRUE(Same(middle, At(2, 0, 6)));
}

TEST(EllipseRadius, ReachesTheEdgeOfTheEllipse) {
    for (int degree = 0; degree < 360; degree += 7) {
        const double t = DegToRad(degree);
        const double r = EllipseRadius(10, 4, t);
        const double x = r * std::cos(t) / 10;
        const double y = r * std::sin(t) / 4;
        EXPECT_NEAR(x * x + y * y, 1, 1e-9) << degree;
        EXPECT_GT(r, 0) << degree;
    }
}

TEST(EllipseRadius, OnTheAxes) {
    EXPECT_EQ(EllipseRadius(10, 4, 0), 10);
    EXPECT_NEAR(EllipseRadius(10, 4, PI), 10, 1e-12);
    EXPECT_EQ(EllipseRadius(10, 4, PI / 2), 4);
    EXPECT_EQ(EllipseRadius(10, 4, QuarterTurn), 4);
    EXPECT_EQ(EllipseRadius(10, 4, ThreeQuarterTurns), 4);
    EXPECT_EQ(EllipseRadius(10, -4, QuarterTurn), 4);
}

TEST(EllipseRadius, TheBandAtTheQuarterTurnsIsOpen) {
    // 1e-08 beside the long axis of an ellipse that is 1e-08 wide the edge is at 1 / sqrt(2).
    constexpr double Width = 1e-08;
    EXPECT_EQ(EllipseRadius(Width, 1, std::nextafter(1.570796316794895, 2)), 1);
    EXPECT_EQ(EllipseRadius(Width, 1, std::nextafter(1.570796336794895, 1)), 1);
    EXPECT_EQ(EllipseRadius(Width, 1, std::nextafter(4.712388970384685, 5)), 1);
    EXPECT_EQ(EllipseRadius(Width, 1, std::nextafter(4.712388990384685, 4)), 1);
    for (const double limit : {1.570796316794895, 1.570796336794895, 4.712388970384685, 4.712388990384685}) {
        EXPECT_NEAR(EllipseRadius(Width, 1, limit), std::sqrt(0.5), 1e-6) << limit;
    }
}

TEST(EllipseRadius, ADegenerateEllipseHasNone) {
    EXPECT_EQ(EllipseRadius(0, 4, 1), 0);
    EXPECT_EQ(EllipseRadius(10, 0, 1), 0);
    EXPECT_EQ(EllipseRadius(0, 4, QuarterTurn), 0);
}

}  // namespace
}  // namespace korvet
