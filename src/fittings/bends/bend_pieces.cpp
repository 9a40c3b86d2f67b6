#include "fittings/bends/bend_pieces.h"

#include <cmath>

#include "core/checked.h"
#include "core/constants.h"

namespace korvet::bend {
namespace {

/// Radians by which a cut must at least lie off the axis: nearer than this it runs along it.
constexpr double LeastMitre = 1e-12;

}  // namespace

double MitreTilt(double bendAngle, int cuts) {
    const double tilt = Quotient(bendAngle, cuts) / 2;
    if (tilt > QuarterTurn - LeastMitre) {
        throw ArithmeticError("no mitre turns a pipe by 180 degrees or more");
    }
    return tilt;
}

/// The axes of the pieces touch the centre line's arc at the middle of each piece. Every cut lies in a plane
/// through the centre of the bend, half a gore's angle from square, and so crosses the axes
/// tan(half the angle) * radius from where they touch.
Pieces PiecesOf(double bendAngle, double bendRadius, int gores, double length1, double length2) {
    const double a = MitreTilt(bendAngle, gores);
    const double h = Finite(std::tan(a) * bendRadius, "the length of a gore");
    return {.BendAngle = bendAngle,
            .BendRadius = bendRadius,
            .gores = gores,
            .goreAngle = a + a,
            .halfGore = h,
            .first = {.CPHeight1 = h, .CPHeight2 = -length1, .CPAngle1 = a, .CPAngle2 = 0},
            .middle = {.CPHeight1 = h, .CPHeight2 = -h, .CPAngle1 = a, .CPAngle2 = a},
            .last = {.CPHeight1 = length2, .CPHeight2 = -h, .CPAngle1 = 0, .CPAngle2 = a}};
}

}  // namespace korvet::bend
