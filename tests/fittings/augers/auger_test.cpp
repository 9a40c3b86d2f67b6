// The flight of an auger: its edges are helices whose turns join, flat turns have the lengths of those
// helices, and single plates the radii that a shop works out.
#include "fittings/augers/auger.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "core/checked.h"
#include "core/math_module.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

constexpr double TruePi = std::numbers::pi;

/// A flight of 300 on a shaft of 80, at a pitch of 280.
CAuger AugerOf(double turns, int segs = 12) {
    CAuger auger;
    auger.inputs.segs = segs;
    auger.OutsideDia1 = auger.OutsideDia2 = 300;
    auger.InsideDia1 = auger.InsideDia2 = 80;
    auger.Pitch = 280;
    auger.Length = 280 * turns;
    return auger;
}

/// From 320 on 170 to 240 on 90, over 585 at a pitch of 260.
CAuger AugerThatTapers(double thickness = 0) {
    CAuger auger;
    auger.inputs.segs = 12;
    auger.inputs.Dtype = TaperedAuger;
    auger.OutsideDia1 = 320;
    auger.InsideDia1 = 170;
    auger.OutsideDia2 = 240;
    auger.InsideDia2 = 90;
    auger.Pitch = 260;
    auger.Length = 585;
    auger.Thickness = thickness;
    return auger;
}

CAuger FlatPlateAuger(AugerForm form) {
    CAuger auger = AugerOf(1);
    auger.inputs.Dtype = form;
    return auger;
}

CRuleSurfs ModelOfAuger(CAuger auger) {
    auger.ConstructModel();
    return auger.results.ModelSurfaceList;
}

CRuleSurfs PatternOfAuger(CAuger auger) {
    auger.DevelopModel();
    return auger.results.PatternSurfaceList;
}

/// One turn of the helix on a diameter, unrolled from its cylinder.
double HelixLength(double diameter, double pitch) {
    return std::hypot(TruePi * diameter, pitch);
}

double EdgeLength(const C3DPoints& edge) {
    double length = 0;
    for (std::size_t i = 1; i < edge.Count(); ++i) {
        length += Distance3D(edge.Item(i), edge.Item(i + 1));
    }
    return length;
}

struct SheetExtent {
    double left;
    double right;
};

SheetExtent AcrossSheet(const C3DPoints& edge) {
    const auto [least, most] = std::minmax_element(
        edge.begin(), edge.end(), [](const C3DPoint& a, const C3DPoint& b) { return a.x < b.x; });
    return {least->x, most->x};
}

TEST(AugerModel, HasASurfaceForEachTurnAndOneForThePartBehindThem) {
    const std::vector<std::pair<double, std::size_t>> cases = {
        {0.001, 1}, {0.5, 1}, {0.999, 1}, {1, 1}, {1.001, 2}, {2, 2}, {2.5, 3}, {3, 3}, {7.25, 8}};
    for (const auto& [turns, surfaces] : cases) {
        EXPECT_EQ(ModelOfAuger(AugerOf(turns)).Count(), surfaces) << turns;
    }
}

/// As doubles these lengths are not whole multiples of their pitches.
TEST(AugerModel, WholeTurnsThatAreMissedByRoundingHaveNoPartBehindThem) {
    for (const auto& [pitch, length, turns] :
         {std::tuple{50.3, 150.9, 3U}, {1.1, 3.3, 3U}, {0.7, 4.9, 7U}, {280.0, 280 * (2 + 0.9e-9), 2U}}) {
        CAuger auger = AugerOf(1);
        auger.Pitch = pitch;
        auger.Length = length;
        const CRuleSurfs model = ModelOfAuger(auger);
        ASSERT_EQ(model.Count(), turns) << length;
        EXPECT_NEAR(model.Item(turns).List2->Last().z, length, 1e-6);
    }
    EXPECT_EQ(ModelOfAuger(AugerOf(2 + 1.1e-9)).Count(), 3U);
}

TEST(AugerModel, EdgesAreHelicesFromTheRightOfTheOrigin) {
    for (const int segs : {1, 12, 13}) {
        for (const CRuleSurf& turn : ModelOfAuger(AugerOf(2.5, segs))) {
            for (const auto& [edge, radius] : {std::pair{turn.List1, 40.0}, {turn.List2, 150.0}}) {
                ASSERT_EQ(edge->Count(), 2 * static_cast<std::size_t>(segs) + 1);
                for (const C3DPoint& point : *edge) {
                    const double t = 2 * TruePi * point.z / 280;
                    EXPECT_NEAR(point.x, radius * std::cos(t), Near);
                    EXPECT_NEAR(point.y, radius * std::sin(t), Near);
                }
            }
        }
    }
}

TEST(AugerModel, TurnsJoinAndEndAtTheLength) {
    for (const CAuger& auger :
         {AugerOf(3), AugerOf(2.4), AugerOf(0.3), AugerThatTapers(), AugerThatTapers(8)}) {
        const CRuleSurfs model = ModelOfAuger(auger);
        EXPECT_EQ(model.Item(1).List2->Item(1).z, 0);
        for (std::size_t i = 1; i < model.Count(); ++i) {
            for (const auto list : {&CRuleSurf::List1, &CRuleSurf::List2}) {
                EXPECT_LT(Distance3D((model.Item(i).*list)->Last(), (model.Item(i + 1).*list)->Item(1)),
                          Near);
            }
        }
        EXPECT_NEAR(model.Item(model.Count()).List1->Last().z, auger.Length, Near);
        EXPECT_NEAR(model.Item(model.Count()).List2->Last().z, auger.Length, Near);
    }
}

TEST(AugerModel, EverySecondStationIsARuleOnAPartOfATurnToo) {
    for (const CRuleSurf& turn : ModelOfAuger(AugerOf(1.3, 4))) {
        ASSERT_EQ(turn.List1->Count(), 9U);
        for (std::size_t i = 1; i <= 9; ++i) {
            EXPECT_EQ(turn.List1->Item(i).Flag, i % 2);
            EXPECT_EQ(turn.List2->Item(i).Flag, i % 2);
        }
    }
}

/// The radii at a height are those of the cones about both edges, which the middle of the plate meets half a
/// thickness above their start.
TEST(AugerModel, TapersAlongTheHeight) {
    for (const double thickness : {0.0, 8.0}) {
        const auto expectOn = [&](const C3DPoints& edge, double start, double end) {
            const double first = start + (end - start) * (thickness / 2) / 585;
            for (const C3DPoint& point : edge) {
                EXPECT_NEAR(std::hypot(point.x, point.y), first + (end - first) * point.z / 585, Near);
            }
        };
        const CRuleSurfs model = ModelOfAuger(AugerThatTapers(thickness));
        for (const CRuleSurf& turn : model) {
            expectOn(*turn.List1, 85, 45);
            expectOn(*turn.List2, 160, 120);
        }
        const C3DPoint& end = model.Item(3).List2->Last();
        EXPECT_NEAR(std::hypot(end.x, end.y), 120, Near);
    }
}

TEST(AugerModel, OnlyATaperHasRegardToTheThickness) {
    CAuger thick = AugerOf(2);
    thick.Thickness = 20;
    EXPECT_TRUE(SamePoints(*ModelOfAuger(thick).Item(2).List2, *ModelOfAuger(AugerOf(2)).Item(2).List2));
}

TEST(AugerModel, RefusesAHalfAndIsWhole) {
    CAuger auger = AugerOf(1.5);
    auger.inputs.HalfPattern = true;
    auger.ConstructModel();
    EXPECT_EQ(auger.results.warnings, (std::vector<FittingWarning>{{HalfPatternNotApplicable, true}}));
    EXPECT_FALSE(auger.inputs.HalfPattern);
    EXPECT_TRUE(
        SamePoints(*auger.results.ModelSurfaceList.Item(2).List2, *ModelOfAuger(AugerOf(1.5)).Item(2).List2));
}

/// What is lost of a length by taking chords, or of a radius by taking triangles, falls to a quarter with
/// twice as many fold lines.
void ExpectQuarteredBy(double coarse, double fine) {
    EXPECT_GT(std::fabs(fine), 1e-6) << "or there would be nothing to compare";
    EXPECT_NEAR(coarse / fine, 4, 0.1);
}

TEST(AugerPattern, EdgesOfATurnHaveTheLengthsOfTheirHelices) {
    const auto missing = [](PointList CRuleSurf::*edge, double diameter, int segs) {
        return EdgeLength(*(PatternOfAuger(AugerOf(1, segs)).Item(1).*edge)) / HelixLength(diameter, 280) - 1;
    };
    for (const auto& [edge, diameter] : {std::pair{&CRuleSurf::List1, 80.0}, {&CRuleSurf::List2, 300.0}}) {
        EXPECT_LT(std::fabs(missing(edge, diameter, 24)), 0.001);
        EXPECT_LT(std::fabs(missing(edge, diameter, 384)), 2e-6);
        ExpectQuarteredBy(missing(edge, diameter, 24), missing(edge, diameter, 48));
        ExpectQuarteredBy(missing(edge, diameter, 48), missing(edge, diameter, 96));
    }
}

/// The flat ring of a helical flight: its edges are arcs about one centre, as long as the helices and the
/// flight's width apart, so that the inner radius is to the width as the inner length to what the outer one
/// is longer by. All steps being equal, the centre lies where it sees each of them under the same angle.
TEST(AugerPattern, ATurnIsTheRingOfTheShopFormula) {
    const double inside = HelixLength(80, 280);
    const double radius = 110 * inside / (HelixLength(300, 280) - inside);
    const auto radiusOff = [&](int segs) {
        const CRuleSurf turn = PatternOfAuger(AugerOf(1, segs)).Item(1);
        const C3DPoints& edge = *turn.List1;
        const double step = Distance3D(edge.Item(1), edge.Item(2));
        const double bend = PlanAngle(edge.Item(2), edge.Item(3)) - PlanAngle(edge.Item(1), edge.Item(2));
        return step / 2 / std::fabs(std::sin(bend / 2)) - radius;
    };
    EXPECT_LT(std::fabs(radiusOff(384)), 0.01);
    ExpectQuarteredBy(radiusOff(24), radiusOff(48));
    ExpectQuarteredBy(radiusOff(48), radiusOff(96));
}

TEST(AugerPattern, RulesAndInnerStepsAreTrueOnEveryTurn) {
    for (CAuger auger : {AugerOf(2.3), AugerThatTapers(8), AugerOf(1, 1)}) {
        auger.DevelopModel();
        const CRuleSurfs& model = auger.results.ModelSurfaceList;
        ASSERT_EQ(auger.results.PatternSurfaceList.Count(), model.Count());
        for (std::size_t k = 1; k <= model.Count(); ++k) {
            const CRuleSurf& turn = model.Item(k);
            const CRuleSurf& flat = auger.results.PatternSurfaceList.Item(k);
            const std::size_t n = turn.List1->Count();
            ASSERT_EQ(flat.List1->Count(), n);
            for (std::size_t i = 1; i <= n; ++i) {
                const std::size_t of = n + 1 - i;
                EXPECT_NEAR(Distance3D(flat.List1->Item(i), flat.List2->Item(i)),
                            Distance3D(turn.List1->Item(of), turn.List2->Item(of)), Near);
                EXPECT_EQ(flat.List1->Item(i).z, 0);
                EXPECT_EQ(flat.List1->Item(i).Flag, turn.List1->Item(of).Flag);
                if (i < n) {
                    EXPECT_NEAR(Distance3D(flat.List1->Item(i), flat.List1->Item(i + 1)),
                                Distance3D(turn.List1->Item(of), turn.List1->Item(of - 1)), Near);
                }
            }
        }
    }
}

TEST(AugerPattern, TurnsStandInARowByTheWidthOfTheOneBefore) {
    for (const CAuger& auger : {AugerOf(3.4), AugerThatTapers()}) {
        const CRuleSurfs flat = PatternOfAuger(auger);
        EXPECT_TRUE(Same(flat.Item(1).List1->Last(), {0, 0, 0, 1}));
        for (std::size_t k = 1; k < flat.Count(); ++k) {
            const SheetExtent before = AcrossSheet(*flat.Item(k).List2);
            EXPECT_NEAR(flat.Item(k + 1).List1->Last().x,
                        flat.Item(k).List1->Last().x + (before.right - before.left), Near);
            EXPECT_EQ(flat.Item(k + 1).List1->Last().y, 0);
        }
    }
}

/// Equal turns touch, and turns that grow overlap.
TEST(AugerPattern, OnlyTurnsThatGrowOverlap) {
    const auto gap = [](const CAuger& auger) {
        const CRuleSurfs flat = PatternOfAuger(auger);
        return AcrossSheet(*flat.Item(2).List2).left - AcrossSheet(*flat.Item(1).List2).right;
    };
    EXPECT_NEAR(gap(AugerOf(2, 100)), 0, 0.1);
    EXPECT_GT(gap(AugerThatTapers()), 1);
    CAuger growing = AugerThatTapers();
    std::swap(growing.OutsideDia1, growing.OutsideDia2);
    std::swap(growing.InsideDia1, growing.InsideDia2);
    EXPECT_LT(gap(growing), -1);
}

TEST(AugerPlate, RadiiAreThoseOfTheHelixAndTheFlightWidth) {
    const double inner = HelixLength(80, 280) / (2 * TruePi);
    const double outer = HelixLength(300, 280) / (2 * TruePi);
    for (const auto& [form, a, b] :
         {std::tuple{PlateFromInside, inner, inner + 110}, {PlateFromOutside, outer - 110, outer}}) {
        const CRuleSurfs flat = PatternOfAuger(FlatPlateAuger(form));
        ASSERT_EQ(flat.Count(), 1U);
        for (std::size_t i = 1; i <= 25; ++i) {
            EXPECT_NEAR(std::hypot(flat.Item(1).List1->Item(i).x, flat.Item(1).List1->Item(i).y), a, Near);
            EXPECT_NEAR(std::hypot(flat.Item(1).List2->Item(i).x, flat.Item(1).List2->Item(i).y), b, Near);
        }
    }
}

TEST(AugerPlate, IsAClosedRingFromTheSeamOn) {
    CAuger auger = FlatPlateAuger(PlateFromInside);
    auger.inputs.JoinAngle = 1;
    const CRuleSurf ring = PatternOfAuger(auger).Item(1);
    ASSERT_EQ(ring.List1->Count(), 25U);
    for (const C3DPoints& edge : {*ring.List1, *ring.List2}) {
        EXPECT_NEAR(PlanAngle({}, edge.Item(1)), 1, Near);
        EXPECT_NEAR(PlanAngle({}, edge.Item(4)), 1 + TruePi / 4, Near);
        EXPECT_LT(Distance3D(edge.Item(1), edge.Last()), Near);
        EXPECT_EQ(edge.Item(2).Flag, PlainStation);
        EXPECT_EQ(edge.Item(3).Flag, RuleStation);
    }
    ASSERT_TRUE(ring.RefPoint);
    EXPECT_TRUE(Same(*ring.RefPoint, {}));
    EXPECT_TRUE(ring.RefPointDisplay);
}

TEST(AugerPlate, IsMadeWithoutTheModel) {
    CAuger auger = FlatPlateAuger(PlateFromOutside);
    auger.inputs.HalfPattern = true;
    auger.DevelopModel();
    EXPECT_EQ(auger.results.ModelSurfaceList.Count(), 0U);
    EXPECT_TRUE(auger.results.warnings.empty());
    auger.ConstructModel();
    EXPECT_EQ(auger.results.ModelSurfaceList.Count(), 1U);
    EXPECT_EQ(auger.results.warnings.size(), 1U);
}

TEST(AugerPattern, HasNoLapsAndStartsFromNothing) {
    for (CAuger auger : {AugerOf(1.5), AugerThatTapers(), FlatPlateAuger(PlateFromInside),
                         FlatPlateAuger(PlateFromOutside)}) {
        auger.DevelopModel();
        const CRuleSurfs before = auger.results.PatternSurfaceList;
        auger.inputs.JoinType = 1;
        auger.inputs.LapSize0 = auger.inputs.LapSize1 = auger.inputs.LapSize2 = 10;
        auger.DevelopModel();
        const CRuleSurfs& after = auger.results.PatternSurfaceList;
        ASSERT_EQ(after.Count(), before.Count());
        for (std::size_t k = 1; k <= after.Count(); ++k) {
            EXPECT_TRUE(SamePoints(*after.Item(k).List1, *before.Item(k).List1));
            EXPECT_TRUE(SamePoints(*after.Item(k).List2, *before.Item(k).List2));
            EXPECT_FALSE(after.Item(k).LapList1);
        }
    }
}

void ExpectNoAuger(CAuger auger) {
    EXPECT_THROW(auger.ConstructModel(), ArithmeticError);
    EXPECT_THROW(auger.DevelopModel(), ArithmeticError);
}

TEST(AugerWithoutAShape, HasAFlightBeyondTheAxis) {
    for (CAuger auger : {AugerOf(2), FlatPlateAuger(PlateFromInside), FlatPlateAuger(PlateFromOutside)}) {
        auger.InsideDia1 = auger.InsideDia2 = 0;
        EXPECT_NO_THROW(auger.ConstructModel());
        EXPECT_NO_THROW(auger.DevelopModel());
        auger.InsideDia1 = auger.InsideDia2 = -0.001;
        ExpectNoAuger(auger);
    }
    CAuger tapered = AugerThatTapers();
    tapered.InsideDia2 = -1;
    ExpectNoAuger(tapered);
    ExpectNoAuger(
        AugerThatTapers(4000));  // the taper of 80 in 585 has used up the shaft of 170 by half of it
}

/// At such a pitch the flat ring has room inside, but the flight has none.
TEST(AugerWithoutAShape, HasNoRingEitherWhereThatWouldBeWider) {
    CAuger auger = FlatPlateAuger(PlateFromOutside);
    auger.InsideDia1 = auger.InsideDia2 = -20;
    auger.Pitch = auger.Length = 2000;
    ExpectNoAuger(auger);
}

TEST(AugerWithoutAShape, HasNoTurn) {
    ExpectNoAuger(AugerOf(0));
    ExpectNoAuger(AugerOf(1e-10));
    ExpectNoAuger(AugerOf(-1));
    CAuger auger = AugerOf(1);
    auger.Pitch = 0;
    ExpectNoAuger(auger);
}

TEST(AugerWithoutAShape, HasMoreStationsThanTheMemoryHolds) {
    EXPECT_EQ(ModelOfAuger(AugerOf(3200, 312)).Count(), 3200U);  // of 625: two million
    ExpectNoAuger(AugerOf(3200.5, 312));
    ExpectNoAuger(AugerOf(1e300, 1));
}

}  // namespace
}  // namespace korvet
