// What a piece takes over from the fitting that drives it, and the order in which its seam follows.
#include "fittings/pieces.h"

#include <gtest/gtest.h>

#include "core/math_module.h"
#include "fittings/cones/right_cone.h"
#include "fittings/pipes/right_cylinder.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

static_assert(CutPiece<CRightCylinder>);
static_assert(CutPiece<CRightCone>);
static_assert(!CutPiece<FittingInputs>);

/// A whole with every setting at a value of its own.
FittingInputs WholeInputs() {
    return {.LapSize0 = 3,
            .LapSize1 = 4,
            .LapSize2 = 5,
            .JoinType = 1,
            .JoinAngle = 0.7,
            .segs = 11,
            .HalfPattern = true,
            .Dtype = 2,
            .Miscellaneous = 1};
}

TEST(PieceInputs, TakeSegmentsHalfAndLapsAndHaveTheirOwnSeamAndType) {
    const FittingInputs piece = PieceInputs(WholeInputs(), {.Dtype = TiltedEnds, .JoinAngle = 1.5});
    EXPECT_EQ(piece.segs, 11);
    EXPECT_TRUE(piece.HalfPattern);
    EXPECT_EQ(piece.JoinType, 1);
    EXPECT_EQ(piece.LapSize0, 3);
    EXPECT_EQ(piece.LapSize1, 4);
    EXPECT_EQ(piece.LapSize2, 5);
    EXPECT_EQ(piece.Dtype, TiltedEnds);
    EXPECT_EQ(piece.JoinAngle, 1.5);
    EXPECT_EQ(piece.Miscellaneous, 0);
    EXPECT_EQ(PieceInputs(WholeInputs(), {}).JoinAngle, 0) << "not the whole's";
}

TEST(PieceInputs, MayLeaveTheHalfToTheWhole) {
    EXPECT_FALSE(PieceInputs(WholeInputs(), {.halved = false}).HalfPattern);
    FittingInputs full = WholeInputs();
    full.HalfPattern = false;
    EXPECT_FALSE(PieceInputs(full, {.halved = true}).HalfPattern);
}

TEST(PieceInputs, MayTakeTheSeamLapAloneOrNone) {
    const FittingInputs seam = PieceInputs(WholeInputs(), {.laps = SeamLapOnly});
    EXPECT_EQ(seam.JoinType, 1);
    EXPECT_EQ(seam.LapSize0, 0);
    EXPECT_EQ(seam.LapSize1, 4);
    EXPECT_EQ(seam.LapSize2, 0);
    EXPECT_EQ(PieceInputs(WholeInputs(), {.laps = NoLaps}).JoinType, 0);
}

TEST(TakeTemplate, HandsOnTypeAndThickness) {
    struct {
        std::int16_t TemplateType = 1;
        double Thickness = 2.5;
    } whole;
    CRightCylinder pipe;
    TakeTemplate(pipe, whole);
    EXPECT_EQ(pipe.TemplateType, 1);
    EXPECT_EQ(pipe.Thickness, 2.5);
}

TEST(SetEnds, SetsHeightsAndTilts) {
    CRightCone cone;
    SetEnds(cone, {.CPHeight1 = 4, .CPHeight2 = 3, .CPAngle1 = 0.2, .CPAngle2 = 0.1});
    EXPECT_EQ(cone.CPHeight1, 4);
    EXPECT_EQ(cone.CPHeight2, 3);
    EXPECT_EQ(cone.CPAngle1, 0.2);
    EXPECT_EQ(cone.CPAngle2, 0.1);
}

double SeamOf(const CRuleSurf& model) {
    return PlanAngle({}, model.List1->Item(1));
}

TEST(ConstructWithSeamBefore, TheModelIsOneBuildBehindThePattern) {
    CRightCylinder pipe;
    pipe.BaseRad = 10;
    SetEnds(pipe, {.CPHeight1 = 20, .CPAngle1 = 0.5});
    const auto build = [&](double seam) {
        pipe.inputs = PieceInputs(WholeInputs(), {.Dtype = TiltedEnds, .JoinAngle = pipe.inputs.JoinAngle});
        ConstructWithSeamBefore(pipe, seam);
        return SeamOf(pipe.results.ModelSurface);
    };
    EXPECT_NEAR(build(1), 0, 1e-12) << "a new piece has its seam at 0";
    EXPECT_NEAR(build(2), 1, 1e-12);
    FittingResults whole;
    DevelopPiece(pipe, whole);
    EXPECT_NEAR(SeamOf(pipe.results.ModelSurface), 2, 1e-12) << "what is developed has its own seam";
    EXPECT_NEAR(build(2), 2, 1e-12);
}

/// A piece that warns whenever it is developed, and when its model is built.
struct Plate {
    FittingInputs inputs;
    FittingResults results;

    void ConstructModel() { results.warnings.push_back({TopLapTooLarge, true}); }
    void DevelopModel() {
        ConstructModel();
        results.PatternSurface = Strip({{0, 0, 0, 1}}, {{0, 1, 0, 1}});
        results.warnings.push_back({SeamLapTooLarge, false});
    }
};

TEST(DevelopPiece, GivesThePatternAndHandsItsWarningsToTheWhole) {
    Plate piece;
    FittingResults whole;
    whole.warnings.push_back({HalfPatternNotApplicable, true});
    EXPECT_EQ(&DevelopPiece(piece, whole), &piece.results.PatternSurface);
    EXPECT_TRUE(DevelopPiece(piece, whole).List1);
    ASSERT_EQ(whole.warnings.size(), 5U) << "each piece tells its own once";
    EXPECT_EQ(whole.warnings[0].messageId, HalfPatternNotApplicable);
    EXPECT_EQ(whole.warnings[1].messageId, TopLapTooLarge);
    EXPECT_EQ(whole.warnings[4].messageId, SeamLapTooLarge);
}

}  // namespace
}  // namespace korvet
