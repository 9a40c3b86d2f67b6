#include "fittings/breeches/breech.h"

#include "core/constants.h"
#include "fittings/cut_past_end.h"
#include "fittings/makeable.h"
#include "fittings/piece_layout.h"
#include "fittings/pieces.h"
#include "fittings/pipes/right_cylinder.h"

namespace korvet {
namespace {

/// The one pipe that all are made of, but for its cuts.
CRightCylinder PipeOf(const CBreech& breech) {
    RequireWall(breech.BaseRad);
    CRightCylinder pipe;
    pipe.inputs = PieceInputs(breech.inputs, {.Dtype = RoofOverTracedBase});
    TakeTemplate(pipe, breech);
    pipe.BaseRad = breech.BaseRad;
    pipe.CPHeight1 = breech.PipeLength1;
    return pipe;
}

}  // namespace

double BreechCutAngle(double betweenPipes) {
    return QuarterTurn - betweenPipes / 2;
}

/// The last angle is the full turn less the others.
std::vector<CBreech::Limb> CBreech::Limbs() {
    const std::size_t last = static_cast<std::size_t>(inputs.Dtype) + 2;
    double& lastAngle = this->*PipeAnglesOfBreech.at(last);
    lastAngle = FullTurn;
    for (std::size_t i = 0; i < last; ++i) {
        lastAngle -= this->*PipeAnglesOfBreech.at(i);
    }
    std::vector<Limb> limbs;
    double before = lastAngle;
    double turn = 0;
    for (std::size_t i = 0; i <= last; ++i) {
        const double after = this->*PipeAnglesOfBreech.at(i);
        limbs.push_back({before, after, turn});
        before = after;
        turn += after;
    }
    return limbs;
}

/// Puts the model of every pipe in its place, once `make` has built it.
template <typename Make>
void CBreech::MakePipes(Make make) {
    CRightCylinder pipe = PipeOf(*this);
    results.ModelSurfaceList = CRuleSurfs();
    for (const Limb& limb : Limbs()) {
        pipe.CPAngle1 = BreechCutAngle(limb.angleBefore);
        pipe.CPAngle3 = BreechCutAngle(limb.angleAfter);
        make(pipe);
        CRuleSurf surface = pipe.results.ModelSurface;
        RequireCutWithinEnd(*surface.List1, *surface.List2, {0, 0, -1, PlainStation}, "the pipe length");
        surface.Rotate(Axis::Y, {0, 0, PipeLength1, PlainStation}, limb.turn);
        results.ModelSurfaceList.Add(surface);
    }
}

void CBreech::ConstructModel() {
    MakePipes([](CRightCylinder& pipe) { pipe.ConstructModel(); });
}

/// A pipe that is developed has its model too.
void CBreech::DevelopModel() {
    PieceLayout layout;
    MakePipes([&](CRightCylinder& pipe) {
        const CRuleSurf placed = layout.Add(DevelopPiece(pipe, results));
        if (inputs.Miscellaneous == PatternsInARow) {
            layout.place = RightOf(layout.place, placed.List1->Last(), KerfSpacing);
        } else if (inputs.Miscellaneous == PatternsInAColumn) {
            layout.place = AboveHighest(layout.place, *placed.List1, KerfSpacing);
        }
    });
    results.PatternSurfaceList = layout.Surfaces();
}

}  // namespace korvet
