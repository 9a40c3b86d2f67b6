// The prism against its own geometry: corners on their circle, ends in their planes, true heights, the arc in
// the place of the flat side.
#include "fittings/pyramids/prism.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <tuple>
#include <vector>

#include "core/math_module.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet::prism_test {
namespace {

constexpr double R = 130;
constexpr double H = 320;

CPrism Prism(int sides, std::int16_t dtype = 2) {
    CPrism prism;
    prism.BaseRad = R;
    prism.CPHeight1 = H;
    prism.NoOfSides = static_cast<std::int16_t>(sides);
    prism.inputs.Dtype = dtype;
    return prism;
}

CPrism Developed(CPrism prism) {
    prism.DevelopModel();
    return prism;
}

const C3DPoints& Top(const CPrism& prism) {
    return *prism.results.ModelSurface.List1;
}
const C3DPoints& Base(const CPrism& prism) {
    return *prism.results.ModelSurface.List2;
}

/// Sides, place of the seam.
class Prisms : public testing::TestWithParam<std::tuple<int, double>> {
  protected:
    Prisms() {
        const auto [sides, seam] = GetParam();
        CPrism prism = Prism(sides);
        prism.CPAngle1 = -0.5;
        prism.CPAngle2 = -0.3;
        prism.inputs.JoinAngle = seam;
        prism_ = Developed(prism);
        corners_ = static_cast<std::size_t>(sides) + 1;
    }

    CPrism prism_;
    std::size_t corners_;
};

TEST_P(Prisms, CornersStandOnACircleFromTheSeamOn) {
    const auto [sides, seam] = GetParam();
    for (const C3DPoints* list : {&Top(prism_), &Base(prism_)}) {
        ASSERT_EQ(list->Count(), corners_);
        for (std::size_t i = 1; i <= corners_; ++i) {
            const double angle = seam + static_cast<double>(i - 1) * 2 * std::numbers::pi / sides;
            EXPECT_NEAR(list->Item(i).x, R * std::cos(angle), Near);
            EXPECT_NEAR(list->Item(i).y, R * std::sin(angle), Near);
            EXPECT_EQ(list->Item(i).Flag, CornerRuleStation);
        }
    }
}

/// The top falls towards +x, the bottom rises.
TEST_P(Prisms, EndsLieInTheirPlanes) {
    for (const C3DPoint& corner : Top(prism_)) {
        EXPECT_NEAR(corner.z, H - std::tan(0.5) * corner.x, Near);
    }
    for (const C3DPoint& corner : Base(prism_)) {
        EXPECT_NEAR(corner.z, std::tan(0.3) * corner.x, Near);
    }
}

TEST_P(Prisms, PatternHasTheHeightsOfTheModel) {
    const CRuleSurf& pattern = prism_.results.PatternSurface;
    ASSERT_EQ(pattern.List1->Count(), corners_);
    for (std::size_t i = 1; i <= corners_; ++i) {
        EXPECT_EQ(pattern.List1->Item(i).y, Top(prism_).Item(i).z);
        EXPECT_EQ(pattern.List2->Item(i).y, Base(prism_).Item(i).z);
        EXPECT_EQ(pattern.List1->Item(i).x, pattern.List2->Item(i).x);
        EXPECT_EQ(pattern.List1->Item(i).Flag, CornerRuleStation);
        EXPECT_EQ(pattern.List2->Item(i).Flag, CornerRuleStation);
        EXPECT_EQ(pattern.List1->Item(i).z, 0);
    }
    EXPECT_FALSE(pattern.RefPoint);
}

/// On purpose the arc, for the flat side's own width: the whole is the circumference of the circle.
TEST_P(Prisms, PatternHasTheWidthOfTheArcs) {
    const int sides = std::get<0>(GetParam());
    const C3DPoints& top = *prism_.results.PatternSurface.List1;
    for (std::size_t i = 1; i <= corners_; ++i) {
        EXPECT_NEAR(top.Item(i).x, static_cast<double>(i - 1) * 2 * std::numbers::pi * R / sides, Near);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Prisms,
                         testing::Combine(testing::Values(3, 4, 5, 8, 37),
                                          testing::Values(0.0, std::numbers::pi / 4, -2.0)));

/// A flat side is a chord: the pattern is too wide for it by an amount that falls with the square of the
/// number of sides.
TEST(PrismPattern, IsALittleWiderThanItsFlatSides) {
    const auto excess = [](int sides) {
        const CPrism prism = Developed(Prism(sides));
        return prism.results.PatternSurface.List1->Item(2).x /
                   Distance3D(Base(prism).Item(1), Base(prism).Item(2)) -
               1;
    };
    EXPECT_NEAR(excess(4), std::numbers::pi / std::sqrt(8) - 1, Near);
    EXPECT_NEAR(excess(8) / excess(16), 4, 0.1);
    EXPECT_NEAR(excess(200) / excess(400), 4, 0.01);
}

TEST(PrismPattern, OfALevelBaseHasAStraightEdge) {
    CPrism prism = Prism(6);
    prism.CPAngle1 = 0.4;
    prism.DevelopModel();
    for (const C3DPoint& corner : *prism.results.PatternSurface.List2) {
        EXPECT_EQ(corner.y, 0);
    }
}

TEST(PrismPattern, TakesAllLaps) {
    CPrism prism = Prism(6);
    prism.inputs.JoinType = 1;
    prism.inputs.LapSize0 = 12;
    prism.inputs.LapSize1 = 15;
    prism.inputs.LapSize2 = 18;
    prism.DevelopModel();
    const CRuleSurf& lapped = prism.results.PatternSurface;
    ASSERT_EQ(lapped.List1->Count(), 8U);
    EXPECT_NEAR(lapped.List1->Item(3).y, H + 12, Near);
    EXPECT_NEAR(lapped.List2->Item(3).y, -18, Near);
    EXPECT_NEAR(lapped.LapList2->Item(3).y, 0, Near);
    EXPECT_NEAR(lapped.List1->Item(8).x, 2 * std::numbers::pi * R + 15, Near);
    EXPECT_EQ(Base(prism).Count(), 7U);
}

// ------------------------------------------------------------------------------------ two planes at the top

/// Both planes fall from the axis: the second one by 0.7 towards +x, the first one by 0.4 the other way.
CPrism TwoPlanes(int sides) {
    CPrism prism = Prism(sides, TwoPlaneTop);
    prism.CPAngle3 = 0.7;
    prism.CPAngle1 = 0.4;
    prism.ConstructModel();
    return prism;
}

/// For each top corner the number of its plane, 2 or 1; 0 where both have the same height, on the axis.
std::vector<int> PlanesOf(const CPrism& prism) {
    std::vector<int> planes;
    for (const C3DPoint& corner : Top(prism)) {
        const bool second = std::fabs(corner.z - (H - std::tan(0.7) * corner.x)) < Near;
        const bool first = std::fabs(corner.z - (H + std::tan(0.4) * corner.x)) < Near;
        EXPECT_TRUE(first || second);
        planes.push_back(first && second ? 0 : first ? 1 : 2);
    }
    return planes;
}

TEST(PrismTwoPlanes, MakeARoofOverANumberOfSidesThatDividesByFour) {
    EXPECT_EQ(PlanesOf(TwoPlanes(4)), (std::vector<int>{2, 0, 1, 0, 2}));
    EXPECT_EQ(PlanesOf(TwoPlanes(8)), (std::vector<int>{2, 2, 0, 1, 1, 1, 0, 2, 2}));
    EXPECT_EQ(PlanesOf(TwoPlanes(12)), (std::vector<int>{2, 2, 2, 0, 1, 1, 1, 1, 1, 0, 2, 2, 2}));
}

/// On purpose: a corner takes its plane by its number, wherever it stands.
TEST(PrismTwoPlanes, AreChosenByTheNumberOfTheCorner) {
    EXPECT_EQ(PlanesOf(TwoPlanes(3)), (std::vector<int>{1, 1, 2, 2}));
    EXPECT_EQ(PlanesOf(TwoPlanes(5)), (std::vector<int>{2, 1, 1, 2, 2, 2}));
    EXPECT_EQ(PlanesOf(TwoPlanes(6)), (std::vector<int>{2, 1, 1, 1, 2, 2, 2}));
    CPrism turned = TwoPlanes(8);
    turned.inputs.JoinAngle = std::numbers::pi / 8;
    turned.ConstructModel();
    EXPECT_EQ(PlanesOf(turned), (std::vector<int>{2, 2, 1, 1, 1, 1, 2, 2, 2}));
}

TEST(PrismTwoPlanes, AreThereOnlyInTheirType) {
    CPrism prism = Prism(8, 1);
    prism.CPAngle3 = 0.7;
    prism.ConstructModel();
    for (const C3DPoint& corner : Top(prism)) {
        EXPECT_EQ(corner.z, H);
    }
}

TEST(PrismModel, HasNoHalf) {
    CPrism prism = Prism(6);
    prism.inputs.HalfPattern = true;
    prism.DevelopModel();
    EXPECT_EQ(prism.results.warnings, (std::vector<FittingWarning>{{HalfPatternNotApplicable, true}}));
    EXPECT_FALSE(prism.inputs.HalfPattern);
    EXPECT_EQ(prism.results.PatternSurface.List1->Count(), 7U);
}

}  // namespace
}  // namespace korvet::prism_test
