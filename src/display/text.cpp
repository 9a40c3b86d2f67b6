#include "display/text.h"

#include <algorithm>
#include <cmath>

#include "core/checked.h"
#include "core/constants.h"
#include "core/math_module.h"
#include "core/number_text.h"

namespace korvet {
namespace {

constexpr float SmallestTextSize = 1;
constexpr float LargestTextSize = 10000;
constexpr int PointsToAnInch = 72;

/// The part of the text's width that lies left of the given point.
double PartLeft(Justification justification) {
    switch (justification) {
        case Justification::TopRight:
        case Justification::MiddleRight:
        case Justification::BottomRight:
            return 1;
        case Justification::TopCentre:
        case Justification::MiddleCentre:
        case Justification::BottomCentre:
            return 0.5;
        default:
            return 0;
    }
}

/// The part of the text's height that lies above the given point.
double PartAbove(Justification justification) {
    switch (justification) {
        case Justification::MiddleLeft:
        case Justification::MiddleRight:
        case Justification::MiddleCentre:
            return 0.5;
        case Justification::BottomLeft:
        case Justification::BottomRight:
        case Justification::BottomCentre:
            return 1;
        default:
            return 0;
    }
}

}  // namespace

float DrawnTextSize(float size) {
    return std::min(std::fabs(size) < SmallestTextSize ? SmallestTextSize : size, LargestTextSize);
}

void CText::HorizontalText(const C3DPoint& point, Justification justification) const {
    DrawRotatedText(point, 0, justification);
}

void CText::VerticalText(const C3DPoint& point, Justification justification) const {
    DrawRotatedText(point, QuarterTurn, justification);
}

void CText::AlignedText(const C3DPoint& a, const C3DPoint& b, Justification justification) {
    const double length = Distance3D(a, b);
    const double angle = PlanAngle(a, b);
    TextString = RoundedText(length, Decimals, DecimalMark);
    DrawRotatedText(PolarPoint(a, angle, length / 2), angle, justification);
}

C3DPoint CText::JustifiedCorner(const C3DPoint& point, double angle, Justification justification,
                                double points) const {
    C3DPoint corner = point;
    corner.x -= TextWidth(device_, window_, TextString, points) * PartLeft(justification);
    corner.y -= TextHeight(device_, window_, TextString, points) * PartAbove(justification);
    return PolarPoint(point, PlanAngle(point, corner) + angle, Distance3D(point, corner));
}

void CText::DrawRotatedText(const C3DPoint& point, double angle, Justification justification) const {
    const float points = DrawnTextSize(TextSize);
    const C3DPoint corner = JustifiedCorner(point, angle, justification, points);
    const PixelMap map(window_, device_.ScaleSize());
    const PixelPoint pixel = {map.ToPixelX(static_cast<float>(corner.x)),
                              map.ToPixelY(static_cast<float>(corner.y))};
    const TextFont font = {RoundToInt(-points * device_.LogicalDpiY()) / PointsToAnInch,
                           RoundToInt(RadToDeg(angle) * 10)};
    device_.TextOut(TextString, pixel, font, Printing ? Black : TextColor);
}

}  // namespace korvet
