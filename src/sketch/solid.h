// A model as a shaded picture with its hidden lines removed. Everything is in the model's own unit, x to the
// right and y upward, so that it is crisp at any size.
#pragma once

#include <cstddef>
#include <vector>

#include "core/points.h"
#include "core/rule_surf.h"
#include "form/sketch_entry.h"

namespace korvet {

struct SketchXY {
    double x = 0;
    double y = 0;
    bool operator==(const SketchXY&) const = default;
};

/// One visible or half hidden piece of a wall.
struct SolidFace {
    std::vector<SketchXY> corners;
    double light = 1;     ///< 0 turned from the light to 1 facing it
    bool inside = false;  ///< the inner side of the wall is seen
    bool pale = false;    ///< of a surface beside the one that is shown off
};

/// A line that nothing hides.
struct SolidEdge {
    std::vector<SketchXY> points;
    bool outline = true;  ///< an end, a crease or a contour; else a thin bend line between flat triangles
    bool pale = false;    ///< no part of the surface that is shown off
};

struct SolidBounds {
    double left = 0;
    double bottom = 0;
    double right = 0;
    double top = 0;
};

struct SolidPicture {
    std::vector<SolidFace> faces;  ///< from the back to the front, to be painted in this order
    std::vector<SolidEdge> edges;  ///< to be painted on top
    SolidBounds bounds;            ///< of all of it; zeros for an empty model
};

/// Where a point of the model lies on the picture: turned about z by the view's turn, seen from the front
/// (from smaller y) at the view's tilt. x to the right, y upward; in the plan x and y are the model's own.
SketchXY ProjectOnSketch(const C3DPoint& point, const SketchView& view);

/// The picture of a model. Ends (List1, List2, List3) and creases sharper than 20 degrees are outlines, and
/// so are the contours where a wall turns away from the eye. `shownOff` is the surface, from 1, beside which
/// all others are pale; 0: none is.
SolidPicture DrawSolid(const CRuleSurfs& model, const SketchView& view, std::size_t shownOff = 0);

}  // namespace korvet
