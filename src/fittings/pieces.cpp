#include "fittings/pieces.h"

namespace korvet {

FittingInputs PieceInputs(const FittingInputs& whole, const PieceSettings& settings) {
    const bool lapsEdges = settings.laps == AllLaps;
    const bool laps = settings.laps != NoLaps;
    FittingInputs piece;
    piece.segs = whole.segs;
    piece.HalfPattern = settings.halved && whole.HalfPattern;
    piece.Dtype = settings.Dtype;
    piece.JoinAngle = settings.JoinAngle;
    piece.JoinType = laps ? whole.JoinType : std::int16_t{0};
    piece.LapSize0 = lapsEdges ? whole.LapSize0 : 0;
    piece.LapSize1 = laps ? whole.LapSize1 : 0;
    piece.LapSize2 = lapsEdges ? whole.LapSize2 : 0;
    return piece;
}

}  // namespace korvet
