// Press-braked plate: a line of corners in the plan, each bent on a radius, as wide as the plate.
#pragma once

#include "core/fitting.h"

namespace korvet {

/// Lengths are in the user's unit and taken as they are. The edge of the plate lies in the plan, its width
/// runs up along z.
struct CBends {
    FittingInputs inputs;    ///< of these only segs is read: the straight lines of an arc
    FittingResults results;  ///< ModelSurface; there is no pattern

    C3DPoints PointsList;   ///< the corners: x and y where the legs meet, z the inside radius there
    double PlateWidth = 0;  ///< along z

    /// Fills results.ModelSurface: List1 is the bent edge at z 0, List2 the same points at z = PlateWidth,
    /// every Flag 1. The first and the last corner are its ends, whatever their z, which this sets to
    /// PlateWidth. Every corner between them is an arc of segs lines, which begins where it touches the line
    /// from the corner before, lies to the right of that line and sweeps the inside angle of the corner: the
    /// bend of a right turn of 90 degrees. Throws ListError when there is no corner.
    void ConstructModel();

    /// Does nothing: a bent plate is not laid flat.
    void DevelopModel() {}
};

/// The angle between the legs of corner `index` (from 1), in radians from 0 to PI; 0 where the line doubles
/// back or a leg has no length. z is not read. Throws ListError for the first and the last corner.
double InsideAngle(const C3DPoints& corners, std::size_t index);

/// How far from a corner with this inside angle (radians) an arc of radius 1 touches the legs. PI, where the
/// line goes straight on, gives 0.
double TangentOfUnitRadius(double insideAngle);

}  // namespace korvet
