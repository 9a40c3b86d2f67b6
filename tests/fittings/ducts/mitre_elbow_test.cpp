// The duct in the plan and its pieces: widths, lengths and angle as they were typed, a mitre as far from one
// limb as from the other, walls with the lengths of the plan, cheeks that are the plan itself.
#include "fittings/ducts/mitre_elbow.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "core/checked.h"
#include "core/math_module.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

constexpr double Degree = std::numbers::pi / 180;

/// A duct of 120 by 90 with limbs of 700 and 900, which leave room for mitres from 20 degrees on.
CMitreElbow DuctAt(double degrees) {
    CMitreElbow elbow;
    elbow.End1PlanWidth = elbow.End2PlanWidth = 120;
    elbow.End1Length = 700;
    elbow.End2Length = 900;
    elbow.CenterLineAngle = -degrees * Degree;
    elbow.End1Depth = elbow.End2Depth = 90;
    return elbow;
}

class MitreElbows : public testing::TestWithParam<double> {
  protected:
    /// The direction of the second limb, away from the mitre.
    [[nodiscard]] static C3DPoint SecondLimb() {
        const double turned = std::numbers::pi + GetParam() * Degree;
        return {std::cos(turned), std::sin(turned), 0};
    }

    /// How far a point lies to the left of a centre line through the origin.
    static double LeftOf(const C3DPoint& direction, const C3DPoint& point) {
        return direction.x * point.y - direction.y * point.x;
    }

    static double Along(const C3DPoint& direction, const C3DPoint& point) {
        return direction.x * point.x + direction.y * point.y;
    }

    static const C3DPoints& Outline(const CMitreElbow& elbow) { return *elbow.results.ModelSurface.List1; }

    CMitreElbow elbow = DuctAt(GetParam());
};

TEST_P(MitreElbows, EndsAreSquareToTheCentreLinesAtTheirLengths) {
    elbow.ConstructModel();
    const C3DPoints& outline = Outline(elbow);
    ASSERT_EQ(outline.Count(), 7U);
    for (const std::size_t station : {1U, 6U, 7U}) {
        EXPECT_NEAR(outline.Item(station).x, -700, Near);
        EXPECT_NEAR(outline.Item(station).y, station == 6 ? 60 : -60, Near);
    }
    for (const std::size_t station : {3U, 4U}) {
        EXPECT_NEAR(Along(SecondLimb(), outline.Item(station)), 900, Near);
        EXPECT_NEAR(LeftOf(SecondLimb(), outline.Item(station)), station == 4 ? 60 : -60, Near);
    }
}

/// A corner of the mitre is half a width beside both centre lines, on the same side of the way through.
TEST_P(MitreElbows, MitreIsAsFarFromOneLimbAsFromTheOther) {
    elbow.ConstructModel();
    const C3DPoint firstLimb = {1, 0, 0};
    for (const auto& [station, side] : {std::pair<std::size_t, int>{2, -1}, {5, 1}}) {
        const C3DPoint& corner = Outline(elbow).Item(station);
        EXPECT_NEAR(LeftOf(firstLimb, corner), side * 60, Near);
        EXPECT_NEAR(LeftOf(SecondLimb(), corner), side * 60, Near);
    }
}

TEST_P(MitreElbows, WallsStandOnTheOutline) {
    elbow.ConstructModel();
    const CRuleSurf& duct = elbow.results.ModelSurface;
    ASSERT_EQ(elbow.results.ModelSurfaceList.Count(), 1U);
    EXPECT_TRUE(SamePoints(*elbow.results.ModelSurfaceList.Item(1).List1, *duct.List1));
    ASSERT_EQ(duct.List2->Count(), 7U);
    for (std::size_t i = 1; i <= 7; ++i) {
        C3DPoint above = duct.List1->Item(i);
        EXPECT_EQ(above.z, 0);
        EXPECT_EQ(above.Flag, RuleStation);
        above.z = 90;
        EXPECT_TRUE(Same(duct.List2->Item(i), above));
    }
}

/// A wall laid flat is a rectangle: the last corner that it runs to stands upright at x 0, the fold and the
/// first one to the left of it.
TEST_P(MitreElbows, WallsHaveTheLengthsOfThePlan) {
    elbow.DevelopModel();
    ASSERT_EQ(elbow.results.PatternSurfaceList.Count(), 3U);
    for (const auto& [number, first, last] :
         {std::tuple<std::size_t, std::size_t, std::size_t>{1, 1, 3}, {2, 4, 6}}) {
        const CRuleSurf& wall = elbow.results.PatternSurfaceList.Item(number);
        const C3DPoints& outline = Outline(elbow);
        const std::size_t fold = first + 1;
        const double toFold = Distance3D(outline.Item(last), outline.Item(fold));
        const double whole = toFold + Distance3D(outline.Item(fold), outline.Item(first));
        const double y = number == 1 ? 0 : -135;
        for (const auto& [station, x] : {std::pair<std::size_t, double>{1, 0}, {2, -toFold}, {3, -whole}}) {
            EXPECT_LT(Distance3D(wall.List1->Item(station), {x, y, 0}), Near * 1000);
            EXPECT_LT(Distance3D(wall.List2->Item(station), {x, y + 90, 0}), Near * 1000);
            EXPECT_EQ(wall.List1->Item(station).Flag, RuleStation);
            EXPECT_EQ(wall.List2->Item(station).Flag, RuleStation);
        }
    }
}

/// Moved but neither turned nor turned over, so that the far end of its first side lies three depths down.
TEST_P(MitreElbows, CheekIsThePlan) {
    elbow.DevelopModel();
    const CRuleSurf& cheek = elbow.results.PatternSurfaceList.Item(3);
    const C3DPoint& corner = Outline(elbow).Item(3);
    for (std::size_t i = 1; i <= 3; ++i) {
        const std::int16_t flag = i == 2 ? CornerStation : PlainStation;
        for (const auto& [edge, station] : {std::pair{cheek.List1, 4 - i}, {cheek.List2, 3 + i}}) {
            const C3DPoint& drawn = Outline(elbow).Item(station);
            EXPECT_LT(Distance3D(edge->Item(i), {drawn.x - corner.x, drawn.y - corner.y - 270, 0}),
                      Near * 1000);
            EXPECT_EQ(edge->Item(i).Flag, flag);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Angles, MitreElbows,
                         testing::Values(20, 45, 89.5, 90, 135, 179.999, 180, 180.5, 225, 270, 330, -90,
                                         480));

/// By hand: 90 degrees, where the mitre lies half a width beside both centre lines.
TEST(MitreElbow, RightAngle) {
    CMitreElbow elbow = DuctAt(90);
    elbow.ConstructModel();
    const C3DPoints expected = PointsOf({{-700, -60, 0},
                                         {-60, -60, 0},
                                         {-60, -900, 0},
                                         {60, -900, 0},
                                         {60, 60, 0},
                                         {-700, 60, 0},
                                         {-700, -60, 0}});
    for (std::size_t i = 1; i <= 7; ++i) {
        EXPECT_LT(Distance3D(elbow.results.ModelSurface.List1->Item(i), expected.Item(i)), Near) << i;
    }
}

TEST(MitreElbow, PiecesLieOneAndAHalfDepthsApartWhateverTheWidth) {
    for (const double width : {30.0, 120.0, 600.0}) {
        CMitreElbow elbow = DuctAt(90);
        elbow.End1PlanWidth = elbow.End2PlanWidth = width;
        elbow.DevelopModel();
        const CRuleSurfs& pieces = elbow.results.PatternSurfaceList;
        for (std::size_t i = 1; i <= 3; ++i) {
            EXPECT_LT(Distance3D(pieces.Item(i).List1->Item(1), {0, -135.0 * static_cast<double>(i - 1), 0}),
                      Near);
        }
    }
}

TEST(MitreElbow, TakesNothingOfTheSettings) {
    CMitreElbow plain = DuctAt(120);
    plain.DevelopModel();
    CMitreElbow elbow = DuctAt(120);
    elbow.inputs = {.LapSize0 = 9, .LapSize1 = 8, .LapSize2 = 7, .JoinType = 1, .JoinAngle = 2, .segs = 3};
    elbow.inputs.HalfPattern = true;
    elbow.SeamLapSmall = elbow.SeamLapLarge = 30;
    elbow.End2Depth = 500;
    elbow.DevelopModel();
    elbow.DevelopModel();  // from nothing again
    ASSERT_EQ(elbow.results.PatternSurfaceList.Count(), 3U);
    for (std::size_t i = 1; i <= 3; ++i) {
        const CRuleSurf& piece = elbow.results.PatternSurfaceList.Item(i);
        EXPECT_TRUE(SamePoints(*piece.List1, *plain.results.PatternSurfaceList.Item(i).List1));
        EXPECT_TRUE(SamePoints(*piece.List2, *plain.results.PatternSurfaceList.Item(i).List2));
        EXPECT_FALSE(piece.LapList1);
    }
}

/// The model walks round the other way and hangs below the plan; the walls stay as they are.
TEST(MitreElbow, SizesBelowNothingTurnTheDuctOver) {
    CMitreElbow elbow = DuctAt(120);
    elbow.End1PlanWidth = elbow.End2PlanWidth = -120;
    elbow.End1Depth = -90;
    elbow.DevelopModel();
    CMitreElbow upright = DuctAt(120);
    upright.DevelopModel();
    const C3DPoints& outline = *elbow.results.ModelSurface.List1;
    const C3DPoints& uprightOutline = *upright.results.ModelSurface.List1;
    for (std::size_t i = 1; i <= 6; ++i) {
        EXPECT_LT(Distance3D(outline.Item(i), uprightOutline.Item(7 - i)), Near);
    }
    EXPECT_EQ(elbow.results.ModelSurface.List2->Item(1).z, -90);
    const CRuleSurf& wall = elbow.results.PatternSurfaceList.Item(2);
    EXPECT_NEAR(wall.List2->Item(1).y - wall.List1->Item(1).y, 90, Near);
}

TEST(MitreElbow, ALimbReachesToItsMitre) {
    // Of 120 at 60 degrees the mitre reaches 60 cot(30) along the limbs.
    const double reach = 60 * std::sqrt(3.0);
    for (double CMitreElbow::*length : {&CMitreElbow::End1Length, &CMitreElbow::End2Length}) {
        for (const double degrees : {60.0, 300.0}) {
            CMitreElbow elbow = DuctAt(degrees);
            elbow.*length = reach;
            EXPECT_NO_THROW(elbow.DevelopModel()) << "one wall ends in the mitre";
            elbow.*length = reach * 1.0000001;
            EXPECT_NO_THROW(elbow.DevelopModel());
            elbow.*length = reach * 0.9999999;
            EXPECT_THROW(elbow.DevelopModel(), ArithmeticError);
            elbow.*length = -700;
            EXPECT_THROW(elbow.ConstructModel(), ArithmeticError);
        }
    }
}

TEST(MitreElbow, ADuctWithoutWallsOrMitreIsNotMade) {
    CMitreElbow elbow = DuctAt(0);
    EXPECT_THROW(elbow.ConstructModel(), ArithmeticError);
    elbow = DuctAt(360);
    EXPECT_THROW(elbow.ConstructModel(), ArithmeticError);
    elbow = DuctAt(90);
    elbow.End1PlanWidth = 0;
    EXPECT_THROW(elbow.ConstructModel(), ArithmeticError);
    elbow = DuctAt(90);
    elbow.End1Depth = 0;
    EXPECT_THROW(elbow.DevelopModel(), ArithmeticError);
}

}  // namespace
}  // namespace korvet
