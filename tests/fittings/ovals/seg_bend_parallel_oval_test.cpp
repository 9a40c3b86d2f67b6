// The oval bend: neighbours meet at every station of their cut, and their patterns lie a kerf apart.
#include "fittings/ovals/seg_bend_parallel_oval.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/bends/bend_pieces.h"
#include "tests/fittings/ovals/oval_reading.h"

namespace korvet {
namespace {

CSegBendParallelOval Bend(int gores, int segs) {
    CSegBendParallelOval bend;
    bend.BaseRad = 50;
    bend.OvalCenterDistance = 90;
    bend.BendRadius = 120;
    bend.BendAngle = 1.8;
    bend.BendSegments = static_cast<std::int16_t>(gores);
    bend.Length1 = 70;
    bend.Length2 = 90;
    bend.KerfSpacing = 6;
    bend.inputs.segs = segs;
    bend.inputs.JoinAngle = 0.7;  // not read
    bend.inputs.Miscellaneous = LayOutEveryPiece;
    return bend;
}

class OvalBend : public testing::TestWithParam<std::tuple<int, int>> {
  protected:
    int gores = std::get<0>(GetParam());
    int segs = std::get<1>(GetParam());
    CSegBendParallelOval bend = Bend(gores, segs);
};

TEST_P(OvalBend, PiecesMeetAtEveryStation) {
    bend.ConstructModel();
    const CRuleSurfs& pieces = bend.results.ModelSurfaceList;
    ASSERT_EQ(pieces.Count(), static_cast<std::size_t>(gores + 1));
    for (std::size_t i = 1; i < pieces.Count(); ++i) {
        const C3DPoints& end = *pieces.Item(i).List1;
        const C3DPoints& start = *pieces.Item(i + 1).List2;
        ASSERT_EQ(end.Count(), static_cast<std::size_t>(2 * segs + 3));
        for (std::size_t k = 1; k <= end.Count(); ++k) {
            EXPECT_LT(Distance3D(end.Item(k), start.Item(k)), 1e-9 * 300) << i << ", " << k;
        }
    }
}

TEST_P(OvalBend, EndsAreSquareToTheCentreLine) {
    bend.ConstructModel();
    const CRuleSurfs& pieces = bend.results.ModelSurfaceList;
    for (const C3DPoint& point : *pieces.Item(1).List2) {
        EXPECT_NEAR(point.z, -70, 1e-9);
    }
    for (const C3DPoint& point : *pieces.Item(pieces.Count()).List1) {
        const double along = -(point.x + 120) * std::sin(1.8) + point.z * std::cos(1.8);
        EXPECT_NEAR(along, 90, 1e-7);
    }
}

TEST_P(OvalBend, NeighbouringCutsRunParallelAKerfApart) {
    bend.DevelopModel();
    const CRuleSurfs& patterns = bend.results.PatternSurfaceList;
    ASSERT_EQ(patterns.Count(), static_cast<std::size_t>(gores + 1));
    for (std::size_t i = 1; i < patterns.Count(); ++i) {
        const C3DPoints& below = *patterns.Item(i).List1;
        const C3DPoints& above = *patterns.Item(i + 1).List2;
        for (std::size_t k = 1; k <= below.Count(); ++k) {
            EXPECT_NEAR(above.Item(k).y - below.Item(k).y, 6, 1e-7);
            EXPECT_NEAR(above.Item(k).x, below.Item(k).x, 1e-9);
        }
        EXPECT_NEAR(below.Last().x, 2 * PI * 50 + 2 * 90, 1e-7);
    }
}

/// Of each pattern the seam's side alternates: the cut of the first is highest on the outside, at its seam.
/// The cut above it is the same curve a kerf higher; the ends are level.
TEST_P(OvalBend, CutsAreTheSineCurvesOfTheirMitres) {
    bend.DevelopModel();
    const CRuleSurfs& patterns = bend.results.PatternSurfaceList;
    const double rise = 50 * std::tan(0.9 / gores);
    const double h = 120 * std::tan(0.9 / gores);
    ExpectSineBetweenLevels(*patterns.Item(1).List2, {50, 90, -70, 0});
    for (std::size_t i = 1; i < patterns.Count(); ++i) {
        const double middle = h + static_cast<double>(i - 1) * (2 * h + 6);
        const double side = i % 2 == 1 ? 1 : -1;
        ExpectSineBetweenLevels(*patterns.Item(i).List1, {50, 90, middle, side * rise});
        ExpectSineBetweenLevels(*patterns.Item(i + 1).List2, {50, 90, middle + 6, side * rise});
    }
    const double top = gores * (2 * h + 6) + 90;
    ExpectSineBetweenLevels(*patterns.Item(patterns.Count()).List1, {50, 90, top, 0});
}

TEST_P(OvalBend, ShortLayoutHasOneOfEachKind) {
    bend.inputs.Miscellaneous = 2;
    bend.DevelopModel();
    EXPECT_EQ(bend.results.PatternSurfaceList.Count(), 3U);
}

INSTANTIATE_TEST_SUITE_P(PiecesAndSegments, OvalBend,
                         testing::Combine(testing::Values(1, 2, 5), testing::Values(3, 12)));

TEST(OvalBendMitre, OfHalfATurnIsNone) {
    CSegBendParallelOval bend = Bend(1, 6);
    bend.BendAngle = PI;
    EXPECT_THROW(bend.ConstructModel(), ArithmeticError);
}

}  // namespace
}  // namespace korvet
