// The reducing breech of two pieces against its circles and the plane between the pieces.
#include "fittings/breeches/breech_reducing_2prt.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "core/checked.h"
#include "core/constants.h"
#include "tests/fittings/breeches/breech_reading.h"
#include "tests/support/near.h"
#include "tests/support/point_lists.h"

namespace korvet::two_piece_breech_test {
namespace {

constexpr double Pipe = 125;
constexpr double Outlet = 72;

/// The outlets `length` from the pipe's centre, each `degrees` off its axis; their circles turned by `face`.
CBreechReducing2Prt Breech(double length, double degrees, double face, bool flush = false) {
    CBreechReducing2Prt breech;
    breech.PipeRad = Pipe;
    breech.ConeRadA = breech.ConeRadB = Outlet;
    breech.ConeLengthA = breech.ConeLengthB = length;
    breech.CLAngleA = DegToRad(degrees);
    breech.CLAngleB = -breech.CLAngleA;
    breech.ConeFaceAngleA = DegToRad(face);
    breech.ConeFaceAngleB = -breech.ConeFaceAngleA;
    breech.Offset = flush ? -(Pipe - Outlet) : 0;
    breech.inputs.segs = 12;
    return breech;
}

CBreechReducing2Prt AngleTop(bool flush = false) {
    return Breech(310, 35, -35, flush);
}
/// 290 high, 210 between the outlets.
CBreechReducing2Prt ParallelTop(bool flush = false) {
    return Breech(std::hypot(105, 290), std::atan2(105, 290) * 180 / std::numbers::pi, 0, flush);
}

/// Both kinds, on the centre line and on the flush side; narrow, wide and level; few fold lines and many, odd
/// ones too.
std::vector<CBreechReducing2Prt> Breeches() {
    std::vector<CBreechReducing2Prt> breeches;
    for (const bool flush : {false, true}) {
        for (const CBreechReducing2Prt& shape :
             {AngleTop(flush), ParallelTop(flush), Breech(400, 80, -80, flush), Breech(400, 20, -20, flush),
              Breech(300, 60, 0, flush)}) {
            for (const int segs : {1, 2, 3, 12, 13, 24}) {
                breeches.push_back(shape);
                breeches.back().inputs.segs = segs;
            }
        }
    }
    return breeches;
}

const CRuleSurf& Model(const CBreechReducing2Prt& breech, std::size_t piece) {
    return breech.results.ModelSurfaceList.Item(piece);
}

const CRuleSurf& PatternOf(const CBreechReducing2Prt& breech) {
    return breech.results.PatternSurfaceList.Item(1);
}

C3DPoint OutletCentre(const CBreechReducing2Prt& breech, std::size_t piece) {
    const double side = piece == 1 ? 1 : -1;
    return {side * breech.ConeLengthA * std::sin(breech.CLAngleA), breech.Offset,
            breech.ConeLengthA * std::cos(breech.CLAngleA), PlainStation};
}

/// How far x has come over the plane: below 0 on the other side.
double OnOwnSide(const C3DPoint& p, std::size_t piece) {
    return piece == 1 ? p.x : -p.x;
}

TEST(TwoPieceBreechModel, OutletsAreCircles) {
    for (CBreechReducing2Prt breech : Breeches()) {
        breech.ConstructModel();
        ASSERT_EQ(breech.results.ModelSurfaceList.Count(), 2U);
        for (const std::size_t piece : {1U, 2U}) {
            const C3DPoint centre = OutletCentre(breech, piece);
            // The face angle is counted from x to z.
            const double turn = piece == 1 ? breech.ConeFaceAngleA : -breech.ConeFaceAngleA;
            ASSERT_EQ(Model(breech, piece).List1->Count(),
                      2 * static_cast<std::size_t>(breech.inputs.segs) + 1);
            for (const C3DPoint& p : *Model(breech, piece).List1) {
                EXPECT_NEAR(Distance3D(p, centre), Outlet, Near * Pipe);
                EXPECT_NEAR((p.z - centre.z) * std::cos(turn) - (p.x - centre.x) * std::sin(turn), 0,
                            Near * Pipe);
            }
        }
    }
}

TEST(TwoPieceBreechModel, OutletsOfTheAngleTopAreSquareToTheirCentreLines) {
    CBreechReducing2Prt breech = AngleTop();
    breech.ConstructModel();
    for (const std::size_t piece : {1U, 2U}) {
        const C3DPoint centre = OutletCentre(breech, piece);
        for (const C3DPoint& p : *Model(breech, piece).List1) {
            EXPECT_NEAR(p.x * centre.x + p.z * centre.z, 310.0 * 310.0, 1e-6);
        }
    }
}

/// From the pipe's circle on the own side, from the plane on the other: there the rule is a stretch of the
/// one that would have come from the circle.
TEST(TwoPieceBreechModel, RulesBeginOnThePipeOrOnThePlane) {
    for (CBreechReducing2Prt breech : Breeches()) {
        breech.ConstructModel();
        const int stations = 2 * breech.inputs.segs;
        for (const std::size_t piece : {1U, 2U}) {
            for (int i = 0; i <= stations; ++i) {
                const C3DPoint& top = Model(breech, piece).List1->Item(static_cast<std::size_t>(i) + 1);
                const C3DPoint& foot = Model(breech, piece).List2->Item(static_cast<std::size_t>(i) + 1);
                const double t = (piece == 1 ? std::numbers::pi : 0) + 2 * std::numbers::pi * i / stations;
                const C3DPoint onPipe = {Pipe * std::cos(t), Pipe * std::sin(t), 0, PlainStation};
                const bool beyond = OnOwnSide(onPipe, piece) < -1e-5;
                EXPECT_EQ(foot.Flag, (i + 1) % 2 + (beyond || std::fabs(onPipe.x) < 5e-6 ? 4 : 0));
                EXPECT_EQ(top.Flag, (i + 1) % 2);
                if (!beyond) {
                    EXPECT_LT(Distance3D(foot, onPipe), Near * Pipe);
                    continue;
                }
                EXPECT_EQ(foot.x, 0);
                const double whole = Distance3D(onPipe, top);
                const double along =
                    ((foot.x - onPipe.x) * (top.x - onPipe.x) + (foot.y - onPipe.y) * (top.y - onPipe.y) +
                     (foot.z - onPipe.z) * (top.z - onPipe.z)) /
                    whole;
                const C3DPoint onRule = {onPipe.x + along / whole * (top.x - onPipe.x),
                                         onPipe.y + along / whole * (top.y - onPipe.y),
                                         onPipe.z + along / whole * (top.z - onPipe.z), PlainStation};
                EXPECT_LT(Distance3D(foot, onRule), 1e-8 * Pipe);
            }
        }
    }
}

/// Station by station one runs round the way the other does not.
TEST(TwoPieceBreechModel, PiecesAreMirrorImages) {
    for (CBreechReducing2Prt breech : Breeches()) {
        breech.ConstructModel();
        for (const auto list : {&CRuleSurf::List1, &CRuleSurf::List2}) {
            const C3DPoints& a = *(Model(breech, 1).*list);
            const C3DPoints& b = *(Model(breech, 2).*list);
            for (std::size_t i = 1; i <= a.Count(); ++i) {
                const C3DPoint& p = a.Item(i);
                const C3DPoint& q = b.Item(b.Count() + 1 - i);
                EXPECT_LT(Distance3D({-p.x, p.y, p.z, PlainStation}, q), 1e-8 * Pipe);
            }
        }
    }
}

/// So that one pattern makes both, without turning a plate over.
TEST(TwoPieceBreechModel, OnTheCentreLineTheSecondPieceIsTheFirstTurnedRound) {
    for (CBreechReducing2Prt breech : {AngleTop(), ParallelTop()}) {
        breech.ConstructModel();
        for (const auto list : {&CRuleSurf::List1, &CRuleSurf::List2}) {
            const C3DPoints& a = *(Model(breech, 1).*list);
            const C3DPoints& b = *(Model(breech, 2).*list);
            for (std::size_t i = 1; i <= a.Count(); ++i) {
                EXPECT_LT(Distance3D({-a.Item(i).x, -a.Item(i).y, a.Item(i).z, 0}, b.Item(i)), Near * Pipe);
            }
        }
    }
}

TEST(TwoPieceBreechModel, OnTheFlushSideTheWallsLieInALine) {
    CBreechReducing2Prt breech = ParallelTop(true);
    breech.ConstructModel();
    double lowest = 0;
    for (const C3DPoint& p : *Model(breech, 1).List1) {
        lowest = std::min(lowest, p.y);
    }
    EXPECT_NEAR(lowest, -Pipe, Near * Pipe);
}

TEST(TwoPieceBreechModel, TheSeamTurnsWithTheJoinAngle) {
    CBreechReducing2Prt breech = AngleTop();
    breech.inputs.JoinAngle = DegToRad(90);
    breech.ConstructModel();
    EXPECT_NEAR(Model(breech, 2).List2->Item(1).y, Pipe, Near * Pipe);
    EXPECT_NEAR(Model(breech, 1).List2->Item(1).y, -Pipe, Near * Pipe);
    EXPECT_EQ(Model(breech, 1).List2->Item(1).Flag, CornerRuleStation) << "on the plane by rounding";
}

TEST(TwoPieceBreechModel, AHalfHasTheStationsOfOneSide) {
    CBreechReducing2Prt breech = ParallelTop();
    breech.inputs.HalfPattern = true;
    breech.DevelopModel();
    ASSERT_EQ(Model(breech, 1).List1->Count(), 13U);
    for (const C3DPoint& p : *Model(breech, 1).List1) {
        EXPECT_LT(p.y, Near);
    }
    for (const C3DPoint& p : *Model(breech, 2).List1) {
        EXPECT_GT(p.y, -Near);
    }
    EXPECT_EQ(PatternOf(breech).List1->Count(), 13U);
}

TEST(TwoPieceBreechModel, ARuleThatNeverReachesThePlaneIsNotMade) {
    CBreechReducing2Prt breech = ParallelTop();
    breech.CLAngleA = 0;
    breech.ConeRadA = Pipe;  // its rules are upright
    EXPECT_THROW(breech.ConstructModel(), ArithmeticError);
}

/// Twice the area of a triangle.
double Twice(const C3DPoint& a, const C3DPoint& b, const C3DPoint& c) {
    const C3DPoint u = {b.x - a.x, b.y - a.y, b.z - a.z, 0};
    const C3DPoint v = {c.x - a.x, c.y - a.y, c.z - a.z, 0};
    return std::hypot(u.y * v.z - u.z * v.y, u.z * v.x - u.x * v.z, u.x * v.y - u.y * v.x);
}

/// The area of a strip, by two triangles between each two rules.
double Area(const CRuleSurf& strip) {
    double twice = 0;
    for (std::size_t i = 1; i < strip.List1->Count(); ++i) {
        const C3DPoint& b = strip.List2->Item(i);
        const C3DPoint& c = strip.List1->Item(i + 1);
        twice += Twice(strip.List1->Item(i), b, c) + Twice(b, c, strip.List2->Item(i + 1));
    }
    return twice / 2;
}

/// Between parallel circles all stations lie in planes, and nothing is lost when they are laid flat.
TEST(TwoPieceBreechPattern, HasTheAreaOfTheModel) {
    for (CBreechReducing2Prt breech : Breeches()) {
        if (breech.ConeFaceAngleA == 0) {
            breech.DevelopModel();
            const double area = Area(Model(breech, 1));
            EXPECT_NEAR(Area(PatternOf(breech)), area, 1e-9 * area);
        }
    }
}

/// Between tilted ones a station is a little twisted, less and less as they grow finer.
TEST(TwoPieceBreechPattern, OfATiltedOutletComesNearTheAreaOfTheModel) {
    const auto missing = [](int segs) {
        CBreechReducing2Prt breech = AngleTop();
        breech.inputs.segs = segs;
        breech.DevelopModel();
        return std::fabs(Area(PatternOf(breech)) / Area(Model(breech, 1)) - 1);
    };
    const double coarse = missing(24);
    EXPECT_LT(coarse, 1e-3);
    EXPECT_LT(missing(48), coarse / 3.5);
    EXPECT_LT(missing(96), coarse / 12);
}

/// The model's station n + 1 - i stands at i of the pattern.
TEST(TwoPieceBreechPattern, KeepsTrueLengths) {
    for (CBreechReducing2Prt breech : Breeches()) {
        breech.DevelopModel();
        ASSERT_EQ(breech.results.PatternSurfaceList.Count(), 1U);
        const CRuleSurf& model = Model(breech, 1);
        const CRuleSurf& flat = PatternOf(breech);
        const std::size_t n = model.List1->Count();
        ASSERT_EQ(flat.List1->Count(), n);
        for (std::size_t i = 1; i <= n; ++i) {
            const std::size_t k = n + 1 - i;
            EXPECT_NEAR(Distance3D(flat.List1->Item(k), flat.List2->Item(k)),
                        Distance3D(model.List1->Item(i), model.List2->Item(i)), 1e-8 * Pipe);
            EXPECT_EQ(flat.List2->Item(k).Flag, model.List2->Item(i).Flag);
            if (i < n) {
                EXPECT_NEAR(Distance3D(flat.List1->Item(k), flat.List1->Item(k - 1)),
                            Distance3D(model.List1->Item(i), model.List1->Item(i + 1)), 1e-6 * Pipe);
                EXPECT_NEAR(Distance3D(flat.List2->Item(k), flat.List1->Item(k - 1)),
                            Distance3D(model.List2->Item(i), model.List1->Item(i + 1)), 1e-6 * Pipe);
            }
        }
    }
}

TEST(TwoPieceBreechPattern, TakesTheLapOfTheSeam) {
    CBreechReducing2Prt breech = AngleTop();
    breech.inputs.JoinType = 1;
    breech.inputs.LapSize1 = 14;
    breech.DevelopModel();
    const C3DPoints& edge = *PatternOf(breech).List1;
    ASSERT_EQ(edge.Count(), 26U);
    EXPECT_NEAR(Distance3D(edge.Item(25), edge.Last()), 14, Near * Pipe);
    EXPECT_TRUE(breech.results.warnings.empty());
    EXPECT_EQ(Model(breech, 1).List1->Count(), 25U);
}

TEST(TwoPieceBreechPattern, CutFilesKeepEveryPoint) {
    for (CBreechReducing2Prt breech : Breeches()) {
        breech.DevelopModel();
        ExpectCutFileKeepsPoints(breech.results.PatternSurfaceList);
    }
}

}  // namespace
}  // namespace korvet::two_piece_breech_test
