// What the windows of a rectangle below a round top share: the boxes of the rectangle, of the offsets and of
// the height, which they number alike.
#pragma once

#include "fittings/transitions/transition_sketch.h"

namespace korvet::transition {

/// The short page: a rectangle of 300 by 200 below a centred top.
namespace centred {

enum Box : int { RectangleLengthX = 1, RectangleLengthY = 2, Height = 3, CornerRadius = 10 };

inline constexpr LengthBoxes Rectangle = {RectangleLengthX, RectangleLengthY};
inline constexpr std::array<BoxEntry, 3> RectangleEntries = {
    {{RectangleLengthX, "Rectangle length X", "300", LengthXSize(Side::Below, 300, -100, 0)},
     {RectangleLengthY, "Rectangle length Y", "200", LengthYSize(Side::Left, 200, -150, 0)},
     {Height, "Height", "250", HeightSize(Side::Right)}}};
inline constexpr BoxEntry CornerEntry = {CornerRadius, "Corner radius", "50",
                                         CornerSize(Side::Right, 100, 50, 50)};
inline constexpr auto RectangleLabels =
    Joined(LabelEntry{RectangleLengthX}, LabelEntry{RectangleLengthY}, NoOffsetLabels, LabelEntry{Height});
inline constexpr LabelEntry CornerLabel = {CornerRadius, "Radius = "};

}  // namespace centred

/// The long page: a tilted rectangle below a top that has an offset along x and stands 25 out along y.
namespace placed {

enum Box : int {
    RectangleLengthX = 5,
    RectangleLengthY = 6,
    OffsetX = 7,
    OffsetY = 8,
    Height = 9,
    CornerRadius = 11
};

inline constexpr LengthBoxes Rectangle = {RectangleLengthX, RectangleLengthY};
inline constexpr OffsetBoxes Offsets = {OffsetX, OffsetY};

// The base is 300 by 200, turned by 10 degrees, its front at y -100. Its left side (MinX) is found at its
// rear end, where the corner begins at `cornerY`, the right side in its middle.

/// A point of the base, `along` from its middle to the right and at y.
constexpr SketchPoint TiltedAt(double along, double y) {
    return PolarXZ({.dy = y}, 10, along);
}

constexpr SketchPoint TiltedFrontLeft(double cornerY, double dx = 0) {
    return SpotOf(2, Spot::MinX, dx, -100 - cornerY);
}
inline constexpr SketchPoint TiltedFrontRight = SpotOf(2, Spot::MaxX, 0, -100);

constexpr SketchDimension TiltedLengthXSize(double cornerY) {
    return AlignedSize(Side::Below, TiltedFrontLeft(cornerY), TiltedFrontRight, Elevation);
}
inline constexpr SketchDimension TiltedLengthYSize =
    LinearSize(Side::Left, TiltedAt(-150, -100), TiltedAt(-150, 100), Plan);

/// The radius of 50 of a corner on the right.
inline constexpr SketchDimension TiltedCornerSize =
    RadiusSize(Side::Right, TiltedAt(130, 90), TiltedAt(100, 50), Plan);

constexpr SketchDimension BaseTiltSize(double cornerY) {
    return AngleSize(Side::Right, TiltedFrontLeft(cornerY), TiltedFrontRight, TiltedFrontLeft(cornerY, 100),
                     1.1, Elevation);
}

/// The angle and the length along x of a top that is turned.
inline constexpr SketchDimension TopTiltSize = AngleSize(
    Side::Left, SpotOf(1, Spot::MaxX), SpotOf(1, Spot::MinX), SpotOf(1, Spot::MaxX, -100), 1.15, Elevation);
inline constexpr SketchDimension TiltedTopSize =
    AlignedSize(Side::Above, SpotOf(1, Spot::MinX), SpotOf(1, Spot::MaxX), Elevation);

constexpr std::array<BoxEntry, 5> RectangleEntries(double cornerY, std::string_view sampleX, double offsetX) {
    return {{{RectangleLengthX, "Rectangle length X", "300", TiltedLengthXSize(cornerY)},
             {RectangleLengthY, "Rectangle length Y", "200", TiltedLengthYSize},
             {OffsetX, "Offset X", sampleX, OffsetXSize(Side::Above, offsetX)},
             {OffsetY, "Offset Y", "25", OffsetYSize(Side::Right, -25)},
             {Height, "Height", "250", HeightSize(Side::Left, offsetX, -25)}}};
}
inline constexpr BoxEntry CornerEntry = {CornerRadius, "Corner radius", "50", TiltedCornerSize};
inline constexpr std::array<LabelEntry, 5> RectangleLabels = {
    {{RectangleLengthX}, {RectangleLengthY}, {OffsetX}, {OffsetY}, {Height}}};
inline constexpr LabelEntry CornerLabel = {CornerRadius, "Radius = "};

/// The angles of both sections, that of the base as 10 degrees.
constexpr std::array<BoxEntry, 2> TiltEntries(TiltBoxes boxes, std::string_view topSample, double cornerY) {
    return {{{boxes.top, "Top angle (degrees)", topSample, TopTiltSize},
             {boxes.base, "Base angle (degrees)", "10", BaseTiltSize(cornerY)}}};
}

}  // namespace placed

/// The diameter of a round top on either page.
constexpr BoxEntry CentredDiameter(int box) {
    return {box, "Diameter", "150", DiameterSize(Side::Above, 1)};
}
constexpr BoxEntry PlacedDiameter(int box) {
    return {box, "Diameter", "120", placed::TiltedTopSize};
}

}  // namespace korvet::transition
