// Rectangle to Rectangle: sharp-cornered, with flat sides, or with tilted ends and creased sides.
#include "core/constants.h"
#include "core/math_module.h"
#include "fittings/transitions/rect_to_rect.h"
#include "fittings/transitions/transition_sketch.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// Every type, by the names of its boxes: its creases go with its number.
template <typename Box>
Outcome Build(FittingForm& form, CRectToRect& fitting) {
    if (form.CheckAllPositive(Box::TopLengthY, Box::BaseLengthY, Box::TopLengthX, Box::BaseLengthX) ||
        form.CheckNotEqual(Box::Height, 0)) {
        return Refused;
    }
    fitting.TopLengthX = form.Value(Box::TopLengthX);
    fitting.TopLengthY = form.Value(Box::TopLengthY);
    fitting.BaseLengthX = form.Value(Box::BaseLengthX);
    fitting.BaseLengthY = form.Value(Box::BaseLengthY);
    fitting.TopOffsetX = form.Value(Box::OffsetX);
    fitting.TopOffsetY = form.Value(Box::OffsetY);
    fitting.Height = form.Value(Box::Height);
    fitting.Diagonal = form.dtype;
    fitting.TopTiltX = fitting.TopTiltY = fitting.BaseTiltX = fitting.BaseTiltY = fitting.TopRotation = 0;
    if constexpr (requires { Box::TopAngle; }) {
        fitting.TopTiltY = DegToRad(form.Value(Box::TopAngle));
        fitting.BaseTiltY = DegToRad(form.Value(Box::BaseAngle));
    }
    if constexpr (requires { Box::TopRotation; }) {
        // The one angle that is typed in radians: files made so far have it so.
        fitting.TopRotation = form.Value(Box::TopRotation);
    }
    return Passed;
}

// The sketches: of the base, List1, and of the top, List2, the corners are told by their stations. The first
// is that at the front left, about which tilts turn; creases repeat others.

enum RectangleList : int { Base = 1, Top = 2 };

/// The stations of the corners, the same in both lists; the repeats stand beside them.
struct Corners {
    int frontRight;
    int rearRight;
    int rearLeft;
};
constexpr int FrontLeft = 1;

/// The first corner of the top, moved along the axes.
constexpr SketchPoint ByTopCorner(double dx, double dy, double dz = 0) {
    SketchPoint point = StationOf(Top, FrontLeft);
    point.dx = dx;
    point.dy = dy;
    point.dz = dz;
    return point;
}

/// A length along x, which a tilt or rotation leaves what it is.
constexpr SketchDimension FrontSize(Side side, RectangleList list, const Corners& corners, int view) {
    return AlignedSize(side, StationOf(list, FrontLeft), StationOf(list, corners.frontRight), view);
}
constexpr SketchDimension LeftSize(RectangleList list, const Corners& corners) {
    return LinearSize(Side::Left, StationOf(list, FrontLeft), StationOf(list, corners.rearLeft),
                      transition::Plan);
}
constexpr SketchDimension RightSize(RectangleList list, const Corners& corners) {
    return LinearSize(Side::Right, StationOf(list, corners.frontRight), StationOf(list, corners.rearRight),
                      transition::Plan);
}

/// The height of the first corner of the top above the base's plane.
constexpr SketchDimension HeightOfCorner(double height) {
    return LinearSize(Side::Left, ByTopCorner(0, 0, -height), StationOf(Top, FrontLeft));
}

/// Offsets from the first corner of the base to that of the top, left and forward.
constexpr SketchDimension OffsetXOfCorner(double offset) {
    return LinearSize(Side::Above, StationOf(Top, FrontLeft), ByTopCorner(offset, 0), transition::Plan);
}
constexpr SketchDimension OffsetYOfCorner(double offset) {
    return LinearSize(Side::Right, StationOf(Top, FrontLeft), ByTopCorner(0, offset), transition::Plan);
}

/// The tilt of the front edge of a rectangle, against the level at `bearing` degrees.
constexpr SketchDimension TiltOfFront(Side side, RectangleList list, const Corners& corners,
                                      double bearing = 0) {
    return AngleSize(side, StationOf(list, FrontLeft), StationOf(list, corners.frontRight),
                     PolarXY(StationOf(list, FrontLeft), bearing, 100), 1.15, transition::Elevation);
}

namespace plain {

enum Box : int {
    TopLengthY = 0,
    BaseLengthY = 1,
    OffsetY = 2,
    TopLengthX = 3,
    BaseLengthX = 4,
    OffsetX = 5,
    Height = 6
};

constexpr Corners At = {2, 3, 4};
constexpr BoxEntry Boxes[] = {
    {TopLengthX, "Top length X", "250", FrontSize(Side::Above, Top, At, transition::Elevation)},
    {TopLengthY, "Top length Y", "180", RightSize(Top, At)},
    {BaseLengthX, "Base length X", "400", FrontSize(Side::Below, Base, At, transition::Elevation)},
    {BaseLengthY, "Base length Y", "300", LeftSize(Base, At)},
    {OffsetX, "Offset X", "70", OffsetXOfCorner(70)},
    {OffsetY, "Offset Y", "45", OffsetYOfCorner(45)},
    {Height, "Height", "350", HeightOfCorner(350)}};
constexpr LabelEntry Labels[] = {{TopLengthX}, {TopLengthY}, {BaseLengthX}, {BaseLengthY},
                                 {OffsetX},    {OffsetY},    {Height}};

}  // namespace plain

/// The sides that a tilt would twist, front and rear, are creased.
namespace rising_right {

enum Box : int {
    TopLengthY = 7,
    BaseLengthY = 8,
    OffsetY = 9,
    TopLengthX = 10,
    BaseLengthX = 11,
    OffsetX = 12,
    Height = 13,
    BaseAngle = 14,
    TopAngle = 15
};

constexpr Corners At = {4, 5, 8};
constexpr BoxEntry Boxes[] = {
    {TopLengthX, "Top length X", "260", FrontSize(Side::Above, Top, At, transition::Elevation)},
    {TopLengthY, "Top length Y", "190", RightSize(Top, At)},
    {BaseLengthX, "Base length X", "420", FrontSize(Side::Below, Base, At, transition::Elevation)},
    {BaseLengthY, "Base length Y", "310", LeftSize(Base, At)},
    {OffsetX, "Offset X", "60", OffsetXOfCorner(60)},
    {OffsetY, "Offset Y", "50", OffsetYOfCorner(50)},
    {Height, "Height", "340", HeightOfCorner(340)},
    {BaseAngle, "Base angle (degrees)", "10", TiltOfFront(Side::Right, Base, At)},
    {TopAngle, "Top angle (degrees)", "25", TiltOfFront(Side::Right, Top, At)}};
constexpr LabelEntry Labels[] = {{TopLengthX}, {TopLengthY}, {BaseLengthX}, {BaseLengthY}, {OffsetX},
                                 {OffsetY},    {Height},     {TopAngle},    {BaseAngle}};

}  // namespace rising_right

namespace rising_left {

enum Box : int {
    TopLengthY = 16,
    BaseLengthY = 17,
    OffsetY = 18,
    TopLengthX = 19,
    BaseLengthX = 20,
    Height = 21,
    OffsetX = 22,
    BaseAngle = 23,
    TopAngle = 24
};

constexpr Corners At = {4, 5, 8};
constexpr BoxEntry Boxes[] = {
    {TopLengthX, "Top length X", "240", FrontSize(Side::Above, Top, At, transition::Elevation)},
    {TopLengthY, "Top length Y", "170", RightSize(Top, At)},
    {BaseLengthX, "Base length X", "390", FrontSize(Side::Below, Base, At, transition::Elevation)},
    {BaseLengthY, "Base length Y", "290", LeftSize(Base, At)},
    {OffsetX, "Offset X", "65", OffsetXOfCorner(65)},
    {OffsetY, "Offset Y", "55", OffsetYOfCorner(55)},
    {Height, "Height", "330", HeightOfCorner(330)},
    {BaseAngle, "Base angle (degrees)", "12", TiltOfFront(Side::Right, Base, At)},
    {TopAngle, "Top angle (degrees)", "22", TiltOfFront(Side::Right, Top, At)}};
// The lines read the boxes of the type before: text blocks made so far have it so.
constexpr LabelEntry Labels[] = {{rising_right::TopLengthX, "Top length X = "},
                                 {rising_right::TopLengthY, "Top length Y = "},
                                 {rising_right::BaseLengthX, "Base length X = "},
                                 {rising_right::BaseLengthY, "Base length Y = "},
                                 {rising_right::OffsetX, "Offset X = "},
                                 {rising_right::OffsetY, "Offset Y = "},
                                 {rising_right::Height, "Height = "},
                                 {rising_right::TopAngle, "Top angle = "},
                                 {rising_right::BaseAngle, "Base angle = "}};

}  // namespace rising_left

/// The angles are those of the type before: one box, on both pages.
namespace rotated {

enum Box : int {
    BaseAngle = rising_left::BaseAngle,
    TopAngle = rising_left::TopAngle,
    TopLengthX = 25,
    TopLengthY = 26,
    BaseLengthX = 27,
    BaseLengthY = 28,
    OffsetX = 29,
    OffsetY = 30,
    TopRotation = 31,
    Height = 32
};

// The rotation of 0.35 radians in degrees, and the centre of the top about which it turns.
constexpr double Bearing = 0.35 * 180 / PI;
constexpr SketchPoint TopCentre = transition::PointAt(-75, -40, 360);

constexpr Corners At = {4, 11, 12};
constexpr BoxEntry Boxes[] = {
    {TopLengthX, "Top length X", "270", FrontSize(Side::Below, Top, At, transition::Plan)},
    {TopLengthY, "Top length Y", "200",
     AlignedSize(Side::Right, StationOf(Top, At.frontRight), StationOf(Top, At.rearRight), transition::Plan)},
    {BaseLengthX, "Base length X", "410", FrontSize(Side::Below, Base, At, transition::Elevation)},
    {BaseLengthY, "Base length Y", "320", LeftSize(Base, At)},
    {OffsetX, "Offset X", "75",
     LinearSize(Side::Above, TopCentre, transition::PointAt(0, -40, 360), transition::Plan)},
    {OffsetY, "Offset Y", "40",
     LinearSize(Side::Right, TopCentre, transition::PointAt(-75, 0, 360), transition::Plan)},
    {Height, "Height", "360", HeightOfCorner(360)},
    {BaseAngle, "Base angle (degrees)", "12", TiltOfFront(Side::Right, Base, At)},
    {TopAngle, "Top angle (degrees)", "22", TiltOfFront(Side::Right, Top, At, Bearing)},
    {TopRotation, "Top rotation (radians)", "0.35",
     AngleSize(Side::Right, TopCentre, transition::PointAt(75, -40, 360), PolarXY(TopCentre, Bearing, 150),
               1.15, transition::Plan)}};
constexpr LabelEntry Labels[] = {{TopLengthX}, {TopLengthY}, {BaseLengthX}, {BaseLengthY}, {OffsetX},
                                 {OffsetY},    {Height},     {TopAngle},    {BaseAngle},   {TopRotation}};
constexpr SketchConstruction Lines[] = {
    CentreLine(transition::PointAt(-205, 0), transition::PointAt(205, 0), transition::Plan),
    CentreLine(transition::PointAt(0, -160), transition::PointAt(0, 160), transition::Plan),
    CentreLine(TopCentre, transition::PointAt(75, -40, 360), transition::Plan),
    CentreLine(TopCentre, PolarXY(TopCentre, Bearing, 150), transition::Plan)};

}  // namespace rotated

constexpr PageEntry Pages[] = {
    {plain::Boxes, plain::Labels, transition::ElevationAndPlan},
    {rising_right::Boxes, rising_right::Labels, transition::ElevationAndPlan},
    {rising_left::Boxes, rising_left::Labels, transition::ElevationAndPlan},
    {rotated::Boxes, rotated::Labels, transition::ElevationAndPlan, rotated::Lines}};

}  // namespace

const WindowTable frmRectToRect = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CRectToRect>,
    .buildFitting = BuildByType<CRectToRect, Build<plain::Box>, Build<rising_right::Box>,
                                Build<rising_left::Box>, Build<rotated::Box>>,
    .halfPatterns = HalfPatterns::None,
    .joinAngleDisable = true,
    .materialDisable = true,
    .inOutMean = InsideDimension,
    .moreButtons = true,
};

}  // namespace korvet
