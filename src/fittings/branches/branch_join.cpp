#include "fittings/branches/branch_join.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"

namespace korvet::branch {
namespace {

/// How far, as a part of the trunk's radius, a branch that just touches it may reach beyond it by rounding.
constexpr double TouchingBand = 1e-13;

/// Radius of the trunk at the depth to which a set-in branch reaches.
double SetInDepth(const Walls& walls) {
    if (walls.r <= walls.R - walls.tB / 2) {
        return walls.R - walls.tB / 2;
    }
    if (walls.r <= walls.R || walls.tA >= walls.tB) {
        return walls.R;
    }
    return walls.R + walls.tB / 2 - walls.tA / 2;
}

/// Ends the build when the material has used up a width of the branch.
void RequireBranchWidth(double width) {
    if (!(width > 0)) {
        throw ArithmeticError("the material is too thick for the diameter of the branch pipe");
    }
}

}  // namespace

CutRadii EdgeRadii(BranchJoin join, const Walls& walls) {
    switch (join) {
        case SetInJoin:
            return {walls.r, SetInDepth(walls)};
        case SetOnJoin:
            return {walls.r, walls.R + walls.tB / 2};
        case MeanToMeanJoin:
            break;
    }
    return {walls.r, walls.R};
}

CutRadii HoleRadii(BranchJoin join, const Walls& walls) {
    switch (join) {
        case SetInJoin:
            return {walls.r + walls.tA / 2, walls.R};
        case SetOnJoin:
            return {walls.r - walls.tA / 2, walls.R};
        case MeanToMeanJoin:
            break;
    }
    return {walls.r, walls.R};
}

bool MeetsTrunk(const CutRadii& radii, double offset) {
    RequireBranchWidth(radii.pipeA);
    return radii.pipeA + AbsValue(offset) <= radii.pipeB * (1 + TouchingBand);
}

/// In the section through both axes the inside of the branch, 2 (r - tA) + tA wide, covers p of the trunk.
/// The end of the heel's wall, tA and square to the branch, leaves the trunk's line at b, what alpha lacks of
/// a quarter turn, so that its outside corner lies q away from the other end of p:
///     q^2 = tA^2 + p^2 - 2 tA p cos b
/// The corner comes down on the trunk when the branch is turned by the angle between q and p, opposite tA:
///     cos(result) = (p^2 + q^2 - tA^2) / (2 q p)
double BranchAngComp(double r, double alpha, double tA) {
    const double b = QuarterTurn - alpha;
    const double width = 2 * (r - tA) + tA;
    RequireBranchWidth(width);
    const double p = Quotient(width, std::sin(alpha));
    const double q = SquareRoot(tA * tA + p * p - 2 * tA * p * std::cos(b));
    return ArcCos(Quotient(p * p + q * q - tA * tA, 2 * q * p));
}

double JointAngle(const BranchOptions& options, double r, double alpha, double tA) {
    if (options.join != SetOnJoin || !options.heelCompensation || alpha >= QuarterTurn) {
        return alpha;
    }
    const double angle = alpha - BranchAngComp(r, alpha, tA);
    if (!(angle > 0)) {
        throw ArithmeticError("heel compensation leaves no angle between branch and trunk");
    }
    return angle;
}

}  // namespace korvet::branch
