// Cuts that reach the free end of their piece, and those that run past it.
#include "fittings/cut_past_end.h"

#include <gtest/gtest.h>

#include <string>

#include "core/checked.h"
#include "tests/support/point_lists.h"

namespace korvet {
namespace {

constexpr C3DPoint Up = {0, 0, 3, PlainStation};

/// The upper end of a pipe, 100 wide.
C3DPoints EndAt(double z) {
    return PointsOf({{50, 0, z}, {0, 50, z}, {-50, 0, z}});
}

/// A cut below it that rises towards -x up to a height.
C3DPoints CutUpTo(double z) {
    return PointsOf({{50, 0, z - 80}, {0, 50, z - 40}, {-50, 0, z}});
}

std::string Fault(const C3DPoints& cut, const C3DPoints& freeEnd, const C3DPoint& towardsFree) {
    try {
        RequireCutWithinEnd(cut, freeEnd, towardsFree, "the main pipe length");
    } catch (const ArithmeticError& error) {
        return error.what();
    }
    return "";
}

constexpr const char* TooShort = "the main pipe length is too short: the cut runs past the free end";

TEST(CutPastEnd, IsRefusedWithTheLengthThatIsTooShort) {
    EXPECT_EQ(Fault(CutUpTo(120), EndAt(120.1), Up), "");
    EXPECT_EQ(Fault(CutUpTo(120), EndAt(119.9), Up), TooShort);
    EXPECT_EQ(Fault(CutUpTo(120), EndAt(30), Up), TooShort);
}

TEST(CutPastEnd, AKnifeEdgeMayMissTheEndByRounding) {
    // The end is 100 across, and nothing of the piece lies further from its first point.
    EXPECT_EQ(Fault(CutUpTo(120), EndAt(120), Up), "");
    EXPECT_EQ(Fault(CutUpTo(120), EndAt(120 - 0.9e-7), Up), "");
    EXPECT_EQ(Fault(CutUpTo(120), EndAt(120 - 1.5e-7), Up), TooShort);
}

/// A thousandth of the size: a thousandth of the rounding.
TEST(CutPastEnd, TheRoundingGrowsWithThePiece) {
    const C3DPoints cut = PointsOf({{0.05, 0, 0.04}, {-0.05, 0, 0.12}});
    EXPECT_EQ(Fault(cut, PointsOf({{0.05, 0, 0.12}, {-0.05, 0, 0.12 - 0.9e-10}}), Up), "");
    EXPECT_EQ(Fault(cut, PointsOf({{0.05, 0, 0.12}, {-0.05, 0, 0.12 - 1.5e-10}}), Up), TooShort);
}

TEST(CutPastEnd, TheFreeEndLiesWhereItIsToldTo) {
    EXPECT_EQ(Fault(EndAt(0), CutUpTo(120), Up), "");
    EXPECT_EQ(Fault(EndAt(0), CutUpTo(120), {0, 0, -1, PlainStation}), TooShort);
    EXPECT_EQ(Fault(PointsOf({{10, 20, 5}}), PointsOf({{30, 50, 5}}), {2, 3, 0, PlainStation}), "");
    EXPECT_EQ(Fault(PointsOf({{10, 20, 5}}), PointsOf({{-10, -10, 5}}), {2, 3, 0, PlainStation}), TooShort);
}

/// The rules of a cone run together: what counts is the side that they come out on.
TEST(CutPastEnd, RulesNeedNotRunAlongTheAxis) {
    EXPECT_EQ(Fault(PointsOf({{60, 0, 0}, {-60, 0, 10}}), PointsOf({{20, 0, 70}, {-20, 0, 70}}), Up), "");
    EXPECT_EQ(Fault(PointsOf({{60, 0, 0}, {-15, 0, 80}}), PointsOf({{20, 0, 70}, {-20, 0, 70}}), Up),
              TooShort);
}

TEST(CutPastEnd, TheFreeEndMayHaveMorePointsButNotFewer) {
    EXPECT_EQ(Fault(PointsOf({{50, 0, 0}}), EndAt(10), Up), "");
    EXPECT_THROW(RequireCutWithinEnd(EndAt(0), PointsOf({{50, 0, 10}}), Up, "the length"), ListError);
}

}  // namespace
}  // namespace korvet
