#include "fittings/makeable.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/checked.h"

namespace korvet {
namespace {

/// Written so that a NaN is out of reach too.
bool IsWithinReach(double value) {
    return std::fabs(value) <= LargestSize;
}

bool IsWithinReach(const PointList& list) {
    return !list || std::all_of(list->begin(), list->end(), [](const C3DPoint& point) {
        return IsWithinReach(point.x) && IsWithinReach(point.y) && IsWithinReach(point.z);
    });
}

}  // namespace

void RequireWall(double radius) {
    if (radius == 0) {
        throw ArithmeticError("a pipe with a diameter of 0 has no wall");
    }
}

void RequireWithinReach(const FittingForm& form, std::span<const BoxEntry> boxes) {
    for (const BoxEntry& box : boxes) {
        if (!IsWithinReach(form.Value(box.index))) {
            throw ArithmeticError(std::string(box.label) + " is above a thousand million");
        }
    }
}

void RequireWithinReach(const CRuleSurfs& surfaces) {
    for (const CRuleSurf& surface : surfaces) {
        if (!IsWithinReach(surface.List1) || !IsWithinReach(surface.List2) || !IsWithinReach(surface.List3) ||
            !IsWithinReach(surface.LapList1) || !IsWithinReach(surface.LapList2)) {
            throw ArithmeticError("the fitting is larger than a thousand million");
        }
    }
}

}  // namespace korvet
