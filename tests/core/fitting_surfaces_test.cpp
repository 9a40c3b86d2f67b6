#include "core/fitting_surfaces.h"

#include <gtest/gtest.h>

#include "tests/support/canned_fitting.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

CRuleSurf StripOf(double length) {
    return Strip({{0, 0, 0, 1}, {length, 0, 0, 1}}, {{0, 1, 0, 1}, {length, 1, 0, 1}});
}

double LengthOf(const CRuleSurf& surface) {
    return surface.List1->Item(2).x;
}

class MakeSurfacesTest : public testing::Test {
  protected:
    std::shared_ptr<CannedFitting> fitting = std::make_shared<CannedFitting>();
    FittingHandle handle{fitting};
};

TEST_F(MakeSurfacesTest, OneOperationMakesWhatIsWanted) {
    fitting->canned.ModelSurface = StripOf(1);
    fitting->canned.PatternSurface = StripOf(2);
    const CRuleSurfs model = MakeSurfaces(handle, FittingShape::Model, false);
    EXPECT_EQ(fitting->constructed, 1);
    EXPECT_EQ(fitting->developed, 0);
    ASSERT_EQ(model.Count(), 1U);
    EXPECT_EQ(LengthOf(model.Item(1)), 1);
    const CRuleSurfs pattern = MakeSurfaces(handle, FittingShape::Pattern, false);
    EXPECT_EQ(fitting->constructed, 1);
    EXPECT_EQ(fitting->developed, 1);
    ASSERT_EQ(pattern.Count(), 1U);
    EXPECT_EQ(LengthOf(pattern.Item(1)), 2);
}

TEST_F(MakeSurfacesTest, AFittingOfManyPiecesGivesItsList) {
    fitting->canned.ModelSurface = fitting->canned.PatternSurface = StripOf(1);
    fitting->canned.ModelSurfaceList.Add(StripOf(3));
    fitting->canned.PatternSurfaceList.Add(StripOf(4));
    fitting->canned.PatternSurfaceList.Add(StripOf(5));
    EXPECT_EQ(LengthOf(MakeSurfaces(handle, FittingShape::Model, true).Item(1)), 3);
    const CRuleSurfs pattern = MakeSurfaces(handle, FittingShape::Pattern, true);
    ASSERT_EQ(pattern.Count(), 2U);
    EXPECT_EQ(LengthOf(pattern.Item(2)), 5);
}

TEST_F(MakeSurfacesTest, WhatABuildDidNotMakeIsAbsent) {
    EXPECT_EQ(MakeSurfaces(handle, FittingShape::Model, false).Count(), 0U);
    EXPECT_EQ(MakeSurfaces(handle, FittingShape::Pattern, true).Count(), 0U);
    fitting->canned.PatternSurface = Strip({}, {});
    EXPECT_EQ(MakeSurfaces(handle, FittingShape::Pattern, false).Count(), 0U);
}

TEST_F(MakeSurfacesTest, MovingThemLeavesTheFittingAlone) {
    fitting->canned.PatternSurface = StripOf(2);
    CRuleSurfs pattern = MakeSurfaces(handle, FittingShape::Pattern, false);
    pattern.Item(1).Move({0, 0, 0, 0}, {10, 0, 0, 0});
    EXPECT_EQ(LengthOf(pattern.Item(1)), 12);
    EXPECT_EQ(LengthOf(handle.Results().PatternSurface), 2);
}

TEST_F(MakeSurfacesTest, AFailedBuildLeavesItsWarnings) {
    fitting->canned.warnings = {{TopLapTooLarge, false}};
    fitting->fails = true;
    EXPECT_THROW(MakeSurfaces(handle, FittingShape::Pattern, false), ArithmeticError);
    EXPECT_EQ(handle.Results().warnings.size(), 1U);
}

}  // namespace
}  // namespace korvet
