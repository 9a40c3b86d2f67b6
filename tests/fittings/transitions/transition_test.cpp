// The model of a transition: where the stations of its two sections stand, and what they are marked with.
#include "fittings/transitions/transition.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "tests/fittings/transitions/transition_samples.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

void ExpectAt(const C3DPoint& point, double x, double y, double z) {
    EXPECT_NEAR(point.x, x, Near);
    EXPECT_NEAR(point.y, y, Near);
    EXPECT_NEAR(point.z, z, Near);
}

std::vector<int> Flags(const C3DPoints& list) {
    std::vector<int> flags;
    for (const C3DPoint& point : list) {
        flags.push_back(point.Flag);
    }
    return flags;
}

CTransition Built(CTransition transition) {
    transition.ConstructModel();
    return transition;
}

CTransition WithSegs(CTransition transition, int segs) {
    transition.inputs.segs = segs;
    return transition;
}

CTransition Halved(CTransition transition) {
    transition.inputs.HalfPattern = true;
    return transition;
}

/// A rectangle 200 by 120 below a circle of 100, 150 high.
CTransition RectangleToRound() {
    return TransitionOf(CircleSection(100), RectangleSection(200, 120), 150);
}

/// Two rectangles with corner radii.
CTransition FoldedRectangles() {
    return TransitionOf(RectangleSection(200, 100, 10), RectangleSection(300, 200, 25), 90);
}

const C3DPoints& Top(const CTransition& transition) {
    return *transition.results.ModelSurface.List1;
}
const C3DPoints& Base(const CTransition& transition) {
    return *transition.results.ModelSurface.List2;
}

TEST(TransitionModel, HasFourCornersAndTheStartTwice) {
    const CTransition transition = Built(RectangleToRound());
    ASSERT_EQ(Top(transition).Count(), 54U) << "24 segments, 13 points to a corner";
    ASSERT_EQ(Base(transition).Count(), 54U);
    ExpectAt(Top(transition).Item(1), 50, 0, 150);
    ExpectAt(Base(transition).Item(1), 100, 0, 0);
    EXPECT_TRUE(Same(Top(transition).Item(1), Top(transition).Item(54)));
    EXPECT_TRUE(Same(Base(transition).Item(1), Base(transition).Item(54)));
}

TEST(TransitionModel, SharpCornersAreCoincidentPointsRoundTheRectangle) {
    const CTransition transition = Built(RectangleToRound());
    const double x[] = {100, -100, -100, 100};
    const double y[] = {60, 60, -60, -60};
    for (std::size_t corner = 0; corner < 4; ++corner) {
        for (std::size_t i = 1; i <= 13; ++i) {
            ExpectAt(Base(transition).Item(1 + 13 * corner + i), x[corner], y[corner], 0);
        }
    }
}

TEST(TransitionModel, ACircleRunsRoundInQuartersThatShareTheirEnds) {
    const CTransition transition = Built(RectangleToRound());
    for (std::size_t corner = 0; corner < 4; ++corner) {
        for (std::size_t i = 0; i < 13; ++i) {
            const double degrees = 90.0 * static_cast<double>(corner) + 7.5 * static_cast<double>(i);
            ExpectAt(Top(transition).Item(2 + 13 * corner + i), 50 * std::cos(DegToRad(degrees)),
                     50 * std::sin(DegToRad(degrees)), 150);
        }
    }
    EXPECT_LT(Distance3D(Top(transition).Item(14), Top(transition).Item(15)), Near);
}

TEST(TransitionModel, RoundedCornersTurnAboutTheirOwnCentres) {
    const CTransition transition = Built(WithSegs(FoldedRectangles(), 4));
    // Three points to a corner, 45 degrees apart.
    ASSERT_EQ(Base(transition).Count(), 14U);
    const double leg = 25 * std::sqrt(0.5);
    ExpectAt(Base(transition).Item(1), 150, 0, 0);
    ExpectAt(Base(transition).Item(2), 150, 75, 0);
    ExpectAt(Base(transition).Item(3), 125 + leg, 75 + leg, 0);
    ExpectAt(Base(transition).Item(4), 125, 100, 0);
    ExpectAt(Base(transition).Item(5), -125, 100, 0);
    ExpectAt(Base(transition).Item(7), -150, 75, 0);
    ExpectAt(Base(transition).Item(8), -150, -75, 0);
    ExpectAt(Base(transition).Item(11), 125, -100, 0);
    ExpectAt(Base(transition).Item(13), 150, -75, 0);
    ExpectAt(Top(transition).Item(2), 100, 40, 90);
    ExpectAt(Top(transition).Item(4), 90, 50, 90);
}

TEST(TransitionModel, EllipsePointsLieOnTheEllipse) {
    const CTransition transition =
        Built(TransitionOf(EllipseSection(160, 90), RectangleSection(300, 200, 20), 100));
    for (const C3DPoint& point : Top(transition)) {
        EXPECT_NEAR(std::pow(point.x / 80, 2) + std::pow(point.y / 45, 2), 1, Near);
        EXPECT_EQ(point.z, 100);
    }
    ExpectAt(Top(transition).Item(14), 0, 45, 100);
    ExpectAt(Top(transition).Item(28), -80, 0, 100);
}

TEST(TransitionModel, AnOvalHasHalfCirclesAtItsEnds) {
    const CTransition transition = Built(TransitionOf(OvalSection(200, 80), OvalSection(300, 120), 100));
    for (const C3DPoint& point : Top(transition)) {
        if (std::fabs(point.x) >= 60 + Near) {
            EXPECT_NEAR(std::hypot(std::fabs(point.x) - 60, point.y), 40, Near);
        } else {
            EXPECT_NEAR(std::fabs(point.y), 40, Near);
        }
    }
    ExpectAt(Top(transition).Item(14), 60, 40, 100);
    ExpectAt(Top(transition).Item(15), -60, 40, 100);
}

TEST(TransitionModel, StationsAreFlaggedByTheirPlaceInTheCorner) {
    const CTransition odd = Built(WithSegs(RectangleToRound(), 4));  // three points to a corner
    const std::vector<int> three = {1, 5, 0, 5, 5, 0, 5, 5, 0, 5, 5, 0, 5, 1};
    EXPECT_EQ(Flags(Top(odd)), three);
    EXPECT_EQ(Flags(Base(odd)), three);
    const CTransition even = Built(WithSegs(RectangleToRound(), 6));  // four
    const std::vector<int> four = {1, 5, 0, 1, 4, 5, 0, 1, 4, 5, 0, 1, 4, 5, 0, 1, 4, 1};
    EXPECT_EQ(Flags(Top(even)), four);
    EXPECT_EQ(Flags(Base(even)), four);
}

TEST(TransitionModel, PointsToACornerAreRoundedToEven) {
    struct Case {
        int segs;
        std::size_t points;
    };
    for (const auto& [segs, points] :
         {Case{1, 2}, Case{2, 2}, Case{3, 2}, Case{4, 3}, Case{5, 4}, Case{7, 4}, Case{9, 6}, Case{25, 14}}) {
        EXPECT_EQ(Top(Built(WithSegs(RectangleToRound(), segs))).Count(), 4 * points + 2) << segs;
    }
}

TEST(TransitionModel, AnOddNumberOfSegmentsMissesTheQuarterTurn) {
    const CTransition over = Built(WithSegs(RectangleToRound(), 5));  // three steps of 36 degrees
    EXPECT_NEAR(PlanAngle({}, Top(over).Item(5)), DegToRad(108), Near);
    EXPECT_NEAR(PlanAngle({}, Top(over).Item(6)), DegToRad(90), Near);
    const CTransition under = Built(WithSegs(RectangleToRound(), 7));  // three steps of 360 / 14 degrees
    EXPECT_NEAR(PlanAngle({}, Top(under).Item(5)), DegToRad(540.0 / 7), Near);
}

TEST(TransitionModel, TheTopMovesWithItsOffsetsAndAHeightMayBeNegative) {
    const CTransition transition = Built(
        Skewed(TransitionOf(CircleSection(100), RectangleSection(200, 120), -150), 30, -20, 0, 0, 0, 0));
    ExpectAt(Top(transition).Item(2), 80, -20, -150);
    ExpectAt(Base(transition).Item(2), 100, 60, 0);
}

/// Y of the start of the top, a rectangle 100 wide with radii of 10, for an offset of the top.
double StartY(double offsetY) {
    return Top(Built(Skewed(FoldedRectangles(), 0, offsetY, 0, 0, 0, 0))).Item(1).y;
}

TEST(TransitionStart, LiesAtTwiceTheYOffsetAsLongAsTheSideIsStraight) {
    EXPECT_NEAR(StartY(15), 30, Near);
    EXPECT_NEAR(StartY(-15), -30, Near);
    EXPECT_NEAR(StartY(39.5), 79, Near);
    EXPECT_NEAR(StartY(40), 40, Near) << "at the end of the straight part";
    EXPECT_NEAR(StartY(-40), -40, Near);
    EXPECT_NEAR(StartY(70), 70, Near);
    const CTransition moved = Built(Skewed(FoldedRectangles(), 8, 15, 0, 0, 0, 0));
    ExpectAt(Top(moved).Item(1), 108, 30, 90);
    ExpectAt(Base(moved).Item(1), 150, 0, 0);
    ExpectAt(Top(moved).Item(Top(moved).Count()), 108, 30, 90);
}

TEST(TransitionStart, OfACurvedSideIsItsMiddle) {
    const CTransition circle = Built(Skewed(RectangleToRound(), 0, 20, 0, 0, 0, 0));
    ExpectAt(Top(circle).Item(1), 50, 20, 150);
    const CTransition oval =
        Built(Skewed(TransitionOf(OvalSection(200, 80), OvalSection(300, 120), 100), 0, -7, 0, 0, 0, 0));
    ExpectAt(Top(oval).Item(1), 100, -7, 100);
}

TEST(TransitionTilt, TurnsEachSectionAboutItsOwnCentre) {
    // A right angle about x takes +y to +z, one about y takes +x to +z.
    const CTransition topX = Built(Skewed(RectangleToRound(), 30, 20, 90, 0, 0, 0));
    ExpectAt(Top(topX).Item(14), 30, 20, 200);
    ExpectAt(Top(topX).Item(2), 80, 20, 150);
    ExpectAt(Base(topX).Item(2), 100, 60, 0);
    const CTransition topY = Built(Skewed(RectangleToRound(), 30, 20, 0, 90, 0, 0));
    ExpectAt(Top(topY).Item(2), 30, 20, 200);
    ExpectAt(Top(topY).Item(14), 30, 70, 150);
    const CTransition baseX = Built(Skewed(RectangleToRound(), 30, 20, 0, 0, -90, 0));
    ExpectAt(Base(baseX).Item(2), 100, 0, -60);
    ExpectAt(Top(baseX).Item(2), 80, 20, 150);
    const CTransition baseY = Built(Skewed(RectangleToRound(), 30, 20, 0, 0, 0, 90));
    ExpectAt(Base(baseY).Item(2), 0, 60, 100);
}

TEST(TransitionTilt, TheXAxisComesBeforeTheY) {
    // About x first, the point at +y rises to +z, from where the turn about y takes it to -x.
    const CTransition transition = Built(Skewed(RectangleToRound(), 0, 0, 90, 90, 90, 90));
    ExpectAt(Top(transition).Item(14), -50, 0, 150);
    ExpectAt(Base(transition).Item(1), 0, 0, 100);
    ExpectAt(Base(transition).Item(2), -60, 0, 100);
}

TEST(TransitionHalf, EndsOnThePointOppositeTheStart) {
    const CTransition transition = Built(Halved(RectangleToRound()));
    ASSERT_EQ(Top(transition).Count(), 28U);
    ASSERT_EQ(Base(transition).Count(), 28U);
    ExpectAt(Top(transition).Item(28), -50, 0, 150);
    ExpectAt(Base(transition).Item(28), -100, 0, 0);
    EXPECT_EQ(Top(transition).Item(28).Flag, RuleStation);
    EXPECT_EQ(Base(transition).Item(28).Flag, RuleStation);
    for (const C3DPoint& point : Base(transition)) {
        EXPECT_GE(point.y, -Near);
    }
}

TEST(TransitionHalf, OfAnOddNumberOfSegmentsEndsThereToo) {
    for (const int segs : {1, 3, 5, 7, 25}) {
        const CTransition transition = Built(WithSegs(Halved(RectangleToRound()), segs));
        const std::size_t last = Base(transition).Count();
        ExpectAt(Base(transition).Item(last), -100, 0, 0);
        ExpectAt(Top(transition).Item(last), -50, 0, 150);
    }
}

TEST(TransitionHalf, FollowsAnOffsetAlongXAndATiltAboutY) {
    const CTransition transition = Built(Halved(Skewed(RectangleToRound(), 30, 0, 0, 90, 0, 0)));
    ASSERT_EQ(Top(transition).Count(), 28U);
    ExpectAt(Top(transition).Item(28), 30, 0, 100);
}

TEST(TransitionHalf, IsWholeWithAYOffsetAndHasNoOppositePoint) {
    const CTransition half = Built(Halved(Skewed(FoldedRectangles(), 0, 12, 0, 0, 0, 0)));
    const CTransition whole = Built(Skewed(FoldedRectangles(), 0, 12, 0, 0, 0, 0));
    EXPECT_EQ(Top(half).Count(), 54U);
    EXPECT_TRUE(SamePoints(Top(half), Top(whole)));
    EXPECT_TRUE(SamePoints(Base(half), Base(whole)));
}

TEST(TransitionModel, SeamAngleTypeAndSelectorHaveNoEffect) {
    CTransition marked = FoldedRectangles();
    marked.inputs.JoinAngle = 1;
    marked.inputs.Dtype = 1;
    marked.inputs.Miscellaneous = 2;
    const CTransition built = Built(marked);
    EXPECT_TRUE(SamePoints(Top(built), Top(Built(FoldedRectangles()))));
    EXPECT_TRUE(SamePoints(Base(built), Base(Built(FoldedRectangles()))));
}

TEST(TransitionModel, ARadiusOfHalfASideLetsTwoCornersShareACentre) {
    const CTransition transition =
        Built(WithSegs(TransitionOf(RectangleSection(200, 80, 40), RectangleSection(80, 200, 40), 60), 4));
    ExpectAt(Top(transition).Item(4), 60, 40, 60);
    ExpectAt(Top(transition).Item(7), -100, 0, 60);
    ExpectAt(Top(transition).Item(8), -100, 0, 60);
    ExpectAt(Base(transition).Item(4), 0, 100, 0);
    ExpectAt(Base(transition).Item(5), 0, 100, 0);
}

}  // namespace
}  // namespace korvet
