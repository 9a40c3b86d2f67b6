// The pieces of a compound fitting: fittings of their own that another one drives, such as the pipes of an
// elbow. What a piece takes over from the fitting that drives it, its ends, and the order in which it is
// built.
#pragma once

#include <concepts>

#include "core/fitting.h"
#include "core/pattern_settings.h"

namespace korvet {

/// How a piece differs from the fitting that drives it.
struct PieceSettings {
    std::int16_t Dtype = 0;  ///< the piece's own construction
    double JoinAngle = 0;    ///< the piece's own seam, a plan angle in radians

    /// Whether the piece takes HalfPattern over: it then trims its own model, before it is moved and before
    /// its laps are laid. Else it is built whole, and the driving fitting trims what has come to its place,
    /// the tab of a seam lap included (see PieceLayout).
    bool halved = true;

    LapMask laps = AllLaps;  ///< the laps that it takes over; it has no others
};

/// The inputs of a piece: segs, laps and HalfPattern of the whole as the settings say. Miscellaneous is 0.
FittingInputs PieceInputs(const FittingInputs& whole, const PieceSettings& settings);

/// Hands TemplateType and Thickness of the driving fitting to a piece, where both have them.
template <typename Piece, typename Whole>
void TakeTemplate(Piece& piece, const Whole& whole) {
    piece.TemplateType = whole.TemplateType;
    piece.Thickness = whole.Thickness;
}

/// The ends of a piece on its own axis: heights in the user's unit, tilts in radians. 1 is the List1 side.
struct PieceEnds {
    double CPHeight1 = 0;
    double CPHeight2 = 0;
    double CPAngle1 = 0;
    double CPAngle2 = 0;
};

/// A fitting with an axis and an end at either side of it, such as CRightCylinder and CRightCone.
template <typename T>
concept CutPiece = FittingClass<T> && requires(T piece) {
    { piece.CPHeight1 } -> std::same_as<double&>;
    { piece.CPHeight2 } -> std::same_as<double&>;
    { piece.CPAngle1 } -> std::same_as<double&>;
    { piece.CPAngle2 } -> std::same_as<double&>;
};

template <CutPiece Piece>
void SetEnds(Piece& piece, const PieceEnds& ends) {
    piece.CPHeight1 = ends.CPHeight1;
    piece.CPHeight2 = ends.CPHeight2;
    piece.CPAngle1 = ends.CPAngle1;
    piece.CPAngle2 = ends.CPAngle2;
}

/// Builds the model of a piece whose seam follows one build behind: with the seam that the piece had before,
/// and only then is it given `joinAngle` (radians), with which it is developed and which its next model has.
/// Such a piece is a member of the fitting that drives it, and its inputs are set from PieceInputs with the
/// JoinAngle that it has.
template <FittingClass Piece>
void ConstructWithSeamBefore(Piece& piece, double joinAngle) {
    piece.ConstructModel();
    piece.inputs.JoinAngle = joinAngle;
}

/// Develops a piece, whose pattern is the result; the whole takes over its warnings. The reference holds
/// until the piece is built again.
template <FittingClass Piece>
const CRuleSurf& DevelopPiece(Piece& piece, FittingResults& whole) {
    piece.results.warnings.clear();
    piece.DevelopModel();
    whole.warnings.insert(whole.warnings.end(), piece.results.warnings.begin(), piece.results.warnings.end());
    return piece.results.PatternSurface;
}

}  // namespace korvet
