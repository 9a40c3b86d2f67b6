// What is kept of a surface: all of it, or the stations of a half or quarter pattern.
#pragma once

#include "core/fitting.h"

namespace korvet {

enum class Trim { Whole, Half, Quarter };

/// Half when the fitting's HalfPattern is set.
inline Trim TrimOf(const FittingInputs& inputs) {
    return inputs.HalfPattern ? Trim::Half : Trim::Whole;
}

/// The surface itself, sharing its lists, when it is kept whole; else the first stations of TrimSurface,
/// copied and without RefPoint. The tab of a seam lap counts among the stations: a half of a lapped pattern
/// goes one station further than that of a plain one. Throws ListError as TrimSurface.
CRuleSurf Trimmed(const CRuleSurf& surface, Trim trim);

/// Of a fitting that has no half: when HalfPattern is set, warns that it is not applicable and clears it.
void RefuseHalf(FittingInputs& inputs, FittingResults& results);

/// A new list of the points up to the middle station, those that TrimSurface keeps.
PointList FirstHalf(const C3DPoints& list);

/// A new list of the points from the middle station on, those that TrimSurface leaves away and the one in the
/// middle.
PointList SecondHalf(const C3DPoints& list);

}  // namespace korvet
