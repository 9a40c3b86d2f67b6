#include "fittings/breeches/breech_reducing.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/cut_past_end.h"
#include "fittings/pieces.h"

namespace korvet {
namespace {

/// The sides on which a branch leans from the main pipe's axis, as its polar angle grows.
constexpr double Left = 1;
constexpr double Right = -1;

/// A branch in the section through all axes: x to the right, y up, the main pipe from below. Polar angles are
/// told from the point where the axes meet; there the section of the sphere is a circle, and every wall a
/// tangent of it.
struct Branch {
    double side;       ///< Left or Right
    double clAngle;    ///< against the main pipe's axis
    double halfAngle;  ///< of the cone

    /// Where the axis leads.
    [[nodiscard]] double Axis() const { return QuarterTurn + side * clAngle; }

    /// Where the wall on the side of the other branch touches the circle.
    [[nodiscard]] double InnerTouch() const { return Axis() - side * (QuarterTurn - halfAngle); }
};

/// Half the angle of the cone that touches a sphere of radius p and has the radius a at a distance L from the
/// sphere's centre: between the axis and the line to the end's rim, h away, lies atan(a / L), and from that
/// line to where the wall touches acos(p / h).
double TangentConeAngle(double p, double a, double L) {
    const double h = Hypotenuse(a, L);
    if (h < p) {
        throw ArithmeticError(
            "the branch length is too short: its end lies within half the pipe diameter of where the axes "
            "meet");
    }
    const double angle = QuarterTurn - (std::acos(p / h) + std::atan(Quotient(a, L)));
    if (p > LargestSize * std::sin(angle)) {
        throw ArithmeticError(
            "a branch is nearly as wide as the main pipe: its cone has no point within reach");
    }
    return angle;
}

/// Where the tangents of the circle of radius p cross that touch it at two polar angles: half way between
/// them, and p / cos of half their difference away from its centre.
C3DPoint TangentCrossing(double p, double first, double second) {
    return PolarPoint({}, (first + second) / 2, Quotient(p, std::cos((first - second) / 2)));
}

/// The planes of the three cuts, each a line of the section. They all run through the crotch.
struct Cuts {
    C3DPoint crotch;
    C3DPoint left;   ///< end of the cut between main pipe and left branch, on the wall
    C3DPoint right;  ///< the same on the right
    C3DPoint top;    ///< where the inner walls of the branches cross: the cut between these leads there
};

/// Two round bodies about one sphere meet in a plane through the crossings of their walls. Those of the main
/// pipe touch the circle level with the centre, those of a branch (half angle + or - angle of the axis) above
/// or below: half way between, the outer wall crosses the main pipe's wall on its own side and the inner one
/// the wall on the other side, at the heights
///     p tan((half angle - angle of the axis) / 2),  p tan((half angle + angle of the axis) / 2)
/// The crotch is where the lines between these, one of each branch, cross.
Cuts CutsOf(double p, const Branch& a, const Branch& b) {
    const auto outer = [p](const Branch& branch) {
        return p * std::tan((branch.halfAngle - branch.clAngle) / 2);
    };
    const auto inner = [p](const Branch& branch) {
        return p * std::tan((branch.halfAngle + branch.clAngle) / 2);
    };
    const double atLeft = inner(b) - outer(a);
    const double atRight = inner(a) - outer(b);
    const double part = Quotient(atLeft, atLeft + atRight);  // of the way from the left wall to the right one
    Cuts cuts;
    cuts.left = {-p, outer(a), 0, PlainStation};
    cuts.right = {p, outer(b), 0, PlainStation};
    cuts.top = TangentCrossing(p, a.InnerTouch(), b.InnerTouch());
    cuts.crotch = {2 * p * part - p, outer(a) + part * (inner(a) - outer(a)), 0, PlainStation};
    return cuts;
}

/// The cuts of a branch on its own axis, with the other branch towards +x: from the crotch on the side of +x
/// a plane that leads to `cuts.top`, and beyond the crotch one that leads to the wall at `onWall`.
void SetCuts(CRightCone& cone, const Branch& branch, const Cuts& cuts, const C3DPoint& onWall) {
    const double toTop = branch.side * (branch.Axis() - PlanAngle(cuts.crotch, cuts.top));
    const double toWall = branch.side * (PlanAngle(cuts.crotch, onWall) - branch.Axis());
    const double toCrotch = branch.side * (branch.Axis() - PlanAngle({}, cuts.crotch));
    const double reach = Distance3D({}, cuts.crotch);
    cone.CPAngle2 = toTop - QuarterTurn;
    cone.CPAngle3 = QuarterTurn - toWall;
    cone.CPHeight2 = std::cos(toCrotch) * reach;
    cone.Offset = std::sin(toCrotch) * reach;
}

/// A cone about a sphere of radius p has p / cos(half angle) in its centre.
CRightCone ConeOf(const FittingInputs& whole, double p, const Branch& branch, double length) {
    CRightCone cone;
    cone.inputs = PieceInputs(whole, {.Dtype = LowerRoof});
    cone.BaseRad = Quotient(p, std::cos(branch.halfAngle));
    cone.ConeAngle = branch.halfAngle;
    cone.CPHeight1 = length;
    return cone;
}

CRightCylinder MainPipeOf(const CBreechReducing& breech, const Cuts& cuts) {
    CRightCylinder pipe;
    pipe.inputs = PieceInputs(breech.inputs, {.Dtype = RoofTop});
    pipe.BaseRad = breech.PipeRad;
    pipe.CPHeight1 = cuts.crotch.y;
    pipe.CPHeight2 = -breech.PipeLength;
    pipe.Offset = cuts.crotch.x;
    pipe.CPAngle1 = PlanAngle(cuts.left, cuts.crotch);
    pipe.CPAngle3 = -PlanAngle(cuts.crotch, cuts.right);
    return pipe;
}

/// The model of a branch on its own axis.
CRuleSurf StandingBranch(CRightCone& cone) {
    cone.ConstructModel();
    const CRuleSurf& surface = cone.results.ModelSurface;
    RequireCutWithinEnd(*surface.List2, *surface.List1, {0, 0, 1, PlainStation}, "the branch length");
    return surface;
}

}  // namespace

void CBreechReducing::ConstructModel() {
    const double p = PipeRad;
    const Branch a = {Left, CLAngleA, TangentConeAngle(p, ConeRadA, ConeLengthA)};
    const Branch b = {Right, CLAngleB, TangentConeAngle(p, ConeRadB, ConeLengthB)};
    const Cuts cuts = CutsOf(p, a, b);
    mainPipe_ = MainPipeOf(*this, cuts);
    branchA_ = ConeOf(inputs, p, a, ConeLengthA);
    SetCuts(branchA_, a, cuts, cuts.left);
    branchB_ = ConeOf(inputs, p, b, ConeLengthB);
    SetCuts(branchB_, b, cuts, cuts.right);

    mainPipe_.ConstructModel();
    const CRuleSurf& mainPipe = mainPipe_.results.ModelSurface;
    RequireCutWithinEnd(*mainPipe.List1, *mainPipe.List2, {0, 0, -1, PlainStation}, "the main pipe length");
    CRuleSurf left = StandingBranch(branchA_);
    left.Rotate(Axis::Y, {}, CLAngleA);
    CRuleSurf right = StandingBranch(branchB_);
    right.Rotate(Axis::Z, {}, PI);  // the other branch is on its left
    right.Rotate(Axis::Y, {}, -CLAngleB);
    results.ModelSurfaceList = CRuleSurfs();
    results.ModelSurfaceList.Add(mainPipe);
    results.ModelSurfaceList.Add(left);
    results.ModelSurfaceList.Add(right);
}

void CBreechReducing::DevelopModel() {
    ConstructModel();
    results.PatternSurfaceList = CRuleSurfs();
    switch (inputs.Miscellaneous) {
        case MainPipePattern:
            results.PatternSurfaceList.Add(DevelopPiece(mainPipe_, results));
            break;
        case LeftBranchPattern:
            results.PatternSurfaceList.Add(DevelopPiece(branchA_, results));
            break;
        case RightBranchPattern:
            results.PatternSurfaceList.Add(DevelopPiece(branchB_, results));
            break;
        default:
            break;
    }
}

}  // namespace korvet
