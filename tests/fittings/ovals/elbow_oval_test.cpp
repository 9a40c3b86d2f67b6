// The oval elbow: both pieces meet along the mitre, whose plane halves the angle between them, and their
// patterns share one cut.
#include "fittings/ovals/elbow_oval.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>

#include "core/constants.h"
#include "core/math_module.h"
#include "tests/fittings/ovals/oval_reading.h"

namespace korvet {
namespace {

CElbowOval Elbow(int segs, double degrees) {
    CElbowOval elbow;
    elbow.BaseRad = 50;
    elbow.OvalCenterDistance = 90;
    elbow.BendAngle = DegToRad(degrees);
    elbow.Length1 = 400;
    elbow.Length2 = 330;
    elbow.KerfSpacing = 6;
    elbow.inputs.segs = segs;
    return elbow;
}

/// Whether every point of an edge has its like on another, to 1e-9 of the size.
bool IsPartOf(const C3DPoints& edge, const C3DPoints& other) {
    return std::all_of(edge.begin(), edge.end(), [&](const C3DPoint& point) {
        return std::any_of(other.begin(), other.end(),
                           [&](const C3DPoint& like) { return Distance3D(point, like) < 1e-9 * 400; });
    });
}

class OvalElbow : public testing::TestWithParam<std::tuple<int, double>> {
  protected:
    int segs = std::get<0>(GetParam());
    double angle = DegToRad(std::get<1>(GetParam()));
    CElbowOval elbow = Elbow(segs, std::get<1>(GetParam()));
};

/// The pieces run round the mitre in opposite ways.
TEST_P(OvalElbow, PiecesMeetAtEveryStation) {
    elbow.ConstructModel();
    const C3DPoints& first = *elbow.results.ModelSurfaceList.Item(1).List1;
    const C3DPoints& second = *elbow.results.ModelSurfaceList.Item(2).List1;
    ASSERT_EQ(first.Count(), static_cast<std::size_t>(2 * segs + 3));
    EXPECT_TRUE(IsPartOf(first, second));
    EXPECT_TRUE(IsPartOf(second, first));
}

TEST_P(OvalElbow, FirstPieceKeepsTheSeamOfTheBuildBefore) {
    elbow.inputs.JoinAngle = 0.6;
    for (const double seam : {0.0, 0.6}) {
        elbow.ConstructModel();
        EXPECT_NEAR(elbow.results.ModelSurfaceList.Item(1).List2->Item(1).x, 50 * std::cos(seam), 1e-9);
    }
}

TEST_P(OvalElbow, MitreHalvesTheAngle) {
    elbow.ConstructModel();
    const double tilt = (PI - angle) / 2;
    for (const C3DPoint& point : *elbow.results.ModelSurfaceList.Item(1).List1) {
        EXPECT_NEAR(point.z, -std::tan(tilt) * point.x, 1e-7);
    }
    // The square end of the second piece, 330 from the corner in its direction.
    for (const C3DPoint& point : *elbow.results.ModelSurfaceList.Item(2).List2) {
        EXPECT_NEAR(point.x * std::sin(angle) - point.z * std::cos(angle), 330, 1e-7);
    }
}

TEST_P(OvalElbow, PatternsShareOneCut) {
    elbow.inputs.JoinAngle = 0.3;
    elbow.DevelopModel();
    ASSERT_EQ(elbow.results.PatternSurfaceList.Count(), 2U);
    const CRuleSurf& below = elbow.results.PatternSurfaceList.Item(1);
    const CRuleSurf& above = elbow.results.PatternSurfaceList.Item(2);
    const double rise = 50 * std::tan((PI - angle) / 2);
    EXPECT_NEAR(below.List1->Item(1).y, -rise * std::cos(0.3), 1e-7);
    for (std::size_t k = 1; k <= below.List1->Count(); ++k) {
        EXPECT_NEAR(above.List2->Item(k).y - below.List1->Item(k).y, 6, 1e-7);
        EXPECT_NEAR(below.List2->Item(k).y, -400, 1e-9);
        EXPECT_NEAR(above.List1->Item(k).y, 336, 1e-9);
    }
    EXPECT_NEAR(below.List1->Last().x, 2 * PI * 50 + 2 * 90, 1e-7);
}

/// Cut open on the inside of the bend, the first piece is lowest at its seam.
TEST_P(OvalElbow, CutsAreTheSineCurveOfTheMitre) {
    elbow.DevelopModel();
    const CRuleSurf& below = elbow.results.PatternSurfaceList.Item(1);
    const CRuleSurf& above = elbow.results.PatternSurfaceList.Item(2);
    const double rise = 50 * std::tan((PI - angle) / 2);
    ExpectSineBetweenLevels(*below.List1, {50, 90, 0, -rise});
    ExpectSineBetweenLevels(*below.List2, {50, 90, -400, 0});
    ExpectSineBetweenLevels(*above.List2, {50, 90, 6, -rise});
    ExpectSineBetweenLevels(*above.List1, {50, 90, 336, 0});
}

INSTANTIATE_TEST_SUITE_P(SegmentsAndAngles, OvalElbow,
                         testing::Combine(testing::Values(3, 12), testing::Values(40.0, 90.0, 145.0)));

TEST(OvalElbowShape, TakesALengthBelowTheDiameter) {
    CElbowOval elbow = Elbow(6, 90);
    elbow.OvalCenterDistance = -30;
    elbow.DevelopModel();
    EXPECT_NEAR(elbow.results.PatternSurfaceList.Item(1).List1->Last().x, 2 * PI * 50 - 60, 1e-7);
}

}  // namespace
}  // namespace korvet
