// How true a cut file is: how far its lines lie from the points they stand for.
#pragma once

#include "exchange/cut_drawing.h"

namespace korvet {

/// The largest distance of a point of a surface's lists from the lines that its list went out as. Lists that
/// did not go out don't count.
double DistanceFromPoints(const CRuleSurfs& surfaces, const PieceCurves& lines);

/// The largest distance of a point of `finer` from the lines of the same list, `finer` being the surfaces of
/// the same pattern with more points. Each of its surfaces is laid on its counterpart in `surfaces` first,
/// turned and moved to where both edges fit best, for a pattern may lie elsewhere with more points. Throws
/// ArithmeticError when the two don't have the same surfaces.
double DistanceFromFiner(const CRuleSurfs& surfaces, const PieceCurves& lines, const CRuleSurfs& finer);

}  // namespace korvet
