// The parts of the sketches and boxes of transitions: the elevation above the plan. The top is List1, the
// base List2; samples turn about the y axis, which the elevation shows.
#pragma once

#include <array>

#include "fittings/joined.h"
#include "fittings/transitions/transition_form.h"

namespace korvet::transition {

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

/// Both pages. With `angles` the long one turns its sections.
constexpr std::array<PageEntry, 2> Pages(const PageEntry& centred, const PageEntry& placed, bool angles) {
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
    {{NoBox, "Offset X = ", "0"}, {NoBox, "Offset Y = ", "0"}}};

}  // namespace korvet::transition
