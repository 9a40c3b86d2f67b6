// The cone that the tests of the mouse modes work on.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "core/math_module.h"
#include "tests/support/recording_device.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet {

inline constexpr double TopRadius = 177.137736741;
inline constexpr double BaseRadius = 442.844341853;
inline constexpr double Slant = BaseRadius - TopRadius;
inline constexpr double Opening = 121.939008578;
inline constexpr double Close = 1e-5;
inline constexpr int PlanView = 4;

/// A cone of 300 to 120 over a height of 250. Its slant line is sqrt(90 * 90 + 250 * 250) = 265.7066 long,
/// 177.1377 below the apex, which lies on the origin of the pattern; the pattern opens by
/// 360 * 90 / 265.7066 = 121.9390 degrees in 24 steps.
class MouseOnCone : public testing::Test {
  protected:
    /// The cone in a view, on an area of 400 by 200 pixels: at first a unit is a pixel.
    std::unique_ptr<CFittingWindow> Cone(int button) {
        auto window = shell.OpenSample("Right Cone", 2, &area);
        window->ClickView(button);
        EXPECT_TRUE(window->hasModel);
        area.calls.clear();
        return window;
    }

    static void Press(CFittingWindow& window, float x, float y) {
        EXPECT_FALSE(window.MouseDown(MouseButton::Left, x, y));
    }

    static void Drag(CFittingWindow& window, float x1, float y1, float x2, float y2) {
        Press(window, x1, y1);
        window.MouseMove(MouseButton::Left, x2, y2);
        window.MouseUp(MouseButton::Left, x2, y2);
    }

    /// Along ruling `station`, from 0 to 24, of a pattern that lies as developed.
    static void DragRuling(CFittingWindow& window, int station) {
        const double angle = DegToRad(Opening * station / 24);
        const auto at = [](double value) { return static_cast<float>(value); };
        Drag(window, at(TopRadius * std::cos(angle)), at(TopRadius * std::sin(angle)),
             at(BaseRadius * std::cos(angle)), at(BaseRadius * std::sin(angle)));
    }

    [[nodiscard]] std::size_t Passes() const { return area.Count(RecordingDevice::Kind::Cls); }

    RecordingDevice area{400, 200};
    TestShell shell;
};

}  // namespace korvet
