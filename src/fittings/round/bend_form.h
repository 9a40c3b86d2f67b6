// What the windows of segmented bends of any section share: checks, and the sizes that every type comes down
// to.
#pragma once

#include "core/checked.h"
#include "form/fitting_form.h"

namespace korvet {

/// The sizes of a bend, on the mean line: lengths in the user's unit, the angle in radians.
struct BendSizes {
    double baseRadius;
    double bendRadius;
    double bendAngle;
    double length1;
    double length2;
    double pieces;  ///< a whole number, one more than the cuts
};

/// A whole number of pieces, and then at least two: true after a failure.
inline bool CheckPieces(FittingForm& form, int piecesBox) {
    return form.CheckInteger(piecesBox) || form.CheckAtLeast(piecesBox, 2);
}

/// The last test, that a pattern is chosen; then the sizes and the kerf go to a bend such as
/// CSegBendParallel. False after a failure. Throws ArithmeticError for more pieces than a bend can count.
template <typename Bend>
bool SetBend(FittingForm& form, Bend& bend, const BendSizes& sizes) {
    if (form.CheckPatternSelected()) {
        return false;
    }
    bend.BaseRad = sizes.baseRadius;
    bend.BendSegments = RoundToInt16(sizes.pieces - 1);
    bend.BendAngle = sizes.bendAngle;
    bend.BendRadius = sizes.bendRadius;
    bend.Length1 = sizes.length1;
    bend.Length2 = sizes.length2;
    bend.KerfSpacing = form.settings.KerfSpacing;
    return true;
}

}  // namespace korvet
