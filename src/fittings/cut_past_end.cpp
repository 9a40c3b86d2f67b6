#include "fittings/cut_past_end.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/checked.h"
#include "core/math_module.h"

namespace korvet {
namespace {

/// How far, as a part of the piece's size, a rule of no length may come out below 0 by rounding.
constexpr double PastEndBand = 1e-9;

double SizeOf(const C3DPoints& cut, const C3DPoints& freeEnd) {
    double size = 0;
    for (const C3DPoints* edge : {&cut, &freeEnd}) {
        for (const C3DPoint& point : *edge) {
            size = std::max(size, Distance3D(freeEnd.Item(1), point));
        }
    }
    return size;
}

/// The length of a rule, below 0 when it leads away from the free end.
double SignedLength(const C3DPoint& cut, const C3DPoint& freeEnd, const C3DPoint& towardsFree) {
    const double along = (freeEnd.x - cut.x) * towardsFree.x + (freeEnd.y - cut.y) * towardsFree.y +
                         (freeEnd.z - cut.z) * towardsFree.z;
    return std::copysign(Distance3D(cut, freeEnd), along);
}

}  // namespace

void RequireCutWithinEnd(const C3DPoints& cut, const C3DPoints& freeEnd, const C3DPoint& towardsFree,
                         std::string_view length) {
    const double least = -PastEndBand * SizeOf(cut, freeEnd);
    for (std::size_t i = 1; i <= cut.Count(); ++i) {
        if (SignedLength(cut.Item(i), freeEnd.Item(i), towardsFree) < least) {
            throw ArithmeticError(std::string(length) + " is too short: the cut runs past the free end");
        }
    }
}

}  // namespace korvet
