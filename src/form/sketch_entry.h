// Where the boxes of a parameter page stand on its sketch: dimension lines as data, laid against the model
// that the page's sample sizes make.
#pragma once

namespace korvet {

/// A distinguished point of one line of a model: its middle (of the bounding box), the first point with the
/// smallest or largest coordinate, or the point with a number.
enum class Spot { Centre, MinX, MaxX, MinY, MaxY, MinZ, MaxZ, Station };

/// A step in polar form, as sizes of the trade are: a length at an angle. It is worked out where the point is
/// looked up, so that no table holds the cosine of its sample.
struct SketchStep {
    double length = 0;   ///< in the user's unit
    double rise = 0;     ///< degrees from the level upward: 90 is straight up, 180 level and backward
    double bearing = 0;  ///< degrees on the plan, from x towards y: where a rise of 0 leads
    bool level = false;  ///< `length` is that of the step on the plan; not for a rise of 90
    bool operator==(const SketchStep&) const = default;
};

/// A point that a dimension line refers to: a point of the sample model, or the model's origin, and from
/// there an offset and a step in the user's unit. A height is measured off the middle of a line of the model,
/// and its extension line starts where it leaves the shape; from every other point the extension line starts
/// there.
struct SketchPoint {
    int list = 0;  ///< 1 to 3: List1 to List3 of the surface; 0: the origin
    Spot spot = Spot::Centre;
    double dx = 0;
    double dy = 0;
    double dz = 0;
    int surface = 1;  ///< counted from 1
    int station = 0;  ///< of Spot::Station, counted from 1
    SketchStep step = {};
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

    /// Of an angle: how far from the vertex its arc stands, as a multiple of the distance to a.
    double reach = 1.15;
};

/// A thin line that the shape itself does not show: an axis, or walls drawn on to a virtual apex or base.
struct SketchConstruction {
    SketchPoint a = {};
    SketchPoint b = {};
    bool centre = false;  ///< an axis, drawn dash-dotted and a little beyond both ends
    int view = 0;
};

/// One drawing of a sketch: the model turned about z and seen from this height, both in degrees. 0 and 0 is
/// the elevation along y with x to the right; 90 up is the plan.
struct SketchView {
    double turn = 0;
    double tilt = 12;
};

// How a window's table writes its sketch. What a new fitting needs is told with these:
//   an axis moved aside            LinearSize between OnAxis and AtXZ, on the plan between points with a dy
//   a length along a tilted axis   AlignedSize from a point to PolarXZ (in the plan PolarXY) of it
//   the angle between two axes     AngleSize with rays to PolarXZ or PolarXY of their crossing
//   where lines at angles meet     SlopeXZ: the run is known, the height follows
//   the radius of a corner         RadiusSize to PolarXY of its centre, on a view from above
//   a piece beside the first       OfSurface
//   a corner of a faceted wall     StationOf
//   a number of pieces or sides    CountNote
//   a size that one view hides     a view of its own, which the dimension names

/// A point of a line of the first surface, moved by an offset.
constexpr SketchPoint SpotOf(int list, Spot spot, double dx = 0, double dy = 0, double dz = 0) {
    return {.list = list, .spot = spot, .dx = dx, .dy = dy, .dz = dz};
}

/// The point of a line of the first surface with a number, from 1.
constexpr SketchPoint StationOf(int list, int station) {
    return {.list = list, .spot = Spot::Station, .station = station};
}

/// The same point of another surface.
constexpr SketchPoint OfSurface(int surface, SketchPoint point) {
    point.surface = surface;
    return point;
}

/// A step from a point in the elevation: `angle` in degrees from x upward.
constexpr SketchPoint PolarXZ(SketchPoint from, double angle, double length) {
    from.step = {.length = length, .rise = angle};
    return from;
}

/// A step from a point on the plan: `angle` in degrees from x towards y.
constexpr SketchPoint PolarXY(SketchPoint from, double angle, double length) {
    from.step = {.length = length, .bearing = angle};
    return from;
}

/// A step from a point in the elevation at `angle`, as far as it takes to come `run` along x.
constexpr SketchPoint SlopeXZ(SketchPoint from, double angle, double run) {
    from.step = {.length = run, .rise = angle, .level = true};
    return from;
}

/// The middle of a line of the first surface.
constexpr SketchPoint MiddleOf(int list, double dx = 0) {
    return SpotOf(list, Spot::Centre, dx);
}

/// A point in the plane of the elevation, told from the model's origin: x to the right, z upward.
constexpr SketchPoint AtXZ(double x, double z) {
    return {.dx = x, .dz = z};
}

/// A point on the axis of a model that stands about the origin.
constexpr SketchPoint OnAxis(double z) {
    return AtXZ(0, z);
}

constexpr SketchDimension LinearSize(Side side, const SketchPoint& a, const SketchPoint& b, int view = 0) {
    return {.kind = DimensionKind::Linear, .side = side, .a = a, .b = b, .view = view};
}

constexpr SketchDimension AlignedSize(Side side, const SketchPoint& a, const SketchPoint& b, int view = 0) {
    return {.kind = DimensionKind::Aligned, .side = side, .a = a, .b = b, .view = view};
}

constexpr SketchDimension RadiusSize(Side side, const SketchPoint& onArc, const SketchPoint& centre,
                                     int view = 0) {
    return {.kind = DimensionKind::Radius, .side = side, .a = onArc, .b = centre, .view = view};
}

constexpr SketchDimension AngleSize(Side side, const SketchPoint& vertex, const SketchPoint& a,
                                    const SketchPoint& b, double reach = 1.15, int view = 0) {
    return {.kind = DimensionKind::Angle,
            .side = side,
            .a = a,
            .b = b,
            .vertex = vertex,
            .view = view,
            .reach = reach};
}

/// The diameter of a level round line that is centred on the axis, from side to side.
constexpr SketchDimension DiameterSize(Side side, int list, int view = 0) {
    return LinearSize(side, SpotOf(list, Spot::MinX), SpotOf(list, Spot::MaxX), view);
}

/// The tilt of a plane cut between the left and the right end of its line, against the level.
constexpr SketchDimension TiltSize(int list, int view = 0) {
    return AngleSize(Side::Right, SpotOf(list, Spot::MinX), SpotOf(list, Spot::MaxX),
                     SpotOf(list, Spot::MinX, 100), 1.15, view);
}

/// The tilt of one side of a roof, away from the ridge to the end of the line given.
constexpr SketchDimension RoofTiltSize(Side side, const SketchPoint& ridge, int list) {
    const bool left = side == Side::Left;
    return AngleSize(side, ridge, SpotOf(list, left ? Spot::MinX : Spot::MaxX),
                     AtXZ(ridge.dx + (left ? -100 : 100), ridge.dz));
}

/// A number of pieces or sides, which no line measures.
constexpr SketchDimension CountNote(Side side, int view = 0) {
    return {.kind = DimensionKind::Note, .side = side, .view = view};
}

constexpr SketchConstruction ThinLine(const SketchPoint& a, const SketchPoint& b, int view = 0) {
    return {.a = a, .b = b, .centre = false, .view = view};
}

constexpr SketchConstruction CentreLine(const SketchPoint& a, const SketchPoint& b, int view = 0) {
    return {.a = a, .b = b, .centre = true, .view = view};
}

}  // namespace korvet
