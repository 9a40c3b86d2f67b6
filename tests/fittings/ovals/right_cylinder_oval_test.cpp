// The oval pipe against its section: every point a radius from the line between the two centres, cuts in
// their planes, and a stretch-out that is a sine curve over the half circles and level over the straight
// sides.
#include "fittings/ovals/right_cylinder_oval.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/pipes/right_cylinder.h"
#include "tests/fittings/ovals/oval_reading.h"
#include "tests/support/near.h"

namespace korvet {
namespace {

constexpr double OvalRadius = 40;
constexpr double Straight = 130;

CRightCylinderOval Oval(int segs) {
    CRightCylinderOval pipe;
    pipe.BaseRad = OvalRadius;
    pipe.OvalCenterDistance = Straight;
    pipe.CPHeight1 = 150;
    pipe.CPAngle1 = 0.4;
    pipe.CPHeight2 = -20;
    pipe.CPAngle2 = -0.2;
    pipe.inputs.segs = segs;
    return pipe;
}

/// Distance from the line between the centres of the half circles, in the plan.
double DistanceFromMiddle(const C3DPoint& point) {
    return std::hypot(point.x, std::max(0.0, std::abs(point.y) - Straight / 2));
}

double TriangleArea(const C3DPoint& a, const C3DPoint& b, const C3DPoint& c) {
    const double ab = Distance3D(a, b);
    const double bc = Distance3D(b, c);
    const double ca = Distance3D(c, a);
    const double s = (ab + bc + ca) / 2;
    return std::sqrt(std::max(0.0, s * (s - ab) * (s - bc) * (s - ca)));
}

double AreaOf(const CRuleSurf& strip) {
    double area = 0;
    for (std::size_t i = 1; i < strip.List1->Count(); ++i) {
        area += TriangleArea(strip.List1->Item(i), strip.List2->Item(i), strip.List1->Item(i + 1)) +
                TriangleArea(strip.List2->Item(i), strip.List2->Item(i + 1), strip.List1->Item(i + 1));
    }
    return area;
}

class OvalPipe : public testing::TestWithParam<int> {
  protected:
    CRightCylinderOval pipe = Oval(GetParam());
    std::size_t segs = static_cast<std::size_t>(GetParam());
};

TEST_P(OvalPipe, RunsRoundItsSection) {
    pipe.ConstructModel();
    for (const PointList& edge : {pipe.results.ModelSurface.List1, pipe.results.ModelSurface.List2}) {
        ASSERT_EQ(edge->Count(), 2 * segs + 3);
        for (const C3DPoint& point : *edge) {
            EXPECT_NEAR(DistanceFromMiddle(point), OvalRadius, Near);
        }
        // The ends of a straight side have one station, and so one flag.
        const C3DPoint& before = edge->Item(segs + 1);
        const C3DPoint& behind = edge->Item(segs + 2);
        EXPECT_NEAR(before.x, behind.x, Near);
        EXPECT_NEAR(before.y - behind.y, Straight, Near);
        EXPECT_EQ(before.Flag, behind.Flag);
        const C3DPoint& last = edge->Item(2 * segs + 3);
        EXPECT_EQ(Distance3D(last, edge->Item(1)), 0);
        EXPECT_EQ(last.Flag, edge->Item(1).Flag);
    }
}

TEST_P(OvalPipe, IsCutByItsPlanes) {
    pipe.ConstructModel();
    for (const C3DPoint& point : *pipe.results.ModelSurface.List1) {
        EXPECT_NEAR(point.z, 150 + std::tan(0.4) * point.x, 1e-7);
    }
    for (const C3DPoint& point : *pipe.results.ModelSurface.List2) {
        EXPECT_NEAR(point.z, -20 + std::tan(0.2) * point.x, 1e-7);
    }
}

TEST_P(OvalPipe, StretchesOutToASineCurveBetweenLevels) {
    pipe.DevelopModel();
    const C3DPoints& cut = *pipe.results.PatternSurface.List1;
    ExpectSineBetweenLevels(cut, {OvalRadius, Straight, 150, OvalRadius * std::tan(0.4)});
    ExpectSineBetweenLevels(*pipe.results.PatternSurface.List2,
                            {OvalRadius, Straight, -20, OvalRadius * std::tan(0.2)});
    EXPECT_EQ(cut.Last().Flag, cut.Item(2 * segs + 2).Flag);
}

INSTANTIATE_TEST_SUITE_P(OddAndEven, OvalPipe, testing::Values(1, 2, 7, 12, 25));

TEST(OvalPipePattern, HasTheAreaOfTheWall) {
    const auto error = [](int segs) {
        CRightCylinderOval pipe = Oval(segs);
        pipe.DevelopModel();
        return AreaOf(pipe.results.PatternSurface) / AreaOf(pipe.results.ModelSurface) - 1;
    };
    EXPECT_LT(std::abs(error(48)), 1e-3);
    EXPECT_NEAR(error(24) / error(48), 4, 0.1);  // what the chords leave out
}

TEST(OvalPipePattern, OfARoundSectionIsThatOfARoundPipe) {
    CRightCylinderOval oval = Oval(12);
    oval.OvalCenterDistance = 0;
    oval.DevelopModel();
    CRightCylinder round;
    round.BaseRad = OvalRadius;
    round.CPHeight1 = 150;
    round.CPAngle1 = 0.4;
    round.CPHeight2 = -20;
    round.CPAngle2 = -0.2;
    round.inputs.segs = 12;
    round.DevelopModel();
    const C3DPoints& cut = *oval.results.PatternSurface.List1;
    for (std::size_t i = 1; i <= 13; ++i) {
        EXPECT_LT(Distance3D(cut.Item(i), round.results.PatternSurface.List1->Item(i)), 1e-7);
        EXPECT_LT(Distance3D(cut.Item(i + 13), round.results.PatternSurface.List1->Item(i + 12)), 1e-7);
    }
}

TEST(OvalPipePattern, TakesItsLaps) {
    CRightCylinderOval pipe = Oval(6);
    pipe.inputs.JoinType = 1;
    pipe.inputs.LapSize1 = 8;
    pipe.DevelopModel();
    const C3DPoints& cut = *pipe.results.PatternSurface.List1;
    EXPECT_EQ(cut.Count(), 16U);
    EXPECT_EQ(cut.Last().Flag, LapClosure);
    EXPECT_NEAR(cut.Last().x - cut.Item(15).x, 8, Near);
}

TEST(OvalPipePattern, HasNoHalf) {
    CRightCylinderOval pipe = Oval(6);
    pipe.inputs.HalfPattern = true;
    EXPECT_THROW(pipe.DevelopModel(), ListError);
}

}  // namespace
}  // namespace korvet
