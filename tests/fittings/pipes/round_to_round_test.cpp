// Round to round against what its circles demand: rulings and the girth of the base hold exactly in the
// flat, the girth of the top and the outline of a cylinder the better, the finer the stations.
#include "fittings/pipes/round_to_round.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <tuple>

#include "core/constants.h"
#include "core/math_module.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet::round_to_round_test {
namespace {

using std::numbers::pi;

/// Sizes of the shape; the tilt in degrees.
struct Shape {
    double baseRadius;
    double topRadius;
    double height;
    double offset;
    double tilt;
};

constexpr Shape Tilted = {150, 90, 260, 0, -25};
constexpr Shape Beside = {160, 100, 280, 110, -20};
constexpr Shape Upright = {170, 80, 230, 250, -90};
constexpr Shape Widening = {90, 150, 200, -60, 30};
constexpr Shape LeaningPipe = {110, 110, 300, 130, 0};
constexpr Shape StraightPipe = {110, 110, 300, 0, 0};

CRoundToRound Fitting(const Shape& shape, int segs = 12) {
    CRoundToRound fitting;
    fitting.BaseRad = shape.baseRadius;
    fitting.TopRad = shape.topRadius;
    fitting.Height = shape.height;
    fitting.TopOffsetX = shape.offset;
    fitting.TopTiltY = DegToRad(shape.tilt);
    fitting.inputs.segs = segs;
    return fitting;
}

CRoundToRound Developed(const Shape& shape, int segs = 12) {
    CRoundToRound fitting = Fitting(shape, segs);
    fitting.DevelopModel();
    return fitting;
}

const C3DPoints& Base(const CRoundToRound& fitting) {
    return *fitting.results.ModelSurface.List1;
}

const C3DPoints& Top(const CRoundToRound& fitting) {
    return *fitting.results.ModelSurface.List2;
}

const C3DPoints& FlatBase(const CRoundToRound& fitting) {
    return *fitting.results.PatternSurface.List1;
}

const C3DPoints& FlatTop(const CRoundToRound& fitting) {
    return *fitting.results.PatternSurface.List2;
}

/// The step of an edge of the pattern that is the furthest off, as a part of the step that it should have.
double WorstStep(const C3DPoints& edge, double step) {
    double worst = 0;
    for (std::size_t i = 1; i < edge.Count(); ++i) {
        worst = std::max(worst, std::fabs(Distance3D(edge.Item(i), edge.Item(i + 1)) / step - 1));
    }
    return worst;
}

double Length(const C3DPoints& edge) {
    double length = 0;
    for (std::size_t i = 1; i < edge.Count(); ++i) {
        length += Distance3D(edge.Item(i), edge.Item(i + 1));
    }
    return length;
}

class RoundToRounds : public testing::TestWithParam<std::tuple<Shape, int>> {
  protected:
    [[nodiscard]] static Shape Given() { return std::get<0>(GetParam()); }
    [[nodiscard]] static int Segs() { return std::get<1>(GetParam()); }
    [[nodiscard]] static CRoundToRound Made() { return Fitting(Given(), Segs()); }
};

TEST_P(RoundToRounds, BaseIsALevelCircleAndTheTopOneInItsPlane) {
    CRoundToRound fitting = Made();
    fitting.inputs.JoinAngle = 0.4;
    fitting.ConstructModel();
    ASSERT_EQ(Base(fitting).Count(), static_cast<std::size_t>(2 * Segs() + 1));
    ASSERT_EQ(Top(fitting).Count(), Base(fitting).Count());
    const double slope = Given().tilt * pi / 180;
    const C3DPoint centre = {Given().offset, 0, Given().height, 0};
    for (std::size_t i = 1; i <= Base(fitting).Count(); ++i) {
        const C3DPoint& base = Base(fitting).Item(i);
        const C3DPoint& top = Top(fitting).Item(i);
        const double t = 0.4 + static_cast<double>(i - 1) * pi / Segs();
        EXPECT_NEAR(base.x, Given().baseRadius * std::cos(t), Near);
        EXPECT_NEAR(base.y, Given().baseRadius * std::sin(t), Near);
        EXPECT_NEAR(base.z, 0, Near);
        // A tilt above 0 lifts the side of +x.
        EXPECT_NEAR(top.x, centre.x + Given().topRadius * std::cos(t) * std::cos(slope), Near);
        EXPECT_NEAR(top.y, Given().topRadius * std::sin(t), Near);
        EXPECT_NEAR(top.z, centre.z + Given().topRadius * std::cos(t) * std::sin(slope), Near);
        EXPECT_EQ(base.Flag, static_cast<int>(i % 2));
        EXPECT_EQ(top.Flag, static_cast<int>(i % 2));
    }
}

TEST_P(RoundToRounds, RulingsAndStepsOfTheBaseAreExact) {
    CRoundToRound fitting = Made();
    fitting.DevelopModel();
    ASSERT_EQ(FlatBase(fitting).Count(), Base(fitting).Count());
    for (std::size_t i = 1; i <= Base(fitting).Count(); ++i) {
        EXPECT_NEAR(Distance3D(FlatBase(fitting).Item(i), FlatTop(fitting).Item(i)),
                    Distance3D(Base(fitting).Item(i), Top(fitting).Item(i)), Near);
        EXPECT_EQ(FlatBase(fitting).Item(i).Flag, Base(fitting).Item(i).Flag);
        EXPECT_EQ(FlatTop(fitting).Item(i).Flag, Top(fitting).Item(i).Flag);
        EXPECT_EQ(FlatTop(fitting).Item(i).z, 0);
    }
    EXPECT_LT(WorstStep(FlatBase(fitting), pi * Given().baseRadius / Segs()), 1e-12);
    EXPECT_FALSE(fitting.results.PatternSurface.RefPoint);
    EXPECT_TRUE(fitting.results.warnings.empty());
}

TEST_P(RoundToRounds, StartsAtTheOriginAlongXAndTurnsClockwise) {
    CRoundToRound fitting = Made();
    fitting.DevelopModel();
    EXPECT_EQ(Distance3D(FlatBase(fitting).Item(1), {}), 0);
    EXPECT_EQ(FlatTop(fitting).Item(1).y, 0);
    EXPECT_GT(FlatTop(fitting).Item(1).x, 0);
    EXPECT_LT(FlatBase(fitting).Item(2).y, 0);
}

INSTANTIATE_TEST_SUITE_P(Shapes, RoundToRounds,
                         testing::Combine(testing::Values(Tilted, Beside, Upright, Widening, LeaningPipe,
                                                          StraightPipe),
                                          testing::Values(3, 4, 12, 13, 24)));

TEST(RoundToRoundTop, ItsStepsComeToThoseOfItsArc) {
    for (const Shape& shape : {Tilted, Beside, Upright, Widening, LeaningPipe}) {
        const auto worst = [&](int segs) {
            return WorstStep(FlatTop(Developed(shape, segs)), pi * shape.topRadius / segs);
        };
        const double coarse = worst(24);
        EXPECT_LT(coarse, 0.02);
        EXPECT_LT(worst(96), coarse / 3.8);
        EXPECT_LT(worst(1536), coarse / 60);
    }
}

TEST(RoundToRoundTop, ItsGirthComesToThatOfItsCircle) {
    for (const Shape& shape : {Tilted, Beside, Upright, Widening, LeaningPipe}) {
        const auto error = [&](int segs) {
            return std::fabs(Length(FlatTop(Developed(shape, segs))) / (2 * pi * shape.topRadius) - 1);
        };
        const double coarse = error(24);
        EXPECT_LT(coarse, 1e-4);
        EXPECT_LT(error(96), coarse / 10);
    }
}

/// The arcs that its triangles have in the place of chords lift the far seam by 2 PI R^2 step^3 / (24 h).
TEST(RoundToRoundPipe, AStraightOneIsARectangleBetweenExactSteps) {
    for (const int segs : {3, 12, 24, 96}) {
        const CRoundToRound pipe = Developed(StraightPipe, segs);
        const double step = pi / segs;
        EXPECT_LT(WorstStep(FlatBase(pipe), 110 * step), 1e-11);
        EXPECT_LT(WorstStep(FlatTop(pipe), 110 * step), 1e-11);
        const double rise = 2 * pi * 110 * 110 * step * step * step / (24 * 300);
        EXPECT_NEAR(FlatBase(pipe).Last().x / rise, 1, step * step / 20);
        EXPECT_NEAR(FlatTop(pipe).Last().x - FlatBase(pipe).Last().x, 300, Near);
        EXPECT_NEAR(FlatBase(pipe).Last().y, -std::sqrt(4 * pi * pi * 110 * 110 - rise * rise),
                    rise * rise * step * step);
    }
}

/// Rolled up on its side, a leaning pipe lays down the girth of its right section, an ellipse of 110 by
/// 110 sin(angle of the axis).
TEST(RoundToRoundPipe, ALeaningOneIsAsWideAsItsRightSectionIsLongRound) {
    const double narrow = 110 * 300 / std::hypot(300, 130);
    double girth = 0;
    constexpr int Parts = 2000;  // the trapezium rule is exact to the last digits on a closed curve
    for (int i = 0; i < Parts; ++i) {
        const double t = 2 * pi * i / Parts;
        girth += std::hypot(110 * std::sin(t), narrow * std::cos(t)) * 2 * pi / Parts;
    }
    const auto error = [&](int segs) {
        return std::fabs(std::fabs(FlatBase(Developed(LeaningPipe, segs)).Last().y) / girth - 1);
    };
    EXPECT_LT(error(24), 2e-4);
    EXPECT_LT(error(96), error(24) / 10);
}

/// The angles of the finest triangles are far below what a cosine can tell.
TEST(RoundToRoundPipe, KeepsTheAnglesOfFineSteps) {
    const CRoundToRound pipe = Developed(StraightPipe, 50000);
    EXPECT_NEAR(FlatBase(pipe).Last().y, -2 * pi * 110, 1e-4);
    EXPECT_NEAR(FlatTop(pipe).Last().x, 300, 1e-4);
    const CRoundToRound pointed = Developed({150, 1e-3, 400, 0, 0}, 50000);
    EXPECT_NEAR(Length(FlatBase(pointed)), 2 * pi * 150, 1e-6);
    // A cone of slant s: its sector has the angle 2 pi R / s.
    const double sector = 2 * pi * 150 / std::hypot(150, 400);
    EXPECT_NEAR(Distance3D(FlatBase(pointed).Item(1), FlatBase(pointed).Last()),
                2 * std::hypot(150, 400) * std::sin(sector / 2), 0.01);
}

/// A low pipe of few stations: 10 high, with steps of 43. Behind the last ruling no triangle of them would
/// close, and none is asked for.
TEST(RoundToRoundPipe, LastRulingIsPlacedWithoutAStepBehindIt) {
    const CRoundToRound low = Developed({110, 110, 10, 0, 0}, 8);
    ASSERT_EQ(FlatBase(low).Count(), 17U);
    EXPECT_NEAR(Distance3D(FlatBase(low).Item(17), FlatTop(low).Item(17)), 10, Near);
    EXPECT_NEAR(Distance3D(FlatBase(low).Item(16), FlatBase(low).Item(17)), pi * 110 / 8, Near);
    EXPECT_NEAR(Distance3D(FlatBase(low).Item(1), FlatBase(low).Item(17)), 2 * pi * 110, Near);
}

TEST(RoundToRoundPipe, OneTooLowForItsArcsIsAnError) {
    // The arc of 86.4 is 2.2 longer than its chord: more than a wall of 2 can make up for.
    CRoundToRound low = Fitting({110, 110, 2, 0, 0}, 4);
    EXPECT_THROW(low.DevelopModel(), ArithmeticError);
    low.inputs.segs = 24;
    low.DevelopModel();
    EXPECT_EQ(FlatBase(low).Count(), 49U);
}

TEST(RoundToRoundModel, OffsetsOnBothAxesMoveTheTop) {
    CRoundToRound fitting = Fitting(Beside);
    fitting.ConstructModel();
    const C3DPoints before = Top(fitting);
    fitting.TopOffsetY = 45;
    fitting.ConstructModel();
    for (std::size_t i = 1; i <= before.Count(); ++i) {
        EXPECT_NEAR(Top(fitting).Item(i).y, before.Item(i).y + 45, Near);
        EXPECT_NEAR(Top(fitting).Item(i).x, before.Item(i).x, Near);
    }
}

TEST(RoundToRoundModel, TheOtherTiltsAreNotRead) {
    CRoundToRound fitting = Fitting(Beside);
    fitting.ConstructModel();
    const C3DPoints base = Base(fitting);
    const C3DPoints top = Top(fitting);
    fitting.TopTiltX = fitting.BaseTiltX = fitting.BaseTiltY = 1;
    fitting.ConstructModel();
    EXPECT_TRUE(SamePoints(base, Base(fitting)));
    EXPECT_TRUE(SamePoints(top, Top(fitting)));
}

TEST(RoundToRoundHalf, KeepsTheFirstStationsOfTheWhole) {
    for (const int segs : {2, 3, 12, 13}) {
        CRoundToRound half = Fitting(Beside, segs);
        half.inputs.HalfPattern = true;
        half.DevelopModel();
        const CRoundToRound whole = Developed(Beside, segs);
        ASSERT_EQ(FlatBase(half).Count(), static_cast<std::size_t>(segs + 1));
        for (std::size_t i = 1; i <= FlatBase(half).Count(); ++i) {
            EXPECT_TRUE(Same(FlatBase(half).Item(i), FlatBase(whole).Item(i)));
            EXPECT_TRUE(Same(FlatTop(half).Item(i), FlatTop(whole).Item(i)));
        }
    }
}

TEST(RoundToRoundLaps, AreThoseOfTheBaseTheSeamAndTheTop) {
    CRoundToRound fitting = Fitting(Tilted);
    fitting.inputs.JoinType = 1;
    fitting.inputs.LapSize0 = 8;
    fitting.inputs.LapSize1 = 12;
    fitting.inputs.LapSize2 = 5;
    fitting.DevelopModel();
    const CRoundToRound plain = Developed(Tilted);
    ASSERT_EQ(FlatBase(fitting).Count(), 26U);
    EXPECT_EQ(FlatBase(fitting).Item(26).Flag, LapClosure);
    for (std::size_t i = 1; i <= 25; ++i) {
        EXPECT_NEAR(Distance3D(FlatBase(fitting).Item(i), FlatBase(plain).Item(i)), 8, Near);
        EXPECT_NEAR(Distance3D(FlatTop(fitting).Item(i), FlatTop(plain).Item(i)), 5, Near);
    }
    EXPECT_TRUE(fitting.results.warnings.empty());
}

/// The sheet is a good half of a ring: the ends of its inner edge, the top, are the nearer ones.
TEST(RoundToRoundLaps, ASeamLapWiderThanTheGapWarns) {
    constexpr Shape wide = {200, 60, 150, 0, 0};
    const CRoundToRound plain = Developed(wide);
    const double gap = Distance3D(FlatTop(plain).Item(1), FlatTop(plain).Last());
    EXPECT_LT(gap, Distance3D(FlatBase(plain).Item(1), FlatBase(plain).Last()));
    const auto lapped = [&](double width, std::int16_t joinType = 1) {
        CRoundToRound fitting = Fitting(wide);
        fitting.inputs.JoinType = joinType;
        fitting.inputs.LapSize1 = width;
        fitting.DevelopModel();
        return fitting;
    };
    EXPECT_TRUE(lapped(gap - 1e-6).results.warnings.empty());
    EXPECT_TRUE(lapped(gap + 1e-6, 0).results.warnings.empty()) << "without a join";
    const CRoundToRound narrow = lapped(gap + 1e-6);
    ASSERT_EQ(narrow.results.warnings.size(), 1U);
    EXPECT_EQ(narrow.results.warnings[0].messageId, SeamLapTooLarge);
    EXPECT_TRUE(narrow.results.warnings[0].userError);
    EXPECT_EQ(FlatTop(narrow).Count(), 26U) << "it is laid all the same";
}

}  // namespace
}  // namespace korvet::round_to_round_test
