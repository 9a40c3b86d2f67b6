#include "fittings/ovals/seg_bend_parallel_oval.h"

#include "core/constants.h"

namespace korvet {

bend::Pieces CSegBendParallelOval::Pieces() const {
    return bend::PiecesOf(BendAngle, BendRadius, BendSegments, Length1, Length2);
}

/// The pipe that all pieces are made of, with its seam at 0.
CRightCylinderOval CSegBendParallelOval::Pipe() const {
    CRightCylinderOval pipe;
    pipe.inputs = PieceInputs(inputs, {});
    pipe.BaseRad = BaseRad;
    pipe.OvalCenterDistance = OvalCenterDistance;
    return pipe;
}

void CSegBendParallelOval::ConstructModel() {
    CRightCylinderOval pipe = Pipe();
    results.ModelSurfaceList = bend::Assemble(pipe, Pieces(), 0);
}

void CSegBendParallelOval::DevelopModel() {
    ConstructModel();
    CRightCylinderOval pipe = Pipe();
    bend::LayOut(pipe, Pieces(), bend::MiddlePieces(inputs.Miscellaneous, BendSegments), KerfSpacing, PI,
                 results);
}

}  // namespace korvet
