#include "fittings/piece_layout.h"

#include <algorithm>

#include "core/math_module.h"

namespace korvet {
namespace {

constexpr double DepthsBelow = 1.5;

}  // namespace

CRuleSurf PieceLayout::Add(CRuleSurf piece, const C3DPoint& grip) {
    piece.Move(grip, place);
    surfaces_.Add(Trimmed(piece, trim_));
    return piece;
}

C3DPoint Above(const C3DPoint& place, double depth, double kerf) {
    return {place.x, place.y + (depth + kerf), place.z, place.Flag};
}

C3DPoint AboveHighest(const C3DPoint& place, const C3DPoints& edge, double kerf) {
    double highest = edge.Item(1).y;
    for (const C3DPoint& point : edge) {
        highest = std::max(highest, point.y);
    }
    return {place.x, kerf + highest, place.z, place.Flag};
}

C3DPoint Below(const C3DPoint& place, double depth) {
    return {place.x, place.y - depth * DepthsBelow, place.z, place.Flag};
}

C3DPoint RightOf(const C3DPoint& place, const C3DPoint& station, double kerf) {
    return {kerf + station.x, place.y, place.z, place.Flag};
}

C3DPoint Beside(const C3DPoint& place, const C3DPoints& edge) {
    double left = edge.Item(1).x;
    double right = left;
    for (const C3DPoint& point : edge) {
        left = std::min(left, point.x);
        right = std::max(right, point.x);
    }
    return {place.x + (right - left), place.y, place.z, place.Flag};
}

C3DPoint AlongRuling(const C3DPoint& place, const CRuleSurf& piece, std::size_t station, double kerf) {
    if (!piece.List1 || !piece.List2) {
        throw ListError("a piece without rulings");
    }
    return PolarPoint(place, PlanAngle(piece.List1->Item(station), piece.List2->Item(station)), -kerf);
}

}  // namespace korvet
