#include "window/armed_modes.h"

#include "tests/window/mouse_fixture.h"

namespace korvet {
namespace {

class ArmedModesTest : public MouseOnCone {
  protected:
    static std::vector<MouseMode> ArmedOf(const CFittingWindow& window) {
        std::vector<MouseMode> armed;
        for (int mode = 0; mode <= static_cast<int>(MouseMode::Rotate); ++mode) {
            if (IsArmed(window, static_cast<MouseMode>(mode))) {
                armed.push_back(static_cast<MouseMode>(mode));
            }
        }
        return armed;
    }
};

TEST_F(ArmedModesTest, EachCommandArmsItsModeAndSaysWhatItAsksFor) {
    shell.ui.onLabel = [](LabelDialog& dialog) { dialog.lblStatus = "OK"; };
    struct Case {
        std::function<void(CFittingWindow&)> command;
        MouseMode mode;
        const char* first;
        const char* held;
    };
    using Window = CFittingWindow;
    const std::vector<Case> cases = {
        {[](Window& w) { w.PanView(); }, MouseMode::Pan, "Press at a point of the drawing",
         "Release where the point is to go"},
        {[](Window& w) { w.ZoomWindow(); }, MouseMode::ZoomWindow, "Press at a corner of the part to be seen",
         "Release at the other corner"},
        {[](Window& w) { w.MeasureDistance(); }, MouseMode::Measure, "Click the first point of the distance",
         "Release at the second point of the distance"},
        {[](Window& w) { w.AddDimension(1); }, MouseMode::Dimension, "Click the first point of the dimension",
         "Release at the second point of the dimension"},
        {[](Window& w) { w.RotatePattern(); }, MouseMode::Rotate,
         "Click the first point of the line to be turned",
         "Release at the second point of the line to be turned"},
        {[](Window& w) { w.RemoveDimension(); }, MouseMode::RemoveDimension,
         "Click the dimension to be removed", "Click the dimension to be removed"},
        {[](Window& w) { w.PlaceLabel(); }, MouseMode::Label, "Click where the label is to stand",
         "Click where the label is to stand"},
        {[](Window& w) { w.SelectPrintFrames(); }, MouseMode::SelectFrames,
         "Click a print frame to choose it or to take it back",
         "Click a print frame to choose it or to take it back"}};
    for (const Case& entry : cases) {
        const auto window = Cone(PatternButton);
        EXPECT_TRUE(ArmedOf(*window).empty());
        EXPECT_EQ(Prompt(*window), "");
        entry.command(*window);
        EXPECT_EQ(ArmedOf(*window), std::vector<MouseMode>{entry.mode}) << entry.first;
        EXPECT_EQ(Prompt(*window), entry.first);
        Press(*window, 400, 0);
        EXPECT_EQ(Prompt(*window), entry.held);
        window->PressEscape();
        EXPECT_TRUE(ArmedOf(*window).empty()) << entry.first;
        EXPECT_EQ(Prompt(*window), "");
        EXPECT_EQ(window->controls.pboxGraphicWindow.toolTip, "");
        EXPECT_EQ(window->controls.pboxGraphicWindow.mousePointer, Cursor::Cross);
        EXPECT_FALSE(window->controls.pboxGraphicWindow.rubberBand);
        EXPECT_EQ(Passes(), 0U) << "Escape builds nothing";
    }
}

TEST_F(ArmedModesTest, RemovalIsToldOfTogetherWithTheModeBesideIt) {
    const auto window = Cone(PatternButton);
    window->RemoveDimension();
    window->PanView();
    EXPECT_EQ(ArmedOf(*window), (std::vector{MouseMode::Pan, MouseMode::RemoveDimension}));
    EXPECT_EQ(Prompt(*window), "Click the dimension to be removed. Press at a point of the drawing");
    window->PressKeyInDrawing();
    EXPECT_EQ(ArmedOf(*window), std::vector{MouseMode::RemoveDimension}) << "any key but Escape leaves it";
    window->PressEscape();
    EXPECT_TRUE(ArmedOf(*window).empty());
}

TEST_F(ArmedModesTest, ThePointerIsToldOnThePatternAlone) {
    const auto window = Cone(PatternButton);
    EXPECT_EQ(PointerText(*window), "");
    window->MouseMove(MouseButton::None, 12.46F, -3);
    EXPECT_EQ(PointerText(*window), "X = 12.5   Y = -3");
    shell.options.Decimals = 0;
    EXPECT_EQ(PointerText(*window), "X = 12   Y = -3");
    window->MouseMove(MouseButton::Middle, 7, 8);
    EXPECT_EQ(PointerText(*window), "X = 7   Y = 8");
    window->ClickView(PlanView);
    EXPECT_EQ(PointerText(*window), "");
    window->ClickView(PatternButton);
    EXPECT_EQ(PointerText(*window), "X = 7   Y = 8");
    window->MouseLeave();
    EXPECT_EQ(PointerText(*window), "");
    const auto empty = shell.Open("Right Cone", &area);
    empty->MouseMove(MouseButton::None, 1, 1);
    EXPECT_EQ(PointerText(*empty), "");
}

TEST_F(ArmedModesTest, TheButtonOfTheViewIsKnownAtEveryPanAndZoom) {
    const auto empty = shell.Open("Right Cone", &area);
    EXPECT_EQ(ShownButton(*empty->views), std::nullopt);
    const auto window = Cone(PatternButton);
    for (int button = 0; button <= PatternButton; ++button) {
        window->ClickView(button);
        window->ZoomX(1.1);
        window->TurnWheel(1, 3, 4, 10000);
        EXPECT_EQ(ShownButton(*window->views), button);
    }
    CViewPoint view = window->views->Last();
    view.Patternview = false;
    view.FromXY = 0.3;
    window->views->Add(view);
    EXPECT_EQ(ShownButton(*window->views), std::nullopt);
}

TEST_F(ArmedModesTest, TheButtonOfTheViewIsKnownInAFile) {
    for (int button = 0; button <= PatternButton; ++button) {
        const auto window = Cone(button);
        ASSERT_EQ(window->SaveFile("seen.Kvt"), Passed);
        const auto loaded = shell.Open("Right Cone", &area);
        ASSERT_EQ(loaded->LoadFile("seen.Kvt"), Passed);
        // A turn of nothing comes back from a file as three quarters: what is drawn is the view of button 7.
        EXPECT_EQ(ShownButton(*loaded->views), button == 5 ? 7 : button);
    }
}

}  // namespace
}  // namespace korvet
