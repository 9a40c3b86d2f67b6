// What the windows of transitions share: reading and checking sections, angles and offsets, and the parts of
// their sketches.
#pragma once

#include <array>
#include <span>

#include "fittings/joined.h"
#include "fittings/transitions/transition.h"
#include "fittings/windows.h"

namespace korvet {

/// A section as CTransition takes it, in mean sizes.
struct TransitionSection {
    double lengthX = 0;
    double lengthY = 0;
    double rad1 = 0;      ///< semi-axis of the corners along x
    double rad2 = 0;      ///< along y
    bool circle = false;  ///< both lengths are one diameter
};

/// The boxes of a section's two lengths.
struct LengthBoxes {
    int x;
    int y;
};

/// The boxes of the top's offsets from the base.
struct OffsetBoxes {
    int x;
    int y;
};

/// The boxes of the angles of both sections, in degrees.
struct TiltBoxes {
    int top;
    int base;
};

/// The ellipse of the overall lengths in two boxes; a circle when both are the same box.
[[nodiscard]] TransitionSection EllipseOf(const FittingForm& form, LengthBoxes lengths);

/// The rectangle of the overall lengths in two boxes with the mean corner radius given.
[[nodiscard]] TransitionSection RectangleOf(const FittingForm& form, LengthBoxes lengths, double radius);

// Checks, with the focus on the box after a refusal.

/// A radius of at most half of either length.
Outcome CheckRadiusFits(FittingForm& form, int radiusBox, double lengthX, double lengthY);

/// The same against the lengths as typed.
Outcome CheckRadiusFits(FittingForm& form, int radiusBox, LengthBoxes lengths);

/// Both angles from -90 to 90 degrees, and an axis for each that is not 0.
Outcome CheckTilts(FittingForm& form, TiltBoxes boxes);

/// Sets the sections and the height, the top level above the base and centred on it. Throws ArithmeticError,
/// which names the size, when the material has left nothing of a length or less than nothing of a corner
/// radius: the checks of the boxes don't rule that out.
void SetSections(CTransition& transition, const TransitionSection& top, const TransitionSection& base,
                 double height);

/// Moves the top: y counts downwards on the plan.
void SetOffsets(const FittingForm& form, CTransition& transition, OffsetBoxes boxes);

/// Turns the sections about the axes that are selected.
void SetTilts(const FittingForm& form, CTransition& transition, TiltBoxes boxes);

/// Refuses a half pattern of a transition that is not the same on both sides of the x axis.
void RefuseSkewHalf(FittingForm& form, const CTransition& transition);

/// The last steps of a page with offsets and angles: sets both and refuses a skew half.
void PlaceTop(FittingForm& form, CTransition& transition, OffsetBoxes offsets, TiltBoxes tilts);

// Sketches: the elevation above the plan. The top is List1, the base List2; samples turn about the y axis,
// which the elevation shows.

inline constexpr int Elevation = 0;
inline constexpr int Plan = 1;
inline constexpr std::array<SketchView, 2> ElevationAndPlan = {{{}, {.turn = 0, .tilt = 90}}};

/// A point of the base's plane, and one at a height above it.
constexpr SketchPoint PointAt(double x, double y, double z = 0) {
    return {.dx = x, .dy = y, .dz = z};
}

/// The middle of the top, moved in x and y.
constexpr SketchPoint TopAt(double dx = 0, double dy = 0) {
    return SpotOf(1, Spot::Centre, dx, dy);
}

/// A level length along x from -length / 2 to length / 2 in the front plane of the section, on the elevation.
constexpr SketchDimension LengthXSize(Side side, double length, double front, double height) {
    return LinearSize(side, PointAt(-length / 2, front, height), PointAt(length / 2, front, height),
                      Elevation);
}

/// A length along y from -length / 2 to length / 2 on the plan; the lines start at x.
constexpr SketchDimension LengthYSize(Side side, double length, double x, double height) {
    return LinearSize(side, PointAt(x, -length / 2, height), PointAt(x, length / 2, height), Plan);
}

/// The height on the axis of the base, for a top moved by offsetX and offsetY.
constexpr SketchDimension HeightSize(Side side, double offsetX = 0, double offsetY = 0) {
    return LinearSize(side, MiddleOf(2), TopAt(-offsetX, -offsetY), Elevation);
}

/// The offsets of the top on the plan.
constexpr SketchDimension OffsetXSize(Side side, double offset) {
    return LinearSize(side, TopAt(-offset), TopAt(), Plan);
}
constexpr SketchDimension OffsetYSize(Side side, double offset) {
    return LinearSize(side, TopAt(0, -offset), TopAt(), Plan);
}

/// The radius of a corner about a centre, to the point of it at 3 : 4.
constexpr SketchDimension CornerSize(Side side, double x, double y, double radius, double height = 0) {
    const double signX = x < 0 ? -1 : 1;
    const double signY = y < 0 ? -1 : 1;
    return RadiusSize(side, PointAt(x + signX * 0.6 * radius, y + signY * 0.8 * radius, height),
                      PointAt(x, y, height), Plan);
}

/// Axes of a transition of samples 250 high over a base of 300 by 200.
inline constexpr std::array<SketchConstruction, 3> CentredLines = {
    {CentreLine(OnAxis(0), OnAxis(250), Elevation), CentreLine(PointAt(-150, 0), PointAt(150, 0), Plan),
     CentreLine(PointAt(0, -100), PointAt(0, 100), Plan)}};

/// The same, and the axes of a top with the half lengths A and B wherever it has been moved to.
template <int A, int B>
inline constexpr std::array<SketchConstruction, 5> PlacedAxes = {
    {CentredLines[0], CentredLines[1], CentredLines[2], CentreLine(TopAt(-A), TopAt(A), Plan),
     CentreLine(TopAt(0, -B), TopAt(0, B), Plan)}};

/// The table of a window with a centred transition on its short page and a placed one on its long page.
template <Outcome (*BuildCentred)(FittingForm&, CTransition&),
          Outcome (*BuildPlaced)(FittingForm&, CTransition&)>
constexpr WindowTable TransitionTable(std::span<const PageEntry> pages) {
    return {.pages = pages,
            .newFitting = FittingHandle::Make<CTransition>,
            .buildFitting = BuildByType<CTransition, BuildCentred, BuildPlaced>,
            .joinAngleDisable = true,
            .moreButtons = true};
}

/// Both pages. With `angles` the long one turns its sections.
constexpr std::array<PageEntry, 2> TransitionPages(const PageEntry& centred, const PageEntry& placed,
                                                   bool angles) {
    std::array<PageEntry, 2> pages = {centred, placed};
    pages[0].construction = CentredLines;
    pages[1].angleOptions = angles;
    for (PageEntry& page : pages) {
        page.views = ElevationAndPlan;
    }
    return pages;
}

/// The lines of the text block that give a centred top no offset.
inline constexpr std::array<LabelEntry, 2> NoOffsetLabels = {
    {{"Offset X = ", NoBox, "0"}, {"Offset Y = ", NoBox, "0"}}};
constexpr std::array<LabelEntry, 2> OffsetLabels(OffsetBoxes boxes) {
    return {{{"Offset X = ", boxes.x}, {"Offset Y = ", boxes.y}}};
}

/// The lines of a page that gives both sections their lengths.
constexpr std::array<LabelEntry, 4> LengthLabels(LengthBoxes top, LengthBoxes base) {
    return {{{"Top length X = ", top.x},
             {"Top length Y = ", top.y},
             {"Base length X = ", base.x},
             {"Base length Y = ", base.y}}};
}

// The long pages with angles have one base: 300 by 200, turned by 10 degrees, its front at y -100. Its left
// side (MinX) is found at its rear end, where the corner begins at `cornerY`, the right side in its middle.

inline constexpr double Cos10 = 0.984807753012208;
inline constexpr double Sin10 = 0.17364817766693;

constexpr SketchPoint TiltedFrontLeft(double cornerY, double dx = 0) {
    return SpotOf(2, Spot::MinX, dx, -100 - cornerY);
}
inline constexpr SketchPoint TiltedFrontRight = SpotOf(2, Spot::MaxX, 0, -100);

constexpr SketchDimension TiltedLengthXSize(double cornerY) {
    return AlignedSize(Side::Below, TiltedFrontLeft(cornerY), TiltedFrontRight, Elevation);
}
inline constexpr SketchDimension TiltedLengthYSize = LinearSize(
    Side::Left, PointAt(-150 * Cos10, -100, -150 * Sin10), PointAt(-150 * Cos10, 100, -150 * Sin10), Plan);

/// The radius of 50 of a corner on the right.
inline constexpr SketchDimension TiltedCornerSize = RadiusSize(
    Side::Right, PointAt(130 * Cos10, 90, 130 * Sin10), PointAt(100 * Cos10, 50, 100 * Sin10), Plan);

constexpr SketchDimension BaseTiltSize(double cornerY) {
    return AngleSize(Side::Right, TiltedFrontLeft(cornerY), TiltedFrontRight, TiltedFrontLeft(cornerY, 100),
                     1.1, Elevation);
}

/// The angle and the length along x of a top that is turned.
inline constexpr SketchDimension TopTiltSize = AngleSize(
    Side::Left, SpotOf(1, Spot::MaxX), SpotOf(1, Spot::MinX), SpotOf(1, Spot::MaxX, -100), 1.15, Elevation);
inline constexpr SketchDimension TiltedTopSize =
    AlignedSize(Side::Above, SpotOf(1, Spot::MinX), SpotOf(1, Spot::MaxX), Elevation);

// The three windows of a rectangle below a round top number the boxes of the rectangle, the offsets and the
// height alike.

/// A rectangle of 300 by 200 below a centred top, and the height.
inline constexpr std::array<BoxEntry, 3> CentredRectangle = {
    {{1, "Rectangle length X", "300", LengthXSize(Side::Below, 300, -100, 0)},
     {2, "Rectangle length Y", "200", LengthYSize(Side::Left, 200, -150, 0)},
     {3, "Height", "250", HeightSize(Side::Right)}}};
inline constexpr auto CentredRectangleLabels =
    Joined(std::array<LabelEntry, 2>{{{"Rectangle length X = ", 1}, {"Rectangle length Y = ", 2}}},
           NoOffsetLabels, LabelEntry{"Height = ", 3});
inline constexpr BoxEntry CentredCorner = {10, "Corner radius", "50", CornerSize(Side::Right, 100, 50, 50)};
inline constexpr LabelEntry CentredCornerLabel = {"Radius = ", 10};

/// A tilted rectangle below a top that has an offset along x and stands 25 out along y, and the height.
constexpr std::array<BoxEntry, 5> PlacedRectangle(double cornerY, std::string_view sampleX, double offsetX) {
    return {{{5, "Rectangle length X", "300", TiltedLengthXSize(cornerY)},
             {6, "Rectangle length Y", "200", TiltedLengthYSize},
             {7, "Offset X", sampleX, OffsetXSize(Side::Above, offsetX)},
             {8, "Offset Y", "25", OffsetYSize(Side::Right, -25)},
             {9, "Height", "250", HeightSize(Side::Left, offsetX, -25)}}};
}
inline constexpr auto PlacedRectangleLabels =
    Joined(std::array<LabelEntry, 2>{{{"Rectangle length X = ", 5}, {"Rectangle length Y = ", 6}}},
           OffsetLabels({7, 8}), LabelEntry{"Height = ", 9});
inline constexpr BoxEntry PlacedCorner = {11, "Corner radius", "50", TiltedCornerSize};
inline constexpr LabelEntry PlacedCornerLabel = {"Radius = ", 11};

/// The angles of both sections, that of the base as 10 degrees.
constexpr std::array<BoxEntry, 2> TiltEntries(TiltBoxes boxes, std::string_view topSample, double cornerY) {
    return {{{boxes.top, "Top angle (degrees)", topSample, TopTiltSize},
             {boxes.base, "Base angle (degrees)", "10", BaseTiltSize(cornerY)}}};
}

/// The diameter of a round top on either page.
inline constexpr BoxEntry CentredDiameter = {0, "Diameter", "150", DiameterSize(Side::Above, 1)};
inline constexpr BoxEntry PlacedDiameter = {4, "Diameter", "120", TiltedTopSize};

}  // namespace korvet
