#include "core/thick_compensator.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"

namespace korvet {

double CThickCompensator::NewDistance(double distance, double angle, int sides) const {
    if (Shapetype < SlopingRoundWall || Shapetype > SlopingFlatWall) {
        return 0;
    }
    if (Position == MeanDimension) {
        return distance;
    }
    double amount = Thickness / 2;
    switch (Shapetype) {
        case SlopingRoundWall:
        case SlopingFlatWall:
            amount = (Thickness / 2) * std::cos(angle);
            break;
        case TwoWalls:
            amount = Thickness;
            break;
        case PolygonCorner:
            amount = Quotient(Thickness / 2, std::cos(Quotient(FullTurn, sides) / 2));
            break;
        default:
            break;
    }
    // Position 1 grows an inside dimension to the mean line; Position 2 shrinks an outside one.
    return Position == InsideDimension ? distance + amount : distance - amount;
}

}  // namespace korvet
