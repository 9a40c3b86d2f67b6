// Helical flight of a screw conveyor.
#pragma once

#include "core/fitting.h"

namespace korvet {

/// The values of Dtype.
enum AugerForm : std::int16_t {
    ParallelAuger = 0,    ///< of one diameter, laid out turn by turn
    TaperedAuger = 1,     ///< from one diameter to another, laid out turn by turn
    PlateFromInside = 2,  ///< one flat ring for a turn, whose inner edge is as long as the helix on the shaft
    PlateFromOutside = 3  ///< the same, with an outer edge as long as the helix on the outside
};

/// How much of a turn a length may be off whole turns that are meant: what typed sizes leave by rounding.
inline constexpr double WholeTurnWithin = 1e-9;

/// Lengths are in the user's unit. The axis is z, through the origin; the flight starts at z = 0 on the +x
/// side and climbs counter-clockwise.
struct CAuger {
    FittingInputs inputs;    ///< laps are not read; JoinAngle is that of a flat ring alone
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList: a surface for each turn

    double OutsideDia1 = 0;  ///< at the start
    double OutsideDia2 = 0;  ///< at the end
    double InsideDia1 = 0;   ///< at the start
    double InsideDia2 = 0;   ///< at the end
    double Pitch = 0;        ///< rise of one turn
    double Length = 0;       ///< of the whole auger, along the axis
    double Thickness = 0;    ///< of the plate; read of a TaperedAuger alone

    /// Fills results.ModelSurfaceList: the whole turns, and behind them the part of one that the length asks
    /// for beyond WholeTurnWithin. List1 is the inside edge, List2 the outside edge, each of 2 * segs + 1
    /// stations, on a part of a turn too, Flag the station number modulo 2. A TaperedAuger starts with the
    /// diameters that its plate has at half its thickness, and has those of its end behind Length. There is
    /// no half: warns when HalfPattern is set, and clears it. Throws ArithmeticError when there is no turn,
    /// an inside radius is below 0, or all turns together have more than MostStations.
    void ConstructModel();

    /// Fills results.PatternSurfaceList. Of a ParallelAuger and a TaperedAuger: each turn laid flat by
    /// itself, stations in the reverse order, side by side along x. A turn takes the width of its own outside
    /// edge, so that turns which grow may overlap. Of the two plates: a full ring about the origin, which is
    /// the reference point, from JoinAngle round to it, List1 inside; ConstructModel is not run for it, and
    /// nothing is warned of. Throws as ConstructModel.
    void DevelopModel();

  private:
    /// One edge of the flight: its radius, and by how much that grows in a turn.
    struct Edge {
        double radius;
        double growth;
    };

    /// How many times the flight goes round.
    struct Turns {
        int whole;
        double part;  ///< of one more turn; below 1
    };

    /// Radii of a plate.
    struct FlatRing {
        double inside;
        double outside;
    };

    [[nodiscard]] Turns CountTurns() const;
    [[nodiscard]] Edge EdgeOf(double startDiameter, double endDiameter) const;
    [[nodiscard]] PointList BuildSpiralList(double fraction, const C3DPoint& centre, const Edge& edge) const;
    [[nodiscard]] FlatRing PlateOfOneTurn() const;
    void LayOutTurns();
    void LayOutPlate();
};

}  // namespace korvet
