// The mouse modes that look at a drawing: pan, zoom window, measure; and what all modes have in common.
#include <functional>
#include <limits>

#include "frame/new_fitting.h"
#include "tests/window/mouse_fixture.h"

namespace korvet {
namespace {

class MouseModesTest : public MouseOnCone {};

TEST_F(MouseModesTest, PanningMovesTheViewByStartMinusEnd) {
    const auto window = Cone(PatternButton);
    window->PanView();
    Drag(*window, 10, 20, 40, -5);
    ASSERT_EQ(window->views->Count(), 2U);
    EXPECT_EQ(window->views->Last().PanX, -30);
    EXPECT_EQ(window->views->Last().PanY, 25);
    EXPECT_TRUE(window->views->Last().Patternview);
    EXPECT_EQ(window->display.DisplayWindow(), (WorldWindow{-228, 127, 400, -200}));
    EXPECT_EQ(Passes(), 1U);
}

TEST_F(MouseModesTest, PanningStaysArmedAndIsTakenBackStepByStep) {
    const auto window = Cone(PlanView);
    window->PanView();
    Drag(*window, 0, 0, 10, 0);
    Drag(*window, 0, 0, 5, 1);
    ASSERT_EQ(window->views->Count(), 3U);
    EXPECT_EQ(window->views->Last().PanX, -15);
    window->ZoomPrevious();
    EXPECT_EQ(window->views->Last().PanX, -10);
    window->ZoomPrevious();
    EXPECT_EQ(window->views->Count(), 1U);
    EXPECT_TRUE(window->modes.panMode);
}

TEST_F(MouseModesTest, TheRubberBandFollowsTheLeftButtonOnly) {
    const auto window = Cone(PatternButton);
    const auto& band = window->controls.pboxGraphicWindow.rubberBand;
    window->PanView();
    window->MouseMove(MouseButton::Left, 1, 1);
    EXPECT_FALSE(band);
    Press(*window, 10, 20);
    EXPECT_EQ(band, (DrawnBand{false, 10, 20, 10, 20}));
    window->MouseMove(MouseButton::None, 70, 70);
    window->MouseMove(MouseButton::Right, 80, 80);
    EXPECT_EQ(band, (DrawnBand{false, 10, 20, 10, 20}));
    window->MouseMove(MouseButton::Left, 30, 40);
    EXPECT_EQ(band, (DrawnBand{false, 10, 20, 30, 40}));
    window->MouseUp(MouseButton::Left, 30, 40);
    EXPECT_FALSE(band);
    EXPECT_FALSE(window->modes.mouseDown);
}

TEST_F(MouseModesTest, TheReleaseCountsAsTheLastMove) {
    const auto window = Cone(PatternButton);
    window->PanView();
    Press(*window, 0, 0);
    window->MouseMove(MouseButton::Left, 30, 0);
    window->MouseUp(MouseButton::Left, 50, 0);
    EXPECT_EQ(window->views->Last().PanX, -50);
}

TEST_F(MouseModesTest, AZoomWindowIsABoxThatFillsTheDrawing) {
    const auto window = Cone(PatternButton);
    window->ZoomWindow();
    Press(*window, 60, 70);
    window->MouseMove(MouseButton::Left, 20, 30);
    EXPECT_EQ(window->controls.pboxGraphicWindow.rubberBand, (DrawnBand{true, 60, 70, 20, 30}));
    window->MouseUp(MouseButton::Left, 20, 30);
    // 40 by 40 in a window twice as wide as high: the height decides, 200 / 40 less the margin.
    EXPECT_DOUBLE_EQ(window->views->Last().ZoomFactor, 4.95);
    EXPECT_EQ(window->views->Last().PanX, 40);
    EXPECT_EQ(window->views->Last().PanY, 50);
    EXPECT_TRUE(window->modes.zoomWindowMode);
    EXPECT_EQ(Passes(), 1U);
}

TEST_F(MouseModesTest, AZoomWindowWithoutHeightAddsNoView) {
    const auto window = Cone(PatternButton);
    window->ZoomWindow();
    Drag(*window, 20, 30, 60, 30);
    EXPECT_EQ(window->views->Count(), 1U);
}

TEST_F(MouseModesTest, AModelIsMeasuredBetweenItsTruePoints) {
    const auto window = Cone(PlanView);
    window->MeasureDistance();
    // From the base at angle 0 to the top at a quarter turn, which the plan view draws downwards.
    Press(*window, 149, 3);
    EXPECT_FLOAT_EQ(window->controls.pboxGraphicWindow.rubberBand.value().startX, 150);
    EXPECT_NEAR(window->controls.pboxGraphicWindow.rubberBand.value().startY, 0, Close);
    window->MouseMove(MouseButton::Left, 1, -61);
    window->MouseUp(MouseButton::Left, 1, -61);
    ASSERT_EQ(shell.ui.messages.size(), 1U);
    EXPECT_EQ(shell.ui.messages[0].style, InformationBox);
    EXPECT_EQ(shell.ui.messages[0].title, "Korvet Development");
    EXPECT_EQ(shell.ui.messages[0].text,
              "Distance = 297.7\r\nAngle = 158.2\r\n  \r\n"
              "Point 1:\r\n    X = 150\r\n    Y = 0\r\n    Z = 0\r\n  \r\n"
              "Point 2:\r\n    X = 0\r\n    Y = 60\r\n    Z = 250\r\n  \r\n"
              "Distance X = -150\r\nDistance Y = 60\r\nDistance Z = 250\r\n");
    EXPECT_TRUE(window->modes.measureMode);
    EXPECT_EQ(Passes(), 1U);
}

TEST_F(MouseModesTest, AMeasurementRoundsToTheDecimalsOfTheOptions) {
    shell.options.Decimals = 3;
    const auto window = Cone(PatternButton);
    window->MeasureDistance();
    DragRuling(*window, 0);
    ASSERT_EQ(shell.ui.messages.size(), 1U);
    EXPECT_TRUE(shell.ui.messages[0].text.starts_with("Distance = 265.707\r\nAngle = 0\r\n"));
}

/// A user interface that looks at the window while a message box is open.
class WatchingUi final : public UserInterface {
  public:
    std::function<void()> onShow = [] {};
    Answer Show(const MessageBox&) override {
        onShow();
        return Answer::Ok;
    }
    std::optional<std::string> ChooseFile(const FileChoice&) override { return std::nullopt; }
    void RunModal(PatternSettingsDialog&) override {}
    void RunModal(OptionsDialog&) override {}
    void RunModal(DimensionOptionsDialog&) override {}
    void RunModal(LabelDialog&) override {}
    void RunModal(DxfOptionsDialog&) override {}
    void RunModal(RotateDialog&) override {}
    void RunModal(BranchAdditionalDialog&) override {}
    void RunModal(PrintersDialog&) override {}
    bool GoesOn(const WorkProgress&) override { return true; }
};

TEST_F(MouseModesTest, TheMeasuredLineStandsWhileTheBoxIsOpen) {
    WatchingUi ui;
    WindowContext context{shell.options,    ui,          shell.files,
                          shell.clock,      shell.frame, shell.patternSettingsDialog,
                          shell.printDialog};
    const auto window = NewFitting(context, "Right Cone", &area);
    for (const auto& [box, text] : {std::pair{3, "300"}, {4, "120"}, {5, "250"}}) {
        window->ChangeBox(static_cast<std::size_t>(box), text);
    }
    window->ClickView(PlanView);
    window->MeasureDistance();
    const DrawingArea& drawing = window->controls.pboxGraphicWindow;
    int shown = 0;
    ui.onShow = [&] {
        ++shown;
        EXPECT_FALSE(drawing.rubberBand);
        ASSERT_TRUE(drawing.pickedLine);
        EXPECT_FALSE(drawing.pickedLine->box);
        EXPECT_FLOAT_EQ(drawing.pickedLine->startX, 150);
        EXPECT_FLOAT_EQ(drawing.pickedLine->endX, 60);  // the drawn point, not the mouse
    };
    Drag(*window, 160, 0, 50, 1);
    EXPECT_EQ(shown, 1);
    EXPECT_FALSE(drawing.pickedLine);
}

TEST_F(MouseModesTest, ARightPressShowsTheViewMenuAndLeavesTheModeArmed) {
    const auto empty = shell.Open("Right Cone");
    EXPECT_FALSE(empty->MouseDown(MouseButton::Right, 0, 0));
    const auto window = Cone(PatternButton);
    EXPECT_TRUE(window->MouseDown(MouseButton::Right, 0, 0));
    window->PanView();
    Drag(*window, 0, 0, 10, 0);
    EXPECT_TRUE(window->MouseDown(MouseButton::Right, 3, 3));
    window->MouseUp(MouseButton::Right, 3, 3);
    EXPECT_EQ(window->views->Count(), 2U);  // the last pan is not repeated
    EXPECT_TRUE(window->modes.panMode);
}

TEST_F(MouseModesTest, AMenuInTheMiddleOfADragDropsTheDragAndNotTheMode) {
    const auto window = Cone(PatternButton);
    window->PanView();
    Press(*window, 0, 0);
    window->MouseMove(MouseButton::Left, 5, 5);
    EXPECT_TRUE(window->MouseDown(MouseButton::Right, 5, 5));
    EXPECT_FALSE(window->controls.pboxGraphicWindow.rubberBand);
    window->MouseUp(MouseButton::Left, 9, 9);
    EXPECT_EQ(window->views->Count(), 1U);
    EXPECT_TRUE(window->modes.panMode);
    Drag(*window, 0, 0, 10, 0);
    EXPECT_EQ(window->views->Count(), 2U);
}

TEST_F(MouseModesTest, AReleaseWithoutAPressDoesNothing) {
    const auto window = Cone(PatternButton);
    const std::vector<std::function<void()>> commands = {
        [&] { window->PanView(); }, [&] { window->ZoomWindow(); }, [&] { window->MeasureDistance(); },
        [&] { window->AddDimension(1); }, [&] { window->RotatePattern(); }};
    shell.ui.onRotate = [](RotateDialog&) { FAIL(); };
    for (const auto& command : commands) {
        command();
        window->MouseUp(MouseButton::Left, 20, 30);
    }
    EXPECT_EQ(window->views->Count(), 1U);
    EXPECT_EQ(window->dimensions->Count(), 0U);
    EXPECT_TRUE(shell.ui.messages.empty());
    EXPECT_EQ(Passes(), 0U);
}

TEST_F(MouseModesTest, NothingHappensBeforeTheFirstView) {
    const auto window = shell.Open("Right Cone", &area);
    window->PanView();
    Drag(*window, 0, 0, 10, 10);
    EXPECT_FALSE(window->controls.pboxGraphicWindow.rubberBand);
    EXPECT_EQ(window->views->Count(), 0U);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(MouseModesTest, WithNothingDrawnThereIsNothingToPick) {
    const auto window = shell.Open("Right Cone", &area);
    window->views->Add(DefaultViewPoint());
    window->modes.measureMode = true;
    Press(*window, 0, 0);
    EXPECT_FALSE(window->controls.pboxGraphicWindow.rubberBand);
    window->MouseMove(MouseButton::Left, 5, 5);
    EXPECT_FALSE(window->controls.pboxGraphicWindow.rubberBand);
    window->MouseUp(MouseButton::Left, 5, 5);
    EXPECT_TRUE(shell.ui.messages.empty());
}

TEST_F(MouseModesTest, AClickWithNoModeArmedDoesNothing) {
    const auto window = Cone(PatternButton);
    Drag(*window, 0, 0, 10, 10);
    window->SelectPrintFrames();
    Drag(*window, 0, 0, 10, 10);  // no print frames to choose
    EXPECT_EQ(window->views->Count(), 1U);
    EXPECT_EQ(Passes(), 0U);
}

TEST_F(MouseModesTest, AKeyInTheMiddleOfADragDropsIt) {
    const auto window = Cone(PatternButton);
    window->PanView();
    Press(*window, 0, 0);
    window->MouseMove(MouseButton::Left, 10, 0);
    window->PressKeyInDrawing();
    EXPECT_FALSE(window->controls.pboxGraphicWindow.rubberBand);
    EXPECT_FALSE(window->modes.panMode);
    window->MouseUp(MouseButton::Left, 10, 0);
    EXPECT_EQ(window->views->Count(), 1U);
}

TEST_F(MouseModesTest, ABadBoxIsToldOfOnce) {
    const auto window = Cone(PatternButton);
    window->PanView();
    window->ChangeBox(4, "400");
    Drag(*window, 0, 0, 10, 0);
    EXPECT_EQ(shell.ui.Texts(), (std::vector<std::string>{"This dimension must be less than 300"}));
    EXPECT_EQ(window->views->Count(), 2U);
    EXPECT_FALSE(window->hasModel);
}

TEST_F(MouseModesTest, WhatTheArithmeticRefusesEndsInABox) {
    const auto window = Cone(PatternButton);
    const float beyond = std::numeric_limits<float>::infinity();
    window->ZoomWindow();
    Drag(*window, 0, 0, beyond, 5);
    window->PanView();
    Drag(*window, beyond, 0, 0, 0);
    window->MeasureDistance();
    Drag(*window, beyond, 0, 0, 0);
    ASSERT_EQ(shell.ui.messages.size(), 3U);
    for (const MessageBox& message : shell.ui.messages) {
        EXPECT_EQ(message.text, "Operation cannot be carried out at this time");
        EXPECT_EQ(message.style, PlainBox);
        EXPECT_FALSE(message.detail.empty());
    }
    EXPECT_EQ(window->views->Count(), 1U);
    EXPECT_FALSE(window->controls.pboxGraphicWindow.rubberBand);
    EXPECT_TRUE(window->hasModel);
}

}  // namespace
}  // namespace korvet
