#include "fittings/bends/seg_bend_parallel.h"

#include "core/constants.h"
#include "fittings/makeable.h"

namespace korvet {

bend::Pieces CSegBendParallel::Pieces() const {
    return bend::PiecesOf(BendAngle, BendRadius, BendSegments, Length1, Length2);
}

/// The pipe that all pieces are made of, with the seam of the first one.
CRightCylinder CSegBendParallel::Pipe() const {
    CRightCylinder pipe;
    pipe.inputs = PieceInputs(inputs, {.Dtype = TiltedEnds, .JoinAngle = inputs.JoinAngle});
    TakeTemplate(pipe, *this);
    pipe.BaseRad = BaseRad;
    return pipe;
}

void CSegBendParallel::ConstructModel() {
    RequireWall(BaseRad);
    CRightCylinder pipe = Pipe();
    results.ModelSurfaceList = bend::Assemble(pipe, Pieces(), PI);
}

void CSegBendParallel::DevelopModel() {
    ConstructModel();
    CRightCylinder pipe = Pipe();
    bend::LayOut(pipe, Pieces(), bend::MiddlePieces(inputs.Miscellaneous, BendSegments), KerfSpacing, PI,
                 results);
}

}  // namespace korvet
