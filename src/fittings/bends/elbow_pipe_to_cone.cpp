#include "fittings/bends/elbow_pipe_to_cone.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/cut_past_end.h"
#include "fittings/pieces.h"

namespace korvet {
namespace {

/// A cone that goes on beyond its apex meets the pipe there.
void RequireBelowApex(const C3DPoints& mitre, double apexHeight) {
    for (const C3DPoint& point : mitre) {
        if (!((apexHeight - point.z) * apexHeight > 0)) {
            throw ArithmeticError("the mitre runs past the apex of the cone");
        }
    }
}

}  // namespace

double CElbowPipeToCone::Seam() const {
    return inputs.JoinAngle + (IsPipeToCone() ? 0 : PI);
}

/// In the section through the axis the base's rim stands h from the middle of the sphere. The wall from there
/// touches the sphere: it leaves the line to the middle, which leans by atan(ConeRad / Length1), at the angle
/// whose sine is PipeRad / h.
double CElbowPipeToCone::HalfAngle() const {
    const double h = Hypotenuse(ConeRad, Length1);
    if (PipeRad > h) {
        throw ArithmeticError("length 1 is too short: the cone cannot reach round the pipe");
    }
    const double c = std::atan(Quotient(ConeRad, Length1)) + ArcCos(Quotient(PipeRad, h)) - QuarterTurn;
    if (std::fabs(c) * LargestSize < ConeRad) {
        throw ArithmeticError("the cone is as wide as the pipe, or nearly so: its apex lies out of reach");
    }
    return c;
}

/// Told from the middle of the sphere, radius r, with a the direction of the cone's axis and q that of the
/// pipe's, both surfaces are squares of planes off the sphere:
///     cone  X^2 - r^2 = ((X a - r sin c) / cos c)^2        pipe  X^2 - r^2 = (X q)^2
/// and where both hold, one of the two planes between them holds, of which the mitre is
///     X a - r sin c = -cos c (X q)
/// With q = (-sin A, -cos A) and a = (0, 1) this is a plane over x that rises by cos c sin A / D towards +x
/// and crosses the cone's axis r sin c / D up, D = 1 - cos c cos A; it crosses the pipe's axis
/// r sin c / (cos c - cos A) along. Square to each other through the same line, the two tilts and A make half
/// a turn.
CElbowPipeToCone::Mitre CElbowPipeToCone::MitreOf(double c) const {
    const double D = 1 - std::cos(c) * std::cos(PipeAngle);
    const double b = std::atan(Quotient(std::cos(c) * std::sin(PipeAngle), D));
    const double rise = PipeRad * std::sin(c);
    return {{b, Length1 + Quotient(rise, D)},
            {(PI - b) - PipeAngle, Length1 + Quotient(rise, std::cos(c) - std::cos(PipeAngle))}};
}

void CElbowPipeToCone::SetParts() {
    const double c = HalfAngle();
    const Mitre mitre = MitreOf(c);
    const FittingInputs part = PieceInputs(inputs, {.JoinAngle = Seam(), .laps = SeamLapOnly});
    cone_.inputs = part;
    cone_.BaseRad = ConeRad;
    cone_.ConeAngle = c;
    SetEnds(cone_, {.CPHeight1 = mitre.cone.height, .CPAngle1 = -mitre.cone.tilt});
    pipe_.inputs = part;
    pipe_.BaseRad = PipeRad;
    SetEnds(pipe_,
            {.CPHeight1 = Length2 + Length1, .CPHeight2 = mitre.pipe.height, .CPAngle2 = mitre.pipe.tilt});
}

void CElbowPipeToCone::ConstructModel() {
    SetParts();
    cone_.ConstructModel();
    pipe_.ConstructModel();
    CRuleSurf cone = cone_.results.ModelSurface;
    CRuleSurf pipe = pipe_.results.ModelSurface;
    RequireBelowApex(*cone.List1, cone_.ApexHeight);
    RequireCutWithinEnd(*cone.List1, *cone.List2, {0, 0, -1, PlainStation}, "length 1");
    RequireCutWithinEnd(*pipe.List2, *pipe.List1, {0, 0, 1, PlainStation}, "length 2");

    pipe.Rotate(Axis::Y, {0, 0, Length1, PlainStation}, PI - PipeAngle);
    results.ModelSurfaceList = CRuleSurfs();
    for (CRuleSurf* part : {&cone, &pipe}) {
        if (IsPipeToCone()) {
            part->Rotate(Axis::Y, {}, PipeAngle);
        }
        results.ModelSurfaceList.Add(*part);
    }
}

void CElbowPipeToCone::DevelopModel() {
    ConstructModel();
    results.PatternSurfaceList = CRuleSurfs();
    results.PatternSurfaceList.Add(inputs.Miscellaneous == ConeOfElbow ? DevelopPiece(cone_, results)
                                                                       : DevelopPiece(pipe_, results));
}

}  // namespace korvet
