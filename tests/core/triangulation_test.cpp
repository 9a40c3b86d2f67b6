// The unfolding of a strip: hand-worked quadrilaterals, and the lengths that hold in the flat.
#include "core/triangulation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <utility>

#include "core/constants.h"
#include "core/math_module.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

void ExpectAt(const C3DPoint& point, double x, double y) {
    EXPECT_NEAR(point.x, x, Near);
    EXPECT_NEAR(point.y, y, Near);
    EXPECT_EQ(point.z, 0);
}

/// Rulings of length 5, 10 apart, at a slope in space.
CRuleSurf FlatRectangle() {
    return Strip({{0, 0, 0, 1}, {8, 0, 6, 4}}, {{0, 5, 0, 5}, {8, 5, 6, 0}});
}

/// A quadrilateral that does not lie in a plane: its fourth corner is lifted by 1.
CRuleSurf Warped() {
    return Strip({{0, 0, 0, 0}, {2, 0, 0, 0}}, {{0, 1, 0, 0}, {2, 0, 1, 0}});
}

TEST(Triangulation, ARectangleUnfoldsToItselfClockwiseFromTheFirstRuling) {
    const CRuleSurf flat = Unfolded(Strip({{0, 0, 0, 0}, {10, 0, 0, 0}}, {{0, 5, 0, 0}, {10, 5, 0, 0}}));
    ASSERT_EQ(flat.List1->Count(), 2U);
    ASSERT_EQ(flat.List2->Count(), 2U);
    ExpectAt(flat.List1->Item(2), 0, 0);
    ExpectAt(flat.List2->Item(2), 5, 0);
    ExpectAt(flat.List1->Item(1), 0, -10);
    ExpectAt(flat.List2->Item(1), 5, -10);
}

TEST(Triangulation, UnfoldsToTheSameSideHoweverTheModelLies) {
    const CRuleSurf mirrored = Unfolded(Strip({{0, 0, 0, 0}, {-8, 0, 6, 0}}, {{0, 5, 0, 0}, {-8, 5, 6, 0}}));
    ExpectAt(mirrored.List1->Item(1), 0, -10);
    ExpectAt(mirrored.List2->Item(1), 5, -10);
}

TEST(Triangulation, StationsComeInTheReverseOrderWithTheirFlags) {
    const CRuleSurf flat = Unfolded(FlatRectangle());
    EXPECT_EQ(flat.List1->Item(1).Flag, 4);
    EXPECT_EQ(flat.List1->Item(2).Flag, 1);
    EXPECT_EQ(flat.List2->Item(1).Flag, 0);
    EXPECT_EQ(flat.List2->Item(2).Flag, 5);
}

TEST(Triangulation, MovesWithTheBasePointWhichTakesTheFirstFlag) {
    CTriangulation triangulation;
    triangulation.ModelSurface = FlatRectangle();
    triangulation.BasePoint = C3DPoint{100, 20, 0, 8};
    triangulation.DevelopSurface();
    ExpectAt(triangulation.Pattern.List1->Item(2), 100, 20);
    ExpectAt(triangulation.Pattern.List2->Item(1), 105, 10);
    EXPECT_EQ(triangulation.BasePoint->Flag, 1);
}

TEST(Triangulation, HalfPatternMakesNoDifference) {
    CTriangulation triangulation;
    triangulation.ModelSurface = FlatRectangle();
    triangulation.HalfPattern = true;
    triangulation.DevelopSurface();
    const CRuleSurf whole = Unfolded(FlatRectangle());
    EXPECT_TRUE(SamePoints(*triangulation.Pattern.List1, *whole.List1));
    EXPECT_TRUE(SamePoints(*triangulation.Pattern.List2, *whole.List2));
}

TEST(Triangulation, LeavesTheModelAlone) {
    const CRuleSurf model = FlatRectangle();
    const CRuleSurf flat = Unfolded(model);
    EXPECT_TRUE(SamePoints(*model.List1, *FlatRectangle().List1));
    EXPECT_TRUE(SamePoints(*model.List2, *FlatRectangle().List2));
    EXPECT_FALSE(flat.RefPoint);
    EXPECT_FALSE(flat.List3);
    EXPECT_FALSE(flat.LapList1);
}

TEST(Triangulation, AWarpedStationKeepsItsRulingsAndLetsTheSecondEdgeGo) {
    // ab 1, ac 2, bc = ad = sqrt 5, bd sqrt 6, cd 1: both angles at a are right, so c and d lie on one ray
    // down from a and the second ruling follows it.
    const CRuleSurf flat = Unfolded(Warped());
    ExpectAt(flat.List1->Item(1), 0, -2);
    ExpectAt(flat.List2->Item(1), 0, -3);
    EXPECT_NEAR(Distance3D(flat.List2->Item(1), flat.List2->Item(2)), std::sqrt(10), Near)
        << "the square root of 6 in space";
}

TEST(Triangulation, APointedEndTurnsTheRulingByItsTriangle) {
    // The rulings spread from one point of List1: two equilateral triangles of side 4.
    const double h = 2 * std::numbers::sqrt3;
    const CRuleSurf flat = Unfolded(
        Strip({{0, 0, 0, 0}, {0, 0, 0, 0}, {0, 0, 0, 0}}, {{4, 0, 0, 0}, {2, 0, h, 0}, {-2, 0, h, 0}}));
    ExpectAt(flat.List1->Item(1), 0, 0);
    ExpectAt(flat.List2->Item(3), 4, 0);
    ExpectAt(flat.List2->Item(2), 2, -h);
    ExpectAt(flat.List2->Item(1), -2, -h);
}

TEST(Triangulation, APointOfTheSecondEdgeServesAsWell) {
    // The right triangle 3, 4, 5 with its right angle at the first point of List1.
    const CRuleSurf flat = Unfolded(Strip({{0, 0, 0, 0}, {0, 3, 0, 0}}, {{4, 0, 0, 0}, {4, 0, 0, 0}}));
    ExpectAt(flat.List1->Item(1), 0, -3);
    ExpectAt(flat.List2->Item(1), 4, 0);
}

TEST(Triangulation, ARulingWithoutLengthGoesOnInItsDirection) {
    // Station 2 closes to a point at (0, -3). A ruling without length has the direction 0, and on it c and d
    // of the next station lie, 2 and 5 away.
    const CRuleSurf flat = Unfolded(
        Strip({{0, 0, 0, 0}, {0, 3, 0, 0}, {0, 3, 2, 0}}, {{4, 0, 0, 0}, {0, 3, 0, 0}, {0, 3, 5, 0}}));
    const C3DPoint closed = flat.List1->Item(2);
    EXPECT_EQ(Distance3D(closed, flat.List2->Item(2)), 0);
    ExpectAt(closed, 0, -3);
    ExpectAt(flat.List1->Item(1), 2, -3);
    ExpectAt(flat.List2->Item(1), 5, -3);
}

TEST(Triangulation, ARulingBelowTheSnapHasNoLengthInTheFlat) {
    const CRuleSurf flat = Unfolded(Strip({{0, 0, 0, 0}, {0, 3, 0, 0}}, {{5e-9, 0, 0, 0}, {0, 3, 4, 0}}));
    EXPECT_EQ(Distance3D(flat.List1->Item(2), flat.List2->Item(2)), 0);
    ExpectAt(flat.List1->Item(1), 3, 0);
    EXPECT_NEAR(Distance3D(flat.List1->Item(1), flat.List2->Item(1)), 4, Near);
}

TEST(Triangulation, TheLastRulingHasNoLengthBelowTheSnapEither) {
    const CRuleSurf flat = Unfolded(Strip({{0, 0, 0, 0}, {3, 0, 0, 0}}, {{0, 4, 0, 0}, {3, 5e-9, 0, 0}}));
    EXPECT_EQ(Distance3D(flat.List1->Item(1), flat.List2->Item(1)), 0);
    EXPECT_NEAR(Distance3D(flat.List1->Item(2), flat.List2->Item(2)), 4, Near);
}

TEST(Triangulation, AllPointsInOnePlaceAreNoError) {
    const CRuleSurf flat = Unfolded(Strip({{1, 2, 3, 0}, {1, 2, 3, 0}}, {{1, 2, 3, 0}, {1, 2, 3, 0}}));
    ExpectAt(flat.List1->Item(1), 0, 0);
    ExpectAt(flat.List2->Item(1), 0, 0);
}

TEST(Triangulation, OneStationIsARulingAlongX) {
    const CRuleSurf flat = Unfolded(Strip({{7, 7, 7, 1}}, {{7, 10, 11, 0}}));
    ASSERT_EQ(flat.List1->Count(), 1U);
    ExpectAt(flat.List1->Item(1), 0, 0);
    ExpectAt(flat.List2->Item(1), 5, 0);
}

TEST(Triangulation, ALongerSecondEdgeIsCutOff) {
    const CRuleSurf flat =
        Unfolded(Strip({{0, 0, 0, 0}, {1, 0, 0, 0}}, {{0, 5, 0, 0}, {1, 5, 0, 0}, {2, 5, 0, 0}}));
    EXPECT_EQ(flat.List2->Count(), 2U);
}

TEST(Triangulation, AMissingOrShortEdgeIsAnError) {
    EXPECT_THROW(Unfolded(Strip({{0, 0, 0, 0}, {1, 0, 0, 0}}, {{0, 5, 0, 0}})), ListError);
    EXPECT_THROW(Unfolded(CRuleSurf()), ListError);
}

TEST(NextRuling, TurnsClockwiseByTheSidesThatItIsTold) {
    // Two triangles of 3, 4 and 5 make a rectangle of the ruling and a step of 4.
    RulingStep step = {.ab = 3, .ac = 4, .bd = 4, .ad = 5, .bc = 5};
    const FlatRuling next = NextRuling({{2, 3, 0, 0}, std::numbers::pi / 2}, step);
    ExpectAt(next.start, 6, 3);
    EXPECT_NEAR(next.direction, std::numbers::pi / 2, Near);
    // With the other diagonal shorter the next ruling leans back, towards the first one.
    step.ad = std::sqrt(13);
    step.bd = 2;
    const FlatRuling leaning = NextRuling({{2, 3, 0, 0}, std::numbers::pi / 2}, step);
    ExpectAt(leaning.start, 6, 3);
    EXPECT_NEAR(leaning.direction, std::atan2(3, -2), Near);
}

TEST(NextRuling, ARulingWithoutLengthTurnsNothing) {
    RulingStep step = {.ab = 5e-9, .ac = 4, .bd = 3, .ad = 3, .bc = 4};
    const FlatRuling next = NextRuling({{1, 0, 0, 0}, 0}, step);
    EXPECT_EQ(step.ab, 0);
    ExpectAt(next.start, 5, 0);
}

TEST(NextRuling, SidesThatDoNotCloseAreAnError) {
    RulingStep step = {.ab = 3, .ac = 9, .bd = 4, .ad = 5, .bc = 5};
    EXPECT_THROW(NextRuling({}, step), ArithmeticError);
}

/// A cylinder of the radius and height, closed, of `segs` facets.
CRuleSurf Cylinder(double radius, double height, int segs) {
    CRuleSurf surface;
    surface.List1 = std::make_shared<C3DPoints>();
    surface.List2 = std::make_shared<C3DPoints>();
    for (int i = 0; i <= segs; ++i) {
        const double a = 2 * std::numbers::pi * i / segs;
        surface.List1->Add({radius * std::cos(a), radius * std::sin(a), height, 0});
        surface.List2->Add({radius * std::cos(a), radius * std::sin(a), 0, 0});
    }
    return surface;
}

TEST(Triangulation, ACylinderUnrollsToARectangle) {
    struct Case {
        double radius;
        int segs;
    };
    for (const auto& [radius, segs] : {Case{50, 3}, Case{50, 24}, Case{50, 1000}, Case{5000, 100000}}) {
        const CRuleSurf flat = Unfolded(Cylinder(radius, 80, segs));
        const double length = 2 * radius * segs * std::sin(std::numbers::pi / segs);
        const auto last = static_cast<std::size_t>(segs) + 1;
        ASSERT_EQ(flat.List1->Count(), last);
        for (const std::size_t i : {std::size_t{1}, last / 2, last}) {
            const double run = length * static_cast<double>(last - i) / segs;
            EXPECT_NEAR(flat.List1->Item(i).x, 0, 1e-4) << segs;
            EXPECT_NEAR(flat.List1->Item(i).y, -run, 1e-4) << segs;
            EXPECT_NEAR(flat.List2->Item(i).x, 80, 1e-4) << segs;
            EXPECT_NEAR(flat.List2->Item(i).y, -run, 1e-4) << segs;
        }
    }
}

TEST(Triangulation, ANarrowStripKeepsItsWidth) {
    // Pointed strips of length 80: the cosine of their angle is not 1 at 8 decimals in the first, and is in
    // the others.
    for (const double width : {0.016, 0.004, 1e-4, 1e-6}) {
        const CRuleSurf flat =
            Unfolded(Strip({{0, 0, 0, 0}, {0, 0, 0, 0}}, {{80, -width / 2, 0, 0}, {80, width / 2, 0, 0}}));
        EXPECT_NEAR(Distance3D(flat.List2->Item(1), flat.List2->Item(2)), width, 1e-9);
    }
}

}  // namespace
}  // namespace korvet
