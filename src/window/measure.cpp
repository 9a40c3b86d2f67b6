#include "window/measure.h"

#include "core/constants.h"
#include "core/math_module.h"
#include "core/number_text.h"

namespace korvet {
namespace {

constexpr const char* LineEnd = "\r\n";

/// The coordinates of a point, a line each, behind the given indent.
template <typename TextOf>
std::string CoordinateLines(const std::string& indent, const C3DPoint& point, TextOf textOf) {
    return indent + "X = " + textOf(point.x) + LineEnd + indent + "Y = " + textOf(point.y) + LineEnd +
           indent + "Z = " + textOf(point.z) + LineEnd;
}

}  // namespace

void CMeasure::DisplayDistance(MessageBoxes& boxes) const {
    const auto rounded = [this](double value) { return RoundedText(value, Decimals, DecimalMark); };
    const std::string blankLine = std::string("  ") + LineEnd;
    const std::string indent = "    ";
    // Just below level, a direction rounds up to the whole turn that is none.
    const double bearing = RoundPlaces(RadToDeg(PlanAngle(Pt1, Pt2)), Decimals);
    const C3DPoint apart = {Pt2.x - Pt1.x, Pt2.y - Pt1.y, Pt2.z - Pt1.z, PlainStation};
    const std::string text = "Distance = " + rounded(Distance3D(Pt1, Pt2)) + LineEnd +
                             "Angle = " + rounded(bearing < 360 ? bearing : 0) + LineEnd + blankLine +
                             "Point 1:" + LineEnd + CoordinateLines(indent, Pt1, rounded) + blankLine +
                             "Point 2:" + LineEnd + CoordinateLines(indent, Pt2, rounded) + blankLine +
                             CoordinateLines("Distance ", apart, rounded);
    boxes.Show({.text = text, .style = InformationBox, .title = std::string(ProductTitle)});
}

void CMeasure::DisplayPoint(MessageBoxes& boxes) const {
    ShowPlain(boxes,
              CoordinateLines("", Pt1, [this](double value) { return NumberText(value, DecimalMark); }));
}

}  // namespace korvet
