// What the windows of segmented bends of any section share: checks, and the sizes that every type comes down
// to.
#pragma once

#include <cstdint>
#include <limits>
#include <string>

#include "core/checked.h"
#include "fittings/makeable.h"
#include "form/fitting_form.h"

namespace korvet::bend {

/// The sizes of a bend, on the mean line: lengths in the user's unit, the angle in radians.
struct Sizes {
    double baseRadius;
    double bendRadius;
    double bendAngle;
    double length1;
    double length2;
    double pieces;  ///< a whole number, one more than the cuts
};

/// A whole number of pieces, and then at least two.
inline Outcome CheckPieces(FittingForm& form, int piecesBox) {
    return RefusedIf(form.CheckInteger(piecesBox) || form.CheckAtLeast(piecesBox, 2));
}

/// What limits the number of a bend's pieces.
struct PieceLimits {
    int mostPieces;           ///< that its class can count
    double stationsOfAPiece;  ///< at the number of fold lines that is set
};

/// Throws ArithmeticError for more pieces than a bend can have at `segs` fold lines.
inline void RequireCountable(double pieces, const PieceLimits& limits, int segs) {
    if (pieces > limits.mostPieces) {
        throw ArithmeticError("a bend has " + std::to_string(limits.mostPieces) + " segments at most");
    }
    if (pieces * limits.stationsOfAPiece > MostStations) {
        throw ArithmeticError("so many segments with " + std::to_string(segs) +
                              " fold lines each are too much: make one of the two numbers smaller");
    }
}

/// The largest number that a class counts its pieces or its cuts by.
inline constexpr int MostCounted = std::numeric_limits<std::int16_t>::max();

/// Gives the sizes and the kerf to a bend such as CSegBendParallel. Throws ArithmeticError for pieces that
/// are not RequireCountable.
template <typename Bend>
void SetBend(const CPatternSettings& settings, const Sizes& sizes, Bend& bend) {
    RequireCountable(sizes.pieces, {MostCounted + 1, 2.0 * settings.segs + 1}, settings.segs);
    bend.BaseRad = sizes.baseRadius;
    bend.BendSegments = RoundToInt16(sizes.pieces - 1);
    bend.BendAngle = sizes.bendAngle;
    bend.BendRadius = sizes.bendRadius;
    bend.Length1 = sizes.length1;
    bend.Length2 = sizes.length2;
    bend.KerfSpacing = settings.KerfSpacing;
}

/// Captions of optPatternSelect: every piece (LayOutEveryPiece), or one of each kind.
inline constexpr std::string_view PatternChoices[] = {"Full Pattern", "First, Last, one intermediate"};

}  // namespace korvet::bend
