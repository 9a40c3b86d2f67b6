#include "fittings/bends/seg_bend_parallel.h"

#include "core/constants.h"
#include "fittings/makeable.h"

namespace korvet {

BendPieces CSegBendParallel::Pieces() const {
    return PiecesOfBend(BendAngle, BendRadius, BendSegments, Length1, Length2);
}

/// The pipe that all pieces are made of, with the seam of the first one.
CRightCylinder CSegBendParallel::Pipe() const {
    CRightCylinder pipe;
    pipe.inputs = inputs;
    pipe.inputs.Dtype = TiltedEnds;
    pipe.BaseRad = BaseRad;
    pipe.TemplateType = TemplateType;
    pipe.Thickness = Thickness;
    return pipe;
}

void CSegBendParallel::ConstructModel() {
    RequireWall(BaseRad);
    CRightCylinder pipe = Pipe();
    results.ModelSurfaceList = AssembleBend(pipe, Pieces(), PI);
    RequireWithinReach(results.ModelSurfaceList);
}

void CSegBendParallel::DevelopModel() {
    ConstructModel();
    const int middlePieces = inputs.Miscellaneous == LayOutEveryPiece ? BendSegments - 1 : 1;
    CRightCylinder pipe = Pipe();
    LayOutBend(pipe, Pieces(), middlePieces, KerfSpacing, PI, results);
    RequireWithinReach(results.PatternSurfaceList);
}

}  // namespace korvet
