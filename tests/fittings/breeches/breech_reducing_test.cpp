// The reducing breech against the bodies that meet in it: a pipe and two cones, each given by its end and by
// a sphere that its wall touches.
#include "fittings/breeches/breech_reducing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "core/checked.h"
#include "core/constants.h"
#include "tests/fittings/breeches/breech_reading.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet::reducing_breech_test {
namespace {

constexpr double Pipe = 150;

struct Shape {
    double coneA;
    double coneB;
    double length;
    double degreesA;
    double degreesB;
};

CBreechReducing Breech(const Shape& shape, int segs = 24) {
    CBreechReducing breech;
    breech.PipeRad = Pipe;
    breech.PipeLength = 400;
    breech.ConeRadA = shape.coneA;
    breech.ConeRadB = shape.coneB;
    breech.ConeLengthA = breech.ConeLengthB = shape.length;
    breech.CLAngleA = DegToRad(shape.degreesA);
    breech.CLAngleB = DegToRad(shape.degreesB);
    breech.inputs.segs = segs;
    return breech;
}

constexpr Shape Even = {90, 90, 420, 40, 40};
constexpr Shape Crooked = {75, 105, 450, 35, 55};

/// Like and unlike branches, narrow and nearly as wide as the pipe, upright, level, far apart and close
/// together, and one whose inner wall lies in a line with that of the other.
const std::vector<Shape> Shapes = {Even,
                                   Crooked,
                                   {85, 85, 400, 25, 60},
                                   {90, 90, 400, 0, 70},
                                   {90, 90, 400, 70, 0},
                                   {90, 90, 500, 90, 90},
                                   {60, 140, 600, 90, 20},
                                   {120, 30, 300, 80, 45},
                                   {149.99, 149.99, 900, 30, 30},
                                   {149.99, 60, 900, 0, 50},
                                   {149.999, 149, 2000, 89, 88},
                                   {5, 5, 1500, 8, 8},
                                   {75, 75, 300 - 75 * std::numbers::sqrt3, 60, 60},
                                   {140, 20, 5000, 3, 4}};

/// A round body in space that touches the sphere about the origin.
struct Body {
    C3DPoint axis;     ///< of length 1, towards the free end
    double halfAngle;  ///< 0 for a pipe
};

/// The angle of the cone with a rim at radius a and height L, found by halving: its wall, r cos + z sin =
/// const, is the radius of the sphere away from the origin.
double HalfAngleOf(double a, double L) {
    double low = 0;
    double high = std::atan2(L, a);
    for (int i = 0; i < 200; ++i) {
        const double middle = (low + high) / 2;
        (a * std::cos(middle) + L * std::sin(middle) < Pipe ? low : high) = middle;
    }
    return low;
}

Body MainPipe() {
    return {{0, 0, -1, 0}, 0};
}
Body BranchA(const CBreechReducing& breech) {
    return {{-std::sin(breech.CLAngleA), 0, std::cos(breech.CLAngleA), 0},
            HalfAngleOf(breech.ConeRadA, breech.ConeLengthA)};
}
Body BranchB(const CBreechReducing& breech) {
    return {{std::sin(breech.CLAngleB), 0, std::cos(breech.CLAngleB), 0},
            HalfAngleOf(breech.ConeRadB, breech.ConeLengthB)};
}

double AlongAxis(const C3DPoint& p, const Body& body) {
    return p.x * body.axis.x + p.z * body.axis.z;
}

/// Distance of a point from the wall, above 0 outside.
double OffWall(const C3DPoint& p, const Body& body) {
    const double along = AlongAxis(p, body);
    const double off = std::hypot(p.x - along * body.axis.x, p.y, p.z - along * body.axis.z);
    return off * std::cos(body.halfAngle) + along * std::sin(body.halfAngle) - Pipe;
}

const CRuleSurf& Model(const CBreechReducing& breech, std::size_t piece) {
    return breech.results.ModelSurfaceList.Item(piece);
}

const C3DPoints& CutOf(const CBreechReducing& breech, std::size_t piece) {
    return piece == 1 ? *Model(breech, 1).List1 : *Model(breech, piece).List2;
}
const C3DPoints& EndOf(const CBreechReducing& breech, std::size_t piece) {
    return piece == 1 ? *Model(breech, 1).List2 : *Model(breech, piece).List1;
}

/// Every cut point of a piece lies on its own wall and on that of the body beyond: `near` on the side where
/// the stations begin, `far` beyond the ridge, both at its ends.
void ExpectCutOnWalls(const C3DPoints& cut, const Body& own, const Body& near, const Body& far,
                      double tolerance) {
    const std::vector<std::size_t> ridge = RidgeStations(cut);
    ASSERT_EQ(ridge.size(), 2U);
    for (std::size_t i = 1; i <= cut.Count(); ++i) {
        const C3DPoint& p = cut.Item(i);
        EXPECT_NEAR(OffWall(p, own), 0, tolerance) << i;
        if (i <= ridge[0] || i >= ridge[1]) {
            EXPECT_NEAR(OffWall(p, near), 0, tolerance) << i;
        }
        if (i >= ridge[0] && i <= ridge[1]) {
            EXPECT_NEAR(OffWall(p, far), 0, tolerance) << i;
        }
    }
}

class ReducingBreeches : public testing::TestWithParam<Shape> {
  protected:
    /// Of the tip of a cone that is far away come the digits that its points lack.
    static double Tolerance() { return 1e-7 * Pipe; }
};

TEST_P(ReducingBreeches, CutsLieOnTheWallsOfTheNeighbours) {
    for (const int segs : {1, 2, 7, 24, 25}) {
        CBreechReducing breech = Breech(GetParam(), segs);
        breech.ConstructModel();
        const Body a = BranchA(breech);
        const Body b = BranchB(breech);
        ASSERT_EQ(breech.results.ModelSurfaceList.Count(), 3U);
        ExpectCutOnWalls(CutOf(breech, 1), MainPipe(), b, a, Tolerance());
        ExpectCutOnWalls(CutOf(breech, 2), a, b, MainPipe(), Tolerance());
        ExpectCutOnWalls(CutOf(breech, 3), b, a, MainPipe(), Tolerance());
    }
}

TEST_P(ReducingBreeches, RidgesOfAllPiecesAreTheSamePoints) {
    CBreechReducing breech = Breech(GetParam());
    breech.ConstructModel();
    const C3DPoints& cut = CutOf(breech, 1);
    const std::vector<std::size_t> ridge = RidgeStations(cut);
    for (const std::size_t piece : {2U, 3U}) {
        const C3DPoints& other = CutOf(breech, piece);
        const std::vector<std::size_t> ends = RidgeStations(other);
        const bool mirrored = piece == 3;  // its stations begin on the left and run the other way
        EXPECT_LT(Distance3D(other.Item(ends[mirrored ? 1 : 0]), cut.Item(ridge[0])), Tolerance());
        EXPECT_LT(Distance3D(other.Item(ends[mirrored ? 0 : 1]), cut.Item(ridge[1])), Tolerance());
    }
}

TEST_P(ReducingBreeches, FreeEndsAreTheCirclesThatWereAskedFor) {
    CBreechReducing breech = Breech(GetParam());
    breech.ConstructModel();
    const std::vector<std::pair<Body, std::pair<double, double>>> ends = {
        {MainPipe(), {Pipe, breech.PipeLength}},
        {BranchA(breech), {breech.ConeRadA, breech.ConeLengthA}},
        {BranchB(breech), {breech.ConeRadB, breech.ConeLengthB}}};
    for (std::size_t piece = 1; piece <= 3; ++piece) {
        const auto& [body, size] = ends[piece - 1];
        for (const C3DPoint& p : EndOf(breech, piece)) {
            const double along = AlongAxis(p, body);
            EXPECT_NEAR(along, size.second, Tolerance()) << piece;
            EXPECT_NEAR(std::hypot(p.x - along * body.axis.x, p.y, p.z - along * body.axis.z), size.first,
                        Tolerance())
                << piece;
        }
    }
}

TEST_P(ReducingBreeches, NoCutRunsPastItsFreeEnd) {
    CBreechReducing breech = Breech(GetParam());
    breech.ConstructModel();
    const Body bodies[] = {MainPipe(), BranchA(breech), BranchB(breech)};
    for (std::size_t piece = 1; piece <= 3; ++piece) {
        for (std::size_t i = 1; i <= CutOf(breech, piece).Count(); ++i) {
            EXPECT_GT(AlongAxis(EndOf(breech, piece).Item(i), bodies[piece - 1]),
                      AlongAxis(CutOf(breech, piece).Item(i), bodies[piece - 1]));
        }
    }
}

CBreechReducing Developed(const Shape& shape, ReducingBreechPattern pattern, int segs) {
    CBreechReducing breech = Breech(shape, segs);
    breech.inputs.Miscellaneous = pattern;
    breech.DevelopModel();
    EXPECT_EQ(breech.results.PatternSurfaceList.Count(), 1U);
    return breech;
}

const CRuleSurf& PatternOf(const CBreechReducing& breech) {
    return breech.results.PatternSurfaceList.Item(1);
}

/// The largest part by which the edges that are welded together differ in length on the patterns.
double WorstSeam(const Shape& shape, int segs) {
    const CutLengths main = LengthsOfCut(*PatternOf(Developed(shape, MainPipePattern, segs)).List1);
    const CutLengths a = LengthsOfCut(*PatternOf(Developed(shape, LeftBranchPattern, segs)).List2);
    const CutLengths b = LengthsOfCut(*PatternOf(Developed(shape, RightBranchPattern, segs)).List2);
    return std::max(
        {std::fabs(main.far / a.far - 1), std::fabs(main.near / b.far - 1), std::fabs(a.near / b.near - 1)});
}

TEST_P(ReducingBreeches, WeldedEdgesHaveOneLength) {
    EXPECT_LT(WorstSeam(GetParam(), 400), 1e-5);
}

TEST_P(ReducingBreeches, PatternsKeepTheRules) {
    for (const ReducingBreechPattern pattern : {MainPipePattern, LeftBranchPattern, RightBranchPattern}) {
        for (const int segs : {7, 24}) {
            const CBreechReducing breech = Developed(GetParam(), pattern, segs);
            const CRuleSurf& flat = PatternOf(breech);
            const CRuleSurf& model = Model(breech, static_cast<std::size_t>(pattern));
            ASSERT_EQ(flat.List1->Count(), model.List1->Count());
            for (std::size_t i = 1; i <= flat.List1->Count(); ++i) {
                EXPECT_NEAR(Distance3D(flat.List1->Item(i), flat.List2->Item(i)),
                            Distance3D(model.List1->Item(i), model.List2->Item(i)), Tolerance());
            }
        }
    }
}

TEST_P(ReducingBreeches, CutFilesKeepEveryPoint) {
    for (const int pattern : {1, 2, 3}) {
        for (const int segs : {3, 12, 24, 25, 48}) {
            CBreechReducing breech = Breech(GetParam(), segs);
            breech.inputs.HalfPattern = segs == 12 || segs == 25;
            breech.inputs.Miscellaneous = static_cast<std::int16_t>(pattern);
            breech.DevelopModel();
            ExpectCutFileKeepsPoints(breech.results.PatternSurfaceList);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, ReducingBreeches, testing::ValuesIn(Shapes));

TEST(ReducingBreechSeams, ComeNearerAsTheyGrowFiner) {
    for (const Shape& shape : {Even, Crooked, Shape{85, 85, 400, 25, 60}}) {
        EXPECT_LT(WorstSeam(shape, 24), 2e-3);
    }
}

TEST(ReducingBreechModel, LikeBranchesMeetInTheMiddle) {
    CBreechReducing breech = Breech(Even);
    breech.ConstructModel();
    const C3DPoints& cut = CutOf(breech, 1);
    const std::vector<std::size_t> ridge = RidgeStations(cut);
    EXPECT_NEAR(cut.Item(ridge[0]).x, 0, Near);
    EXPECT_NEAR(cut.Item(ridge[1]).x, 0, Near);
    for (const std::size_t piece : {2U, 3U}) {
        const C3DPoints& branch = CutOf(breech, piece);
        const std::vector<std::size_t> ends = RidgeStations(branch);
        for (std::size_t i = 1; i <= branch.Count(); ++i) {
            const double side = piece == 2 ? -1 : 1;
            if (i <= ends[0] || i >= ends[1]) {
                EXPECT_NEAR(branch.Item(i).x, 0, Near);
            } else {
                EXPECT_GT(branch.Item(i).x * side, -Near);
            }
        }
    }
}

TEST(ReducingBreechModel, SwappingTheBranchesMirrorsThePieces) {
    CBreechReducing breech = Breech(Crooked);
    CBreechReducing swapped =
        Breech({Crooked.coneB, Crooked.coneA, Crooked.length, Crooked.degreesB, Crooked.degreesA});
    breech.ConstructModel();
    swapped.ConstructModel();
    const C3DPoints& a = CutOf(breech, 2);
    const C3DPoints& b = CutOf(swapped, 3);
    ASSERT_EQ(a.Count(), b.Count());
    for (std::size_t i = 1; i <= a.Count(); ++i) {
        EXPECT_NEAR(a.Item(i).x, -b.Item(i).x, 1e-6);
        EXPECT_NEAR(a.Item(i).y, -b.Item(i).y, 1e-6);
        EXPECT_NEAR(a.Item(i).z, b.Item(i).z, 1e-6);
    }
}

TEST(ReducingBreechModel, HalvesLieOnOneSideOfTheirAxes) {
    CBreechReducing breech = Breech(Crooked);
    breech.inputs.HalfPattern = true;
    breech.ConstructModel();
    EXPECT_EQ(Model(breech, 1).List1->Count(), 26U);
    EXPECT_EQ(Model(breech, 2).List1->Count(), 14U);
    EXPECT_EQ(Model(breech, 3).List1->Count(), 14U);
    for (std::size_t piece = 1; piece <= 3; ++piece) {
        const double side = piece == 3 ? -1 : 1;
        for (const C3DPoint& p : CutOf(breech, piece)) {
            EXPECT_GT(p.y * side, -Near);
        }
        EXPECT_NEAR(CutOf(breech, piece).Item(1).y, 0, Near);
        EXPECT_NEAR(CutOf(breech, piece).Last().y, 0, 1e-6);
    }
}

/// What ends the build, "" for a breech that can be made.
std::string FaultOf(CBreechReducing breech) {
    std::string fault;
    for (const int pattern : {0, 1, 2, 3}) {
        breech.inputs.Miscellaneous = static_cast<std::int16_t>(pattern);
        std::string found;
        try {
            breech.DevelopModel();
        } catch (const ArithmeticError& error) {
            found = error.what();
        }
        EXPECT_TRUE(pattern == 0 || found == fault) << "another one for pattern " << pattern;
        fault = found;
    }
    return fault;
}

/// Level branches: the cut of the main pipe runs down to p tan((90 - half angle) / 2) below the centre.
TEST(ReducingBreechLimits, AMainPipeShorterThanItsCutIsNotMade) {
    CBreechReducing breech = Breech({90, 90, 500, 90, 90});
    const double needed = Pipe * std::tan((std::numbers::pi / 2 - HalfAngleOf(90, 500)) / 2);
    breech.PipeLength = needed + 1e-6;
    EXPECT_EQ(FaultOf(breech), "");
    breech.PipeLength = needed - 1e-6;
    EXPECT_EQ(FaultOf(breech), "the main pipe length is too short: the cut runs past the free end");
}

/// A level branch meets the wall of the main pipe half the pipe's diameter from the centre.
TEST(ReducingBreechLimits, ABranchShorterThanItsCutIsNotMade) {
    CBreechReducing breech = Breech({90, 90, Pipe + 1e-6, 90, 90});
    EXPECT_EQ(FaultOf(breech), "");
    breech = Breech({90, 90, Pipe - 1e-6, 90, 90});
    EXPECT_EQ(FaultOf(breech), "the branch length is too short: the cut runs past the free end");
    breech.ConeLengthA = 300;
    EXPECT_NE(FaultOf(breech), "") << "the other one alone";
}

TEST(ReducingBreechLimits, AnEndInsideTheSphereIsNotMade) {
    // The rim of an end of 90 lies on the sphere of 150 when it is 120 away.
    CBreechReducing breech = Breech({90, 90, 119.999, 90, 90});
    EXPECT_EQ(
        FaultOf(breech),
        "the branch length is too short: its end lies within half the pipe diameter of where the axes meet");
}

TEST(ReducingBreechLimits, ABranchAsWideAsThePipeIsNotMade) {
    EXPECT_EQ(FaultOf(Breech({150 - 1e-9, 90, 420, 40, 40})),
              "a branch is nearly as wide as the main pipe: its cone has no point within reach");
    EXPECT_EQ(FaultOf(Breech({90, 150, 420, 40, 40})),
              "a branch is nearly as wide as the main pipe: its cone has no point within reach");
    EXPECT_EQ(FaultOf(Breech({149.999, 149.999, 420, 40, 40})), "");
}

TEST(ReducingBreechPattern, IsThatOfThePieceThatIsChosen) {
    EXPECT_NEAR(PatternOf(Developed(Crooked, MainPipePattern, 24)).List1->Last().x,
                2 * std::numbers::pi * Pipe, 1e-9 * Pipe);
    const CBreechReducing left = Developed(Crooked, LeftBranchPattern, 24);
    const CBreechReducing right = Developed(Crooked, RightBranchPattern, 24);
    for (const auto& [breech, end] : {std::pair(&left, Crooked.coneA), std::pair(&right, Crooked.coneB)}) {
        const CRuleSurf& flat = PatternOf(*breech);
        ASSERT_TRUE(flat.RefPoint);
        const double slant = end / std::sin(HalfAngleOf(end, Crooked.length));
        for (const C3DPoint& p : *flat.List1) {
            EXPECT_NEAR(Distance3D(p, *flat.RefPoint), slant, 1e-9 * slant);
        }
    }
    CBreechReducing none = Breech(Crooked);
    none.DevelopModel();
    EXPECT_EQ(none.results.PatternSurfaceList.Count(), 0U);
    EXPECT_EQ(none.results.ModelSurfaceList.Count(), 3U);
}

TEST(ReducingBreechPattern, TakesTheLapAndTellsOfOneTooLarge) {
    for (const int pattern : {1, 2, 3}) {
        CBreechReducing breech = Breech(Crooked);
        breech.inputs.Miscellaneous = static_cast<std::int16_t>(pattern);
        breech.inputs.JoinType = 1;
        breech.inputs.LapSize1 = 14;
        breech.DevelopModel();
        const C3DPoints& edge = *PatternOf(breech).List1;
        EXPECT_EQ(edge.Count(), Model(breech, static_cast<std::size_t>(pattern)).List1->Count() + 1);
        EXPECT_NEAR(Distance3D(edge.Item(edge.Count() - 1), edge.Last()), 14, Near * Pipe);
        EXPECT_TRUE(breech.results.warnings.empty());
        breech.inputs.LapSize0 = 5000;
        breech.DevelopModel();
        ASSERT_EQ(breech.results.warnings.empty(), pattern == 1);
        EXPECT_TRUE(pattern == 1 || breech.results.warnings[0].messageId == TopLapTooLarge);
    }
}

TEST(ReducingBreechPattern, BuildsStartFromNothing) {
    CBreechReducing breech = Developed(Crooked, LeftBranchPattern, 24);
    const C3DPoints before = *PatternOf(breech).List2;
    breech.DevelopModel();
    EXPECT_EQ(breech.results.ModelSurfaceList.Count(), 3U);
    ASSERT_EQ(breech.results.PatternSurfaceList.Count(), 1U);
    EXPECT_TRUE(SamePoints(before, *PatternOf(breech).List2));
}

}  // namespace
}  // namespace korvet::reducing_breech_test
