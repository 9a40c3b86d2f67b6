// Where the boxes of a parameter page stand on its sketch: dimension lines as data, laid against the model
// that the page's sample sizes make.
#pragma once

namespace korvet {

/// A distinguished point of one line of a model: its middle (of the bounding box), or the first point with
/// the smallest or largest coordinate.
enum class Spot { Centre, MinX, MaxX, MinY, MaxY, MinZ, MaxZ };

/// A point that a dimension line refers to: a point of the sample model, or the model's origin, and from
/// there an offset in the user's unit.
struct SketchPoint {
    int list = 0;  ///< 1 to 3: List1 to List3 of the surface; 0: the origin
    Spot spot = Spot::Centre;
    double dx = 0;
    double dy = 0;
    double dz = 0;
    int surface = 1;  ///< counted from 1
};

enum class DimensionKind {
    Linear,   ///< from a to b, measured level (side Above, Below) or upright (side Left, Right)
    Aligned,  ///< from a to b, along the line between them, to the side given
    Angle,    ///< at the vertex, from the ray to a round to the ray to b
    Radius,   ///< a leader with its arrow on a, b is the centre
    Note      ///< a value without a line
};

enum class Side { Left, Right, Above, Below };

/// The dimension line of one box. In space the distance from a to b (the angle, the radius) is the box's
/// sample size: a test holds every table to that.
struct SketchDimension {
    DimensionKind kind = DimensionKind::Note;
    Side side = Side::Below;  ///< of the shape, where the line and the box stand
    SketchPoint a = {};
    SketchPoint b = {};
    SketchPoint vertex = {};
    int view = 0;  ///< which view of the page it belongs to, from 0
};

/// One drawing of a sketch: the model turned about z and seen from this height, both in degrees. 0 and 0 is
/// the elevation along y with x to the right; 90 up is the plan.
struct SketchView {
    double turn = 0;
    double tilt = 12;
};

}  // namespace korvet
