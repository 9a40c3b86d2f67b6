// Pieces put in their places one after the other: the model of a compound fitting, or its patterns on the
// sheet.
#pragma once

#include "core/rule_surf.h"
#include "fittings/trim.h"

namespace korvet {

/// The pieces that have come to their places. Each is moved from a point of it to the placing point, which a
/// rule below, a station of the piece before, or the fitting itself has found.
class PieceLayout {
  public:
    /// `trim` is done to each piece when it has been moved, on whatever tab of a lap it has.
    explicit PieceLayout(Trim trim = Trim::Whole) : trim_(trim) {}

    C3DPoint place;  ///< where the next piece goes; the origin at first

    /// Moves a piece by the vector from `grip` to the placing point and adds what the trim keeps of it.
    /// Returns the piece as it was moved, with all its stations: what the next one is joined to.
    CRuleSurf Add(CRuleSurf piece, const C3DPoint& grip = {});

    [[nodiscard]] const CRuleSurfs& Surfaces() const { return surfaces_; }

  private:
    Trim trim_;
    CRuleSurfs surfaces_;
};

// The rules by which the placing point goes on from `place`. Lengths in the user's unit; a kerf is the gap
// that the saw takes.

/// Above: up by the depth of a piece, and a kerf.
C3DPoint Above(const C3DPoint& place, double depth, double kerf);

/// Above everything of an edge that lies on the sheet: a kerf over its highest point. x stays.
C3DPoint AboveHighest(const C3DPoint& place, const C3DPoints& edge, double kerf);

/// Below: down by one and a half depths.
C3DPoint Below(const C3DPoint& place, double depth);

/// To the right of a station that lies on the sheet, by a kerf. y stays.
C3DPoint RightOf(const C3DPoint& place, const C3DPoint& station, double kerf);

/// To the right by the width of an edge, from its leftmost to its rightmost point; no kerf.
C3DPoint Beside(const C3DPoint& place, const C3DPoints& edge);

/// Against the direction of a ruling of the piece that comes next, from its List2 to its List1, by a kerf: a
/// piece that fans out about its apex slides along that ruling. Throws ListError for a station that there is
/// not.
C3DPoint AlongRuling(const C3DPoint& place, const CRuleSurf& piece, std::size_t station, double kerf);

}  // namespace korvet
