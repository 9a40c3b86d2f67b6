// What the windows of fittings of equal sides have in common, for their tests.
#pragma once

#include <string>
#include <vector>

#include "core/math_module.h"
#include "tests/support/refusals.h"
#include "tests/support/window_start.h"

namespace korvet {

/// How such a window starts, with this topic and so many boxes. Its pages can be stepped through by buttons.
inline void ExpectStartOfSides(const std::string& category, int helpContextId, std::size_t boxes) {
    ExpectStart(category,
                {.helpContextId = helpContextId, .boxes = boxes, .laps = AllLaps, .seamAngle = true});
    TestShell shell;
    const auto window = shell.Open(category);
    EXPECT_FALSE(window->settings.MaterialDisable);
    EXPECT_EQ(window->controls.Picture1.size(), 4U);
    window->ClickMore(0);
    EXPECT_EQ(window->dtype, 1);
}

/// With a new window and with another number of sides in its box the seam stands at 0; it stays where it is
/// set for as long as the number does, and so does that of a file.
inline void ExpectSeamOfSides(const std::string& category, int type, int sidesBox) {
    TestShell shell;
    const auto window = shell.OpenSample(category, type);
    window->settings.JoinAngle = 45;
    window->ClickView(PatternButton);
    EXPECT_EQ(window->settings.JoinAngle, 0) << "the first build of a new window";
    EXPECT_EQ(window->fitting->Inputs().JoinAngle, 0);
    window->settings.JoinAngle = 45;
    window->Redraw();
    EXPECT_EQ(window->settings.JoinAngle, 45) << "the same number of sides";
    EXPECT_EQ(window->SaveFile("seam.Kvt"), Passed);
    const auto opened = shell.Open(category);
    EXPECT_EQ(opened->LoadFile("seam.Kvt"), Passed);
    EXPECT_EQ(opened->settings.JoinAngle, 45);
    EXPECT_EQ(opened->fitting->Inputs().JoinAngle, DegToRad(45));
    TypeBoxes(*opened, {{sidesBox, "5"}});
    opened->Redraw();
    EXPECT_EQ(opened->settings.JoinAngle, 0) << "another number of sides";
    EXPECT_EQ(opened->fitting->Inputs().JoinAngle, 0);
}

/// A half that a file brings is refused once, by the class, and the text block does not tell of it.
inline void ExpectNoHalfOfSides(const std::string& category) {
    TestShell shell;
    const auto window = shell.OpenSample(category, 1);
    window->settings.HalfPattern = true;
    window->ClickView(0);
    window->ClickView(PatternButton);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"Half pattern not applicable to this item"});
    EXPECT_EQ(shell.ui.messages[0].title, "User Error");
    EXPECT_FALSE(window->settings.HalfPattern);
    EXPECT_EQ(TextBlock(*window).back(), category + "  Full pattern  21 Nov 2026");
}

}  // namespace korvet
