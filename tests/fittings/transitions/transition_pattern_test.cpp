// The flat pattern of a transition: true lengths, closed forms of shapes that have one, laps and halves.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "core/constants.h"
#include "tests/fittings/transitions/transition_samples.h"
#include "tests/support/flat_area.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

CTransition Developed(CTransition transition) {
    transition.DevelopModel();
    return transition;
}

/// A station of the model and of the pattern together, with the station that follows it in the model.
struct Station {
    C3DPoint a, b, c, d;  ///< of the model: this ruling from a to b, the next from c to d
    C3DPoint flatA, flatB, flatC, flatD;
};

std::vector<Station> Stations(const CTransition& transition) {
    const CRuleSurf& model = transition.results.ModelSurface;
    const CRuleSurf& pattern = transition.results.PatternSurface;
    const std::size_t n = model.List1->Count();
    std::vector<Station> stations;
    for (std::size_t i = 1; i < n; ++i) {
        const std::size_t k = n - i + 1;
        stations.push_back({model.List1->Item(i), model.List2->Item(i), model.List1->Item(i + 1),
                            model.List2->Item(i + 1), pattern.List1->Item(k), pattern.List2->Item(k),
                            pattern.List1->Item(k - 1), pattern.List2->Item(k - 1)});
    }
    return stations;
}

/// A line of the shop floor: a shape by its name.
struct Sample {
    std::string name;
    CTransition transition;
};

void PrintTo(const Sample& sample, std::ostream* out) {
    *out << sample.name;
}

std::vector<Sample> Samples() {
    const SampleSection circle = CircleSection(150);
    const SampleSection sharp = RectangleSection(300, 200);
    const SampleSection folded = RectangleSection(300, 200, 25);
    std::vector<Sample> samples = {
        {"rectangle to round", TransitionOf(circle, sharp, 250)},
        {"below the base", TransitionOf(circle, sharp, -250)},
        {"wider than the base", TransitionOf(CircleSection(500), sharp, 120)},
        {"offset", Skewed(TransitionOf(circle, folded, 250), 60, -35, 0, 0, 0, 0)},
        {"tilted", Skewed(TransitionOf(circle, sharp, 250), 40, 20, 0, 25, 10, 0)},
        {"tilted about both axes", Skewed(TransitionOf(circle, folded, 250), 0, 0, -15, 30, 20, -10)},
        {"standing on edge", Skewed(TransitionOf(circle, folded, 250), 0, 0, 90, 0, 0, 0)},
        {"ellipse", TransitionOf(EllipseSection(180, 90), folded, 160)},
        {"ellipse across", Skewed(TransitionOf(EllipseSection(90, 280), folded, 160), -30, 12, 0, 20, 0, 0)},
        {"oval", TransitionOf(OvalSection(260, 100), OvalSection(340, 240), 180)},
        {"oval offset",
         Skewed(TransitionOf(OvalSection(260, 100), OvalSection(340, 240), 180), 25, 40, 0, 0, 0, 0)},
        {"folded", TransitionOf(RectangleSection(150, 120, 10), folded, 100)},
        {"level", TransitionOf(RectangleSection(150, 120), folded, 0.01)},
    };
    for (const int segs : {1, 2, 3, 5, 7, 25, 144}) {
        samples.push_back({std::to_string(segs) + " segments", TransitionOf(circle, folded, 250)});
        samples.back().transition.inputs.segs = segs;
    }
    samples.push_back({"half", TransitionOf(circle, folded, 250)});
    samples.back().transition.inputs.HalfPattern = true;
    return samples;
}

class TransitionPatternOf : public testing::TestWithParam<Sample> {};

TEST_P(TransitionPatternOf, KeepsRulingsTopEdgeAndOneDiagonal) {
    const CTransition transition = Developed(GetParam().transition);
    for (const Station& s : Stations(transition)) {
        EXPECT_NEAR(Distance3D(s.flatA, s.flatB), Distance3D(s.a, s.b), 1e-8);
        EXPECT_NEAR(Distance3D(s.flatC, s.flatD), Distance3D(s.c, s.d), 1e-8);
        EXPECT_NEAR(Distance3D(s.flatA, s.flatC), Distance3D(s.a, s.c), 1e-8);
        EXPECT_NEAR(Distance3D(s.flatB, s.flatC), Distance3D(s.b, s.c), 1e-7);
        EXPECT_EQ(s.flatA.Flag, s.a.Flag);
        EXPECT_EQ(s.flatB.Flag, s.b.Flag);
        EXPECT_EQ(s.flatD.z, 0);
    }
}

TEST_P(TransitionPatternOf, TheOtherDiagonalGivesTheNextRulingItsDirection) {
    const CTransition transition = Developed(GetParam().transition);
    for (const Station& s : Stations(transition)) {
        // The true place of d beside the flat ruling a b, from its distances to a and b: so far along the
        // ruling, so far out on the clockwise side.
        const double ab = Distance3D(s.a, s.b);
        const double ad = Distance3D(s.a, s.d);
        const double bd = Distance3D(s.b, s.d);
        const double along = (ab * ab + ad * ad - bd * bd) / (2 * ab);
        const double out = std::sqrt(std::max(0.0, ad * ad - along * along));
        const double ex = (s.flatB.x - s.flatA.x) / ab;
        const double ey = (s.flatB.y - s.flatA.y) / ab;
        const double dx = s.flatA.x + ex * along + ey * out - s.flatC.x;
        const double dy = s.flatA.y + ey * along - ex * out - s.flatC.y;
        const double rx = s.flatD.x - s.flatC.x;
        const double ry = s.flatD.y - s.flatC.y;
        const double scale = std::hypot(dx, dy) * std::hypot(rx, ry);
        EXPECT_NEAR((dx * rx + dy * ry) / scale, 1, 1e-9);
        EXPECT_NEAR((dx * ry - dy * rx) / scale, 0, 1e-6);
    }
}

TEST_P(TransitionPatternOf, StartsAlongXAndEndsOnTheSameRuling) {
    const CTransition transition = Developed(GetParam().transition);
    const CRuleSurf& pattern = transition.results.PatternSurface;
    const std::size_t n = pattern.List1->Count();
    EXPECT_EQ(n, transition.results.ModelSurface.List1->Count());
    EXPECT_EQ(pattern.List1->Item(n).x, 0);
    EXPECT_EQ(pattern.List1->Item(n).y, 0);
    EXPECT_EQ(pattern.List2->Item(n).y, 0);
    EXPECT_GT(pattern.List2->Item(n).x, 0);
    EXPECT_TRUE(transition.results.warnings.empty());
}

INSTANTIATE_TEST_SUITE_P(Shapes, TransitionPatternOf, testing::ValuesIn(Samples()));

double Length(const C3DPoints& edge) {
    double length = 0;
    for (std::size_t i = 2; i <= edge.Count(); ++i) {
        length += Distance3D(edge.Item(i - 1), edge.Item(i));
    }
    return length;
}

double PatternArea(const CTransition& transition) {
    return std::fabs(FlatArea(transition.results.PatternSurface));
}

double TriangleArea(const C3DPoint& p, const C3DPoint& q, const C3DPoint& r) {
    const double ux = q.x - p.x, uy = q.y - p.y, uz = q.z - p.z;
    const double vx = r.x - p.x, vy = r.y - p.y, vz = r.z - p.z;
    return std::hypot(uy * vz - uz * vy, uz * vx - ux * vz, ux * vy - uy * vx) / 2;
}

TEST(TransitionPattern, OfAPointOrAnEdgeAtOneEndKeepsItsArea) {
    // A pyramid of 200 by 120 and 80 high: triangles of slant height 100 over 200 and 128.0625 over 120.
    const double pyramid = 200 * 100 + 120 * std::hypot(80, 100);
    const CTransition toPoint =
        Developed(TransitionOf(RectangleSection(0, 0), RectangleSection(200, 120), 80));
    EXPECT_NEAR(PatternArea(toPoint), pyramid, 1e-6);
    const CTransition fromPoint =
        Developed(TransitionOf(RectangleSection(200, 120), RectangleSection(0, 0), 80));
    EXPECT_NEAR(PatternArea(fromPoint), pyramid, 1e-6);
    // A wedge with an edge of 200: two sides of slant height 100, and two triangles of height 80.
    const CTransition wedge =
        Developed(TransitionOf(RectangleSection(200, 0), RectangleSection(200, 120), 80));
    EXPECT_NEAR(PatternArea(wedge), 2 * 200 * 100 + 120 * 80, 1e-6);
    // A round point over it, developed in fans: the same pyramid.
    const CTransition fan = Developed(TransitionOf(CircleSection(0), RectangleSection(200, 120), 80));
    EXPECT_NEAR(PatternArea(fan), pyramid, 1e-6);
}

TEST(TransitionPattern, FlatSidedShapesKeepTheirArea) {
    // A pyramid cut off: four trapezoids of slant height sqrt(120^2 + 50^2) = 130.
    const CTransition pyramid =
        Developed(TransitionOf(RectangleSection(100, 100), RectangleSection(200, 200), 120));
    EXPECT_NEAR(PatternArea(pyramid), 4 * 150 * 130, 1e-6);
    // A box without bottom and lid.
    const CTransition box = Developed(TransitionOf(RectangleSection(60, 40), RectangleSection(60, 40), 100));
    EXPECT_NEAR(PatternArea(box), 200 * 100, 1e-6);
    // Half of it.
    CTransition half = TransitionOf(RectangleSection(100, 100), RectangleSection(200, 200), 120);
    half.inputs.HalfPattern = true;
    EXPECT_NEAR(PatternArea(Developed(half)), 2 * 150 * 130, 1e-6);
}

TEST(TransitionPattern, OverSharpCornersTheBaseEdgeAndTheAreaHoldToo) {
    // Every quadrilateral is a triangle there or lies in a plane, so nothing is left to be inexact.
    const CTransition transition =
        Developed(TransitionOf(CircleSection(150), RectangleSection(300, 200), 250));
    double area = 0;
    for (const Station& s : Stations(transition)) {
        EXPECT_NEAR(Distance3D(s.flatB, s.flatD), Distance3D(s.b, s.d), 1e-7);
        area += TriangleArea(s.a, s.b, s.c) + TriangleArea(s.b, s.c, s.d);
    }
    EXPECT_NEAR(PatternArea(transition), area, 1e-6);
}

TEST(TransitionPattern, BetweenTiltedRoundCornersTheBaseEdgeDrifts) {
    // Chords of the two corners are parallel in level sections, so that four points lie in one plane; a tilt
    // warps them.
    const CTransition transition = Developed(
        Skewed(TransitionOf(CircleSection(150), RectangleSection(300, 200, 60), 250), 60, 0, 0, 30, 0, 0));
    double worst = 0;
    for (const Station& s : Stations(transition)) {
        worst = std::max(worst, std::fabs(Distance3D(s.flatB, s.flatD) - Distance3D(s.b, s.d)));
    }
    EXPECT_GT(worst, 1e-4);
    EXPECT_LT(worst, 0.5);
}

TEST(TransitionPattern, EqualSectionsUnrollToARectangle) {
    struct Case {
        SampleSection section;
        double straight;  ///< of the outline
        double diameter;  ///< of the round corners together
    };
    for (const auto& [section, straight, diameter] :
         {Case{CircleSection(100), 0, 100}, Case{OvalSection(300, 100), 400, 100},
          Case{RectangleSection(200, 120, 20), 480, 40}, Case{RectangleSection(200, 120), 640, 0}}) {
        const CTransition transition = Developed(TransitionOf(section, section, 80));
        // The corners together are a polygon of 48 sides.
        const double girth = straight + 48 * diameter * std::sin(PI / 48);
        for (const Station& s : Stations(transition)) {
            EXPECT_NEAR(s.flatC.x, 0, 1e-7);
            EXPECT_NEAR(s.flatD.x, 80, 1e-7);
            EXPECT_NEAR(s.flatC.y, s.flatD.y, 1e-7);
        }
        EXPECT_NEAR(transition.results.PatternSurface.List1->Item(1).y, -girth, 1e-7);
        EXPECT_NEAR(PatternArea(transition), girth * 80, 1e-4);
    }
}

TEST(TransitionPattern, CirclesOverEachOtherUnrollAboutTheApexOfTheirCone) {
    // Radii 50 and 100, 200 high: the apex lies as far beyond the top as the base lies below it.
    const double slant = std::hypot(50, 200);
    const CTransition transition = Developed(TransitionOf(CircleSection(100), CircleSection(200), 200));
    const C3DPoint apex = {-slant, 0, 0, 0};
    for (const Station& s : Stations(transition)) {
        EXPECT_NEAR(Distance3D(apex, s.flatC), slant, 1e-7);
        EXPECT_NEAR(Distance3D(apex, s.flatD), 2 * slant, 1e-7);
    }
    // Clockwise: 48 triangles with base 100 sin(180 / 48 degrees) and legs of the slant.
    const double turn = 48 * 2 * std::asin(50 * std::sin(PI / 48) / slant);
    EXPECT_NEAR(PlanAngle(apex, transition.results.PatternSurface.List1->Item(1)), FullTurn - turn, 1e-8);
}

TEST(TransitionPattern, AHalfIsTheFirstHalfOfTheWhole) {
    CTransition half = TransitionOf(EllipseSection(180, 90), RectangleSection(300, 200, 25), 160);
    const CTransition whole = Developed(half);
    half.inputs.HalfPattern = true;
    half = Developed(half);
    const CRuleSurf& wholePattern = whole.results.PatternSurface;
    const CRuleSurf& halfPattern = half.results.PatternSurface;
    ASSERT_EQ(halfPattern.List1->Count(), 28U);
    for (std::size_t i = 0; i < 27; ++i) {
        EXPECT_LT(Distance3D(halfPattern.List1->Item(28 - i), wholePattern.List1->Item(54 - i)), 1e-9);
        EXPECT_LT(Distance3D(halfPattern.List2->Item(28 - i), wholePattern.List2->Item(54 - i)), 1e-9);
    }
    EXPECT_NEAR(Distance3D(halfPattern.List1->Item(1), halfPattern.List2->Item(1)), std::hypot(60, 160),
                1e-9);
}

TEST(TransitionPattern, NarrowStepsRoundASmallCornerKeepTheirLength) {
    // On a height of 1500 the steps round a corner of radius 2 are below a ten-thousandth of their rulings.
    for (int segs = 4; segs <= 2000; segs += 2) {
        CTransition transition = TransitionOf(CircleSection(600), RectangleSection(800, 600, 2), 1500);
        transition.inputs.segs = segs;
        transition.DevelopModel();
        const CRuleSurf& model = transition.results.ModelSurface;
        const CRuleSurf& pattern = transition.results.PatternSurface;
        for (const PointList CRuleSurf::*edge : {&CRuleSurf::List1, &CRuleSurf::List2}) {
            const double length = Length(*(model.*edge));
            EXPECT_NEAR(Length(*(pattern.*edge)), length, 1e-9 * length) << segs;
        }
    }
}

TEST(TransitionPattern, ManySegmentsTakeNoSpecialCare) {
    CTransition transition = TransitionOf(CircleSection(20000), RectangleSection(30000, 24000, 3000), 900);
    transition.inputs.segs = 100000;
    transition = Developed(transition);
    ASSERT_EQ(transition.results.PatternSurface.List1->Count(), 4 * 50001 + 2U);
    const C3DPoint& first = transition.results.PatternSurface.List1->Item(1);
    const C3DPoint& second = transition.results.PatternSurface.List2->Item(1);
    EXPECT_NEAR(Distance3D(first, second), std::hypot(5000, 900), 1e-6) << "the seam, once more";
}

/// A nearly level ring of radii 50 and 100, whose sheet leaves only a narrow gap.
CTransition Ring() {
    CTransition ring = TransitionOf(CircleSection(100), CircleSection(200), 20);
    ring.inputs.JoinType = 1;
    return ring;
}

/// Gap between the ends of the ring's sheet at a radius on the flat: an isosceles triangle whose angle is
/// what the 48 facets leave of the full turn.
double RingGap(double reach) {
    const double slant = std::hypot(50, 20);
    const double turn = 48 * 2 * std::asin(50 * std::sin(PI / 48) / slant);
    return 2 * reach * std::sin((FullTurn - turn) / 2);
}

TEST(TransitionLaps, AreLaidAlongTheRulingsAndBeyondTheSeam) {
    CTransition transition = TransitionOf(CircleSection(150), RectangleSection(300, 200), 250);
    const CTransition plain = Developed(transition);
    transition.inputs.JoinType = 1;
    transition.inputs.LapSize0 = 8;
    transition.inputs.LapSize1 = 12;
    transition.inputs.LapSize2 = 5;
    transition = Developed(transition);
    const CRuleSurf& lapped = transition.results.PatternSurface;
    ASSERT_EQ(lapped.List1->Count(), 55U);
    ASSERT_EQ(lapped.LapList2->Count(), 55U);
    for (std::size_t i = 1; i <= 54; ++i) {
        const C3DPoint& fold1 = lapped.LapList1->Item(i);
        const C3DPoint& fold2 = lapped.LapList2->Item(i);
        EXPECT_LT(Distance3D(fold1, plain.results.PatternSurface.List1->Item(i)), 1e-12);
        EXPECT_LT(Distance3D(fold2, plain.results.PatternSurface.List2->Item(i)), 1e-12);
        EXPECT_NEAR(Distance3D(fold1, lapped.List1->Item(i)), 8, 1e-9);
        EXPECT_NEAR(Distance3D(fold2, lapped.List2->Item(i)), 5, 1e-9);
        EXPECT_NEAR(Distance3D(lapped.List1->Item(i), lapped.List2->Item(i)), Distance3D(fold1, fold2) + 13,
                    1e-8);
    }
    // The seam is the first ruling, along x; the strip turned down from it, so the tab stands above.
    EXPECT_NEAR(lapped.LapList1->Item(55).y, 12, 1e-9);
    EXPECT_NEAR(lapped.LapList2->Item(55).y, 12, 1e-9);
    EXPECT_EQ(lapped.List1->Item(54).Flag, CornerRuleStation);
    EXPECT_EQ(lapped.List1->Item(55).Flag, LapClosure);
    EXPECT_TRUE(transition.results.warnings.empty());
}

TEST(TransitionLaps, ASeamLapWiderThanTheGapWarnsAndIsLaid) {
    const double gap = RingGap(std::hypot(50, 20));
    for (const auto& [lap, warned] : {std::pair{gap - 1e-6, false}, std::pair{gap + 1e-6, true}}) {
        CTransition ring = Ring();
        ring.inputs.LapSize1 = lap;
        ring = Developed(ring);
        ASSERT_EQ(ring.results.warnings.size(), warned ? 1U : 0U) << lap;
        EXPECT_EQ(ring.results.PatternSurface.List1->Count(), 55U);
        if (warned) {
            EXPECT_EQ(ring.results.warnings[0].messageId, SeamLapTooLarge);
            EXPECT_TRUE(ring.results.warnings[0].userError);
        }
    }
}

TEST(TransitionLaps, TheGapIsThatOfTheLappedEdge) {
    // A lap of 4 on the top brings its ends 4 nearer to the apex, and so to each other.
    const double gap = RingGap(std::hypot(50, 20) - 4);
    for (const auto& [lap, warned] : {std::pair{gap - 1e-6, false}, std::pair{gap + 1e-6, true}}) {
        CTransition ring = Ring();
        ring.inputs.LapSize0 = 4;
        ring.inputs.LapSize1 = lap;
        EXPECT_EQ(Developed(ring).results.warnings.size(), warned ? 1U : 0U);
    }
}

TEST(TransitionLaps, EitherEdgeMayBeTheNarrowOne) {
    // Upside down the narrow end is List2's.
    CTransition ring = TransitionOf(CircleSection(200), CircleSection(100), 20);
    ring.inputs.JoinType = 1;
    ring.inputs.LapSize1 = RingGap(std::hypot(50, 20)) + 1;
    EXPECT_EQ(Developed(ring).results.warnings.size(), 1U);
}

TEST(TransitionLaps, NoneWithoutAJoin) {
    CTransition transition = TransitionOf(CircleSection(150), RectangleSection(300, 200), 250);
    transition.inputs.LapSize0 = transition.inputs.LapSize1 = transition.inputs.LapSize2 = 10;
    const CTransition developed = Developed(transition);
    EXPECT_EQ(developed.results.PatternSurface.List1->Count(), 54U);
    EXPECT_FALSE(developed.results.PatternSurface.LapList1);
}

}  // namespace
}  // namespace korvet
