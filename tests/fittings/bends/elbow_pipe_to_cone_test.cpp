// The elbow of a cone and a pipe against its geometry: both walls touch one sphere about the point where the
// centre lines meet, and the edge that both have in common is plane.
#include "fittings/bends/elbow_pipe_to_cone.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <tuple>

#include "core/checked.h"
#include "core/constants.h"
#include "tests/fittings/bends/tapered_reading.h"

namespace korvet::elbow_pipe_to_cone_test {
namespace {

constexpr double Length1 = 340;
constexpr double Length2 = 300;
constexpr double Near = 1e-9 * (Length1 + Length2);

/// Whether the cone is the wide part; degrees between the centre lines; fold lines.
using Shape = std::tuple<bool, double, int>;

CElbowPipeToCone Elbow(const Shape& shape) {
    const auto [wideCone, degrees, segs] = shape;
    CElbowPipeToCone elbow;
    elbow.Category = wideCone ? ConeToPipeElbow : PipeToConeElbow;
    elbow.ConeRad = wideCone ? 160 : 70;
    elbow.PipeRad = wideCone ? 85 : 130;
    elbow.PipeAngle = degrees == 90 ? QuarterTurn : DegToRad(degrees);
    elbow.Length1 = Length1;
    elbow.Length2 = Length2;
    elbow.inputs.segs = segs;
    return elbow;
}

const CRuleSurf& ConeOf(const CElbowPipeToCone& elbow) {
    return elbow.results.ModelSurfaceList.Item(1);
}

const CRuleSurf& PipeOf(const CElbowPipeToCone& elbow) {
    return elbow.results.ModelSurfaceList.Item(2);
}

const CRuleSurf& PatternOf(const CElbowPipeToCone& elbow) {
    return elbow.results.PatternSurfaceList.Item(1);
}

const CRuleSurf& Developed(CElbowPipeToCone& elbow, std::int16_t part) {
    elbow.inputs.Miscellaneous = part;
    elbow.DevelopModel();
    EXPECT_EQ(elbow.results.PatternSurfaceList.Count(), 1U);
    return PatternOf(elbow);
}

/// What the whole is turned by, from +z towards -x.
double TurnOf(const CElbowPipeToCone& elbow) {
    return elbow.Category == PipeToConeElbow ? elbow.PipeAngle : 0;
}

CentreLineOfPiece ConeLine(const CElbowPipeToCone& elbow) {
    return {0, 0, 0, TurnOf(elbow)};
}

/// From where the centre lines meet.
CentreLineOfPiece PipeLine(const CElbowPipeToCone& elbow) {
    const double turn = TurnOf(elbow);
    return {-Length1 * std::sin(turn), Length1 * std::cos(turn), 0,
            turn + std::numbers::pi - elbow.PipeAngle};
}

/// The sine of the cone's half angle, below 0 for one that grows wider upward: the lines from the middle of
/// the sphere to the base's rim and to where the wall touches stand at right angles to axis and wall.
double SinHalfAngle(const CElbowPipeToCone& elbow) {
    const double h = std::hypot(elbow.ConeRad, Length1);
    return std::sin(std::asin(elbow.ConeRad / h) - std::asin(elbow.PipeRad / h));
}

class PipeConeElbows : public testing::TestWithParam<Shape> {};

TEST_P(PipeConeElbows, WallOfTheConeTouchesTheSphere) {
    CElbowPipeToCone elbow = Elbow(GetParam());
    elbow.ConstructModel();
    ASSERT_EQ(elbow.results.ModelSurfaceList.Count(), 2U);
    const CentreLineOfPiece line = ConeLine(elbow);
    const double sine = SinHalfAngle(elbow);
    const double cosine = std::sqrt(1 - sine * sine);
    for (const PointList& edge : {ConeOf(elbow).List1, ConeOf(elbow).List2}) {
        ASSERT_EQ(edge->Count(), static_cast<std::size_t>(elbow.inputs.segs) + 1);
        for (const C3DPoint& p : *edge) {
            // The wall's distance from the middle, told from a point of the wall: along its normal.
            const double off = OffCentreLine(p, line) * cosine + (AlongCentreLine(p, line) - Length1) * sine;
            EXPECT_NEAR(off, elbow.PipeRad, Near);
        }
    }
    for (const C3DPoint& p : *ConeOf(elbow).List2) {
        EXPECT_NEAR(AlongCentreLine(p, line), 0, Near);
        EXPECT_NEAR(OffCentreLine(p, line), elbow.ConeRad, Near);
    }
}

TEST_P(PipeConeElbows, PipeIsRoundAboutItsCentreLine) {
    CElbowPipeToCone elbow = Elbow(GetParam());
    elbow.ConstructModel();
    const CentreLineOfPiece line = PipeLine(elbow);
    for (const PointList& edge : {PipeOf(elbow).List1, PipeOf(elbow).List2}) {
        ASSERT_EQ(edge->Count(), 2 * static_cast<std::size_t>(elbow.inputs.segs) + 1);
        for (const C3DPoint& p : *edge) {
            EXPECT_NEAR(OffCentreLine(p, line), elbow.PipeRad, Near);
        }
    }
    for (const C3DPoint& p : *PipeOf(elbow).List1) {
        EXPECT_NEAR(AlongCentreLine(p, line), Length2, Near);
    }
}

/// Through three points of the one edge go all points of both.
TEST_P(PipeConeElbows, MitreIsPlane) {
    CElbowPipeToCone elbow = Elbow(GetParam());
    elbow.ConstructModel();
    const C3DPoints& mitre = *PipeOf(elbow).List2;
    const std::size_t third = mitre.Count() / 3;
    const C3DPoint o = mitre.Item(1);
    const auto from = [&](const C3DPoint& p) { return C3DPoint{p.x - o.x, p.y - o.y, p.z - o.z, 0}; };
    const C3DPoint a = from(mitre.Item(1 + third));
    const C3DPoint b = from(mitre.Item(1 + 2 * third));
    const C3DPoint n = {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x, 0};
    const double length = Distance3D({}, n);
    for (const PointList& edge : {ConeOf(elbow).List1, PipeOf(elbow).List2}) {
        for (const C3DPoint& p : *edge) {
            const C3DPoint v = from(p);
            EXPECT_NEAR((v.x * n.x + v.y * n.y + v.z * n.z) / length, 0, Near);
        }
    }
}

/// The edge of the cone lies on the pipe's wall, and that of the pipe on the cone's.
TEST_P(PipeConeElbows, EdgesAreOneCurve) {
    CElbowPipeToCone elbow = Elbow(GetParam());
    elbow.ConstructModel();
    for (const C3DPoint& p : *ConeOf(elbow).List1) {
        EXPECT_NEAR(OffCentreLine(p, PipeLine(elbow)), elbow.PipeRad, Near);
    }
    const double sine = SinHalfAngle(elbow);
    for (const C3DPoint& p : *PipeOf(elbow).List2) {
        EXPECT_NEAR(OffCentreLine(p, ConeLine(elbow)) * std::sqrt(1 - sine * sine) +
                        (AlongCentreLine(p, ConeLine(elbow)) - Length1) * sine,
                    elbow.PipeRad, Near);
    }
    const std::size_t middle = static_cast<std::size_t>(elbow.inputs.segs) + 1;
    EXPECT_LT(Distance3D(ConeOf(elbow).List1->Item(1), PipeOf(elbow).List2->Item(1)), Near) << "the seams";
    if (elbow.inputs.segs % 2 == 0) {
        EXPECT_LT(Distance3D(ConeOf(elbow).List1->Item(middle / 2 + 1), PipeOf(elbow).List2->Item(middle)),
                  Near);
    }
}

TEST_P(PipeConeElbows, HalvesLieOnOneSide) {
    CElbowPipeToCone elbow = Elbow(GetParam());
    elbow.inputs.HalfPattern = true;
    elbow.ConstructModel();
    const auto segs = static_cast<std::size_t>(elbow.inputs.segs);
    EXPECT_EQ(ConeOf(elbow).List1->Count(), (segs + 1) / 2 + 1);
    EXPECT_EQ(PipeOf(elbow).List1->Count(), segs + 1);
    const double side = ConeOf(elbow).List2->Item(2).y;
    for (const C3DPoint& p : *PipeOf(elbow).List2) {
        EXPECT_GT(p.y * std::copysign(1, side), -Near);
    }
}

TEST_P(PipeConeElbows, PatternsHaveTheLengthOfEachRule) {
    CElbowPipeToCone elbow = Elbow(GetParam());
    const CRuleSurf plate = Developed(elbow, ConeOfElbow);
    CRuleSurf fromZero = plate;
    fromZero.Rotate(Axis::Z, {}, -PlanAngle({}, plate.List2->Item(1)));
    ExpectSectorOfCone(fromZero, std::fabs(SinHalfAngle(elbow)), 1e-9);
    for (std::size_t i = 1; i <= plate.List1->Count(); ++i) {
        EXPECT_NEAR(Distance3D(plate.List1->Item(i), plate.List2->Item(i)),
                    Distance3D(ConeOf(elbow).List1->Item(i), ConeOf(elbow).List2->Item(i)), Near);
        EXPECT_NEAR(Distance3D({}, plate.List2->Item(i)), elbow.ConeRad / std::fabs(SinHalfAngle(elbow)),
                    Near);
    }
    const CRuleSurf pipe = Developed(elbow, 2);
    for (std::size_t i = 1; i <= pipe.List1->Count(); ++i) {
        EXPECT_NEAR(pipe.List1->Item(i).y - pipe.List2->Item(i).y,
                    Distance3D(PipeOf(elbow).List1->Item(i), PipeOf(elbow).List2->Item(i)), Near);
        EXPECT_NEAR(pipe.List1->Item(i).x,
                    static_cast<double>(i - 1) * std::numbers::pi * elbow.PipeRad / elbow.inputs.segs, Near);
    }
}

double LengthOf(const C3DPoints& edge) {
    double length = 0;
    for (std::size_t i = 2; i <= edge.Count(); ++i) {
        length += Distance3D(edge.Item(i - 1), edge.Item(i));
    }
    return length;
}

TEST_P(PipeConeElbows, EdgesThatAreWeldedTogetherAreOfOneLength) {
    for (const auto& [segs, allowed] : {std::pair{24, 2e-3}, {400, 1e-5}}) {
        CElbowPipeToCone elbow = Elbow(GetParam());
        elbow.inputs.segs = segs;
        const double ofPipe = LengthOf(*Developed(elbow, 2).List2);
        EXPECT_NEAR(LengthOf(*Developed(elbow, ConeOfElbow).List1) / ofPipe, 1, allowed) << segs;
    }
}

INSTANTIATE_TEST_SUITE_P(All, PipeConeElbows,
                         testing::Combine(testing::Bool(), testing::Values(90.0, 120.0, 165.0, 179.0),
                                          testing::Values(4, 12, 13)));

/// Where the pipe runs just along the wall of the cone, the mitre is found as at every other angle.
TEST(PipeConeElbowModel, APipeAlongTheWallIsNoExceptionToTheRule) {
    CElbowPipeToCone elbow = Elbow({true, 90, 12});
    elbow.PipeAngle = std::numbers::pi - std::asin(SinHalfAngle(elbow));
    elbow.ConstructModel();
    for (const C3DPoint& p : *ConeOf(elbow).List1) {
        EXPECT_NEAR(OffCentreLine(p, PipeLine(elbow)), elbow.PipeRad, Near);
    }
}

TEST(PipeConeElbowModel, SeamsLieOnTheInsideOrTheOutside) {
    CElbowPipeToCone inside = Elbow({true, 120, 12});
    inside.ConstructModel();
    CElbowPipeToCone outside = Elbow({false, 120, 12});
    outside.ConstructModel();
    const auto rule = [](const CRuleSurf& part, std::size_t i) {
        return Distance3D(part.List1->Item(i), part.List2->Item(i));
    };
    EXPECT_LT(rule(ConeOf(inside), 1), rule(ConeOf(inside), 7));
    EXPECT_LT(rule(PipeOf(inside), 1), rule(PipeOf(inside), 13));
    EXPECT_GT(rule(ConeOf(outside), 1), rule(ConeOf(outside), 7));
    EXPECT_GT(rule(PipeOf(outside), 1), rule(PipeOf(outside), 13));
    inside.inputs.JoinAngle = PI;
    inside.ConstructModel();
    EXPECT_GT(rule(ConeOf(inside), 1), rule(ConeOf(inside), 7));
}

/// The pipe of the one hangs straight down from its cone, whatever the angle.
TEST(PipeConeElbowModel, APipeToAConeHangsDown) {
    for (const double degrees : {90.0, 130.0}) {
        CElbowPipeToCone elbow = Elbow({false, degrees, 12});
        elbow.ConstructModel();
        const C3DPoints& end = *PipeOf(elbow).List1;
        for (const C3DPoint& p : end) {
            EXPECT_NEAR(p.z, end.Item(1).z, Near);
            EXPECT_LT(p.z, -Length2 + Near);
        }
        EXPECT_NEAR(Distance3D(ConeOf(elbow).List2->Item(1), {}), elbow.ConeRad, Near) << "about the origin";
    }
}

/// Of the laps there is only that of the seam, and the tab lies outside the plate on either cone.
TEST(PipeConeElbowLaps, AreThoseOfTheSeam) {
    for (const bool wideCone : {true, false}) {
        for (const std::int16_t part : {ConeOfElbow, std::int16_t{2}}) {
            CElbowPipeToCone elbow = Elbow({wideCone, 110, 12});
            const CRuleSurf plain = Developed(elbow, part);
            elbow.inputs.JoinType = 1;
            elbow.inputs.LapSize0 = 9;
            elbow.inputs.LapSize1 = 15;
            elbow.inputs.LapSize2 = 9;
            const CRuleSurf& lapped = Developed(elbow, part);
            const std::size_t n = plain.List1->Count();
            ASSERT_EQ(lapped.List1->Count(), n + 1);
            for (std::size_t i = 1; i <= n; ++i) {
                EXPECT_LT(Distance3D(plain.List1->Item(i), lapped.List1->Item(i)), Near);
                EXPECT_LT(Distance3D(plain.List2->Item(i), lapped.List2->Item(i)), Near);
            }
            EXPECT_NEAR(Distance3D(lapped.List1->Item(n), lapped.List1->Item(n + 1)), 15, Near);
            EXPECT_GT(Distance3D(lapped.List1->Item(n - 1), lapped.List1->Item(n + 1)), 15) << "outside";
            EXPECT_GT(Distance3D(lapped.List2->Item(n - 1), lapped.List2->Item(n + 1)), 15) << "outside";
        }
    }
}

TEST(PipeConeElbowLaps, TheWarningOfTheConeIsTakenOver) {
    CElbowPipeToCone elbow = Elbow({true, 90, 12});
    elbow.ConeRad = 330;
    elbow.PipeRad = 30;
    elbow.Length1 = 40;
    elbow.inputs.JoinAngle = -PI;
    elbow.inputs.JoinType = 1;
    elbow.inputs.LapSize1 = 60;
    (void)Developed(elbow, ConeOfElbow);
    ASSERT_EQ(elbow.results.warnings.size(), 1U);
    EXPECT_EQ(elbow.results.warnings[0].messageId, SeamLapTooLarge);
    elbow.results.warnings.clear();
    (void)Developed(elbow, 2);
    EXPECT_TRUE(elbow.results.warnings.empty());
}

std::string ReasonFor(CElbowPipeToCone elbow) {
    try {
        elbow.ConstructModel();
    } catch (const ArithmeticError& error) {
        return error.what();
    }
    return "";
}

TEST(PipeConeElbowRefused, PartsThatAreTooShort) {
    CElbowPipeToCone elbow = Elbow({false, 90, 24});
    // Square, the edges end PipeRad off the middle of the sphere: along the cone on the side of the pipe, and
    // along the pipe on that of the cone.
    elbow.Length1 = 129.99;
    EXPECT_EQ(ReasonFor(elbow), "length 1 is too short: the cut runs past the free end");
    elbow.Length1 = 130.01;
    EXPECT_EQ(ReasonFor(elbow), "");
    elbow.Length1 = 340;
    elbow.Length2 = 60;
    EXPECT_EQ(ReasonFor(elbow), "length 2 is too short: the cut runs past the free end");
    elbow.Length1 = 100;
    EXPECT_EQ(ReasonFor(elbow), "length 1 is too short: the cone cannot reach round the pipe");
    elbow.Length1 = 340;
    const double reach = elbow.PipeRad - 340 * elbow.PipeRad / LargestSize;
    for (const auto& [radius, outOfReach] :
         {std::pair{elbow.PipeRad, true}, {reach + 1e-9, true}, {reach - 1e-9, false}}) {
        elbow.ConeRad = radius;
        elbow.Length2 = 300;
        EXPECT_EQ(
            ReasonFor(elbow),
            outOfReach ? "the cone is as wide as the pipe, or nearly so: its apex lies out of reach" : "");
    }
}

TEST(PipeConeElbowModel, BuildsStartFromNothing) {
    CElbowPipeToCone elbow = Elbow({false, 120, 12});
    const CRuleSurf before = Developed(elbow, ConeOfElbow);
    const CRuleSurf& again = Developed(elbow, ConeOfElbow);
    EXPECT_EQ(elbow.results.ModelSurfaceList.Count(), 2U);
    EXPECT_TRUE(SamePoints(*before.List1, *again.List1));
}

}  // namespace
}  // namespace korvet::elbow_pipe_to_cone_test
