// How well a colour stands out from another.
#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

namespace korvet::desktop {

/// How bright a colour looks, from 0 to 1 (relative luminance of sRGB).
inline double Luminance(const QColor& color) {
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// The contrast ratio of WCAG 2.1, from 1 to 21.
inline double Contrast(const QColor& a, const QColor& b) {
    const double first = Luminance(a) + 0.05;
    const double second = Luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

}  // namespace korvet::desktop
