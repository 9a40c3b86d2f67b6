// From where a fitting is seen.
#pragma once

#include "core/constants.h"
#include "core/one_based_list.h"

namespace korvet {

/// A view. Its quarter turn is the program's literal: the projection compares with it exactly.
struct CViewPoint {
    bool Patternview = false;  ///< true shows the flat pattern, false the model
    double ZoomFactor = 1;     ///< WorldExtents / ZoomFactor fills the short side of the device
    double PanY = 0;           ///< world point at the centre of the device
    double PanX = 0;
    double FromXY = 0;  ///< elevation of the eye above the xy plane, radians; a quarter turn is straight down
    double AroundZ = 0;  ///< turn about z, radians
    bool operator==(const CViewPoint&) const = default;
};

/// The history of views of one window; the last item is the current view.
using CViewList = OneBasedList<CViewPoint>;

/// The view that a history starts from: straight down, a quarter turn about z, no pan, zoom 1, of the model.
inline CViewPoint DefaultViewPoint() {
    return {false, 1, 0, 0, QuarterTurn, QuarterTurn};
}

/// The current view; the default one before the first.
inline CViewPoint CurrentOrDefaultView(const CViewList& views) {
    return views.Count() > 0 ? views.Last() : DefaultViewPoint();
}

}  // namespace korvet
