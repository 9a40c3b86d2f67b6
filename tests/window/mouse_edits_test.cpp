// The mouse modes that change a drawing: dimensions, their removal, the label, rotation.
#include <algorithm>

#include "core/number_text.h"
#include "tests/support/point_lists.h"
#include "tests/window/mouse_fixture.h"

namespace korvet {
namespace {

class MouseEditsTest : public MouseOnCone {
  protected:
    static const C3DPoint& BasePoint(const CFittingWindow& window, std::size_t station) {
        return window.display.Surfaces.Item(1).List2->Item(station + 1);
    }

    void AnswerRotation(RotateDialog::Move move, const std::string& angle) {
        shell.ui.onRotate = [move, angle](RotateDialog& dialog) {
            dialog.optMove.selected = move;
            dialog.Change(angle);
            dialog.ClickOK();
        };
    }
};

TEST_F(MouseEditsTest, ADimensionNamesThePickedPoints) {
    const auto window = Cone(PatternButton);
    window->AddDimension(1);
    DragRuling(*window, 6);
    ASSERT_EQ(window->dimensions->Count(), 1U);
    const CDimension& added = window->dimensions->Item(1);
    EXPECT_EQ(added.SurfaceNo1, 1);
    EXPECT_EQ(added.ListNo1, FirstEdgeList);
    EXPECT_EQ(added.PointNo1, 7);
    EXPECT_EQ(added.SurfaceNo2, 1);
    EXPECT_EQ(added.ListNo2, SecondEdgeList);
    EXPECT_EQ(added.PointNo2, 7);
    EXPECT_EQ(Passes(), 1U);
    const std::vector<std::string> drawn = area.Strings();
    EXPECT_NE(std::find(drawn.begin(), drawn.end(), "265.7"), drawn.end());
    DragRuling(*window, 12);  // still armed
    EXPECT_EQ(window->dimensions->Count(), 2U);
}

TEST_F(MouseEditsTest, ADimensionKeepsTheOrderOfItsPicks) {
    const auto window = Cone(PatternButton);
    window->AddDimension(1);
    const C3DPoint from = BasePoint(*window, 9);
    const C3DPoint to = BasePoint(*window, 4);
    const auto at = [](double value) { return static_cast<float>(value); };
    Drag(*window, at(from.x), at(from.y), at(to.x), at(to.y));
    ASSERT_EQ(window->dimensions->Count(), 1U);
    EXPECT_EQ(window->dimensions->Item(1).PointNo1, 10);
    EXPECT_EQ(window->dimensions->Item(1).PointNo2, 5);
}

TEST_F(MouseEditsTest, TwoPicksOfOnePointMakeNoDimension) {
    const auto window = Cone(PatternButton);
    window->AddDimension(1);
    Drag(*window, 440, 5, 445, -5);  // both beside the first point of the base
    EXPECT_EQ(window->dimensions->Count(), 0U);
    EXPECT_EQ(window->modes.dimensionMode, 1);
}

TEST_F(MouseEditsTest, TenThousandDimensionsAndNoMore) {
    const auto window = Cone(PatternButton);
    for (int i = 0; i < 9999; ++i) {
        window->dimensions->Add({1, 1, 1, 1, 2, 1});
    }
    window->AddDimension(1);
    DragRuling(*window, 6);
    EXPECT_EQ(window->dimensions->Count(), 10000U);
    EXPECT_TRUE(shell.ui.messages.empty());
    DragRuling(*window, 12);
    EXPECT_EQ(window->dimensions->Count(), 10000U);
    EXPECT_EQ(shell.ui.Texts(), std::vector<std::string>{"A drawing holds at most 10000 dimensions"});
}

TEST_F(MouseEditsTest, RemovalTakesTheNearestDimensionAndEnds) {
    const auto window = Cone(PatternButton);
    window->AddDimension(1);
    DragRuling(*window, 0);   // middle (310, 0)
    DragRuling(*window, 12);  // middle (150, 271)
    window->RemoveDimension();
    area.calls.clear();
    Press(*window, 150, 250);
    window->MouseUp(MouseButton::Left, 150, 250);
    ASSERT_EQ(window->dimensions->Count(), 1U);
    EXPECT_EQ(window->dimensions->Item(1).PointNo1, 1);
    EXPECT_FALSE(window->removeDimensionMode);
    EXPECT_EQ(window->controls.pboxGraphicWindow.mousePointer, Cursor::Cross);
    EXPECT_EQ(window->controls.pboxGraphicWindow.toolTip, "");
    EXPECT_EQ(Passes(), 1U);
    Press(*window, 150, 250);
    window->MouseUp(MouseButton::Left, 150, 250);
    EXPECT_EQ(window->dimensions->Count(), 1U);
}

TEST_F(MouseEditsTest, RemovalEndsWithNothingToRemoveToo) {
    const auto window = Cone(PatternButton);
    window->RemoveDimension();
    window->MouseUp(MouseButton::Right, 0, 0);
    EXPECT_TRUE(window->removeDimensionMode);
    window->MouseUp(MouseButton::Left, 0, 0);
    EXPECT_FALSE(window->removeDimensionMode);
    EXPECT_EQ(window->controls.pboxGraphicWindow.mousePointer, Cursor::Cross);
    EXPECT_EQ(window->controls.pboxGraphicWindow.toolTip, "");
    EXPECT_EQ(Passes(), 0U);
}

TEST_F(MouseEditsTest, ADragRemovesAndPansAtOnceWhenBothAreArmed) {
    const auto window = Cone(PatternButton);
    window->AddDimension(1);
    DragRuling(*window, 0);
    window->RemoveDimension();
    window->PanView();
    area.calls.clear();
    Drag(*window, 0, 0, 10, 0);
    EXPECT_EQ(window->dimensions->Count(), 0U);
    EXPECT_EQ(window->views->Last().PanX, -10);
    EXPECT_EQ(Passes(), 1U);
}

TEST_F(MouseEditsTest, AClickPlacesTheLabelAndAnotherMovesIt) {
    const auto window = Cone(PatternButton);
    shell.ui.onLabel = [](LabelDialog& dialog) { dialog.lblStatus = "OK"; };
    window->PlaceLabel();
    Press(*window, 5, 6);
    window->MouseUp(MouseButton::Left, 5, 6);
    ASSERT_TRUE(window->display.LabelPoint);
    EXPECT_TRUE(Same(*window->display.LabelPoint, {5, 6, 0, 0}));
    const std::vector<std::string> drawn = area.Strings();
    EXPECT_NE(std::find(drawn.begin(), drawn.end(), "Base diameter = 300"), drawn.end());
    window->MouseUp(MouseButton::Right, 50, 60);
    EXPECT_EQ(window->display.LabelPoint->x, 5);
    Press(*window, -7, 8);
    window->MouseUp(MouseButton::Left, -7, 8);
    EXPECT_TRUE(Same(*window->display.LabelPoint, {-7, 8, 0, 0}));
    EXPECT_TRUE(window->modes.labelMode);
}

TEST_F(MouseEditsTest, RotatingToZeroLaysTheLineOnTheXAxis) {
    const auto window = Cone(PatternButton);
    const C3DPoint centre = window->display.Surfaces.Item(1).List1->Item(7);
    window->RotatePattern();
    std::string current;
    const DrawingArea& drawing = window->controls.pboxGraphicWindow;
    shell.ui.onRotate = [&](RotateDialog& dialog) {
        current = dialog.txtAngle[0].text;
        EXPECT_TRUE(drawing.pickedLine);
        EXPECT_FALSE(drawing.rubberBand);
        dialog.Change("0");
        dialog.ClickOK();
    };
    DragRuling(*window, 6);
    EXPECT_NEAR(ParseNumber(current).value_or(0), Opening / 4, Close);
    EXPECT_FALSE(drawing.pickedLine);
    EXPECT_NEAR(BasePoint(*window, 6).x, centre.x + Slant, Close);
    EXPECT_NEAR(BasePoint(*window, 6).y, centre.y, Close);
    EXPECT_NEAR(RadToDeg(window->display.RotationAngle), -Opening / 4, Close);
    EXPECT_TRUE(window->modes.rotateMode);
    EXPECT_EQ(Passes(), 1U);
}

TEST_F(MouseEditsTest, RotatingByAnAngleTurnsAboutTheFirstPoint) {
    const auto window = Cone(PatternButton);
    window->RotatePattern();
    AnswerRotation(RotateDialog::ByAmount, "90");
    DragRuling(*window, 0);
    EXPECT_NEAR(BasePoint(*window, 0).x, TopRadius, Close);
    EXPECT_NEAR(BasePoint(*window, 0).y, Slant, Close);
}

TEST_F(MouseEditsTest, AFurtherRotationTakesTheWholeAngleAboutTheNewPoint) {
    const auto window = Cone(PatternButton);
    window->RotatePattern();
    AnswerRotation(RotateDialog::ByAmount, "90");
    DragRuling(*window, 0);
    // From the base end of the first ruling, which now stands upright, to its top end.
    AnswerRotation(RotateDialog::ByAmount, "-60");
    Drag(*window, static_cast<float>(TopRadius), static_cast<float>(Slant), static_cast<float>(TopRadius), 0);
    EXPECT_NEAR(window->display.RotationPoint.x, TopRadius, Close);
    EXPECT_NEAR(window->display.RotationPoint.y, Slant, Close);
    EXPECT_NEAR(RadToDeg(window->display.RotationAngle), 30, 1e-9);
    // The first base point, developed at (442.84, 0), turned by 30 degrees about (177.14, 265.71).
    const double cosine = std::sqrt(3.0) / 2;
    EXPECT_NEAR(BasePoint(*window, 0).x, TopRadius + Slant * cosine + Slant / 2, Close);
    EXPECT_NEAR(BasePoint(*window, 0).y, Slant + Slant / 2 - Slant * cosine, Close);
}

TEST_F(MouseEditsTest, ACancelledRotationChangesNothing) {
    const auto window = Cone(PatternButton);
    window->RotatePattern();
    shell.ui.onRotate = [](RotateDialog& dialog) {
        dialog.Change("45");
        dialog.ClickCancel();
    };
    DragRuling(*window, 6);
    EXPECT_EQ(window->display.RotationAngle, 0);
    EXPECT_EQ(window->display.RotationPoint.x, 0);
    EXPECT_FALSE(window->controls.pboxGraphicWindow.pickedLine);
}

}  // namespace
}  // namespace korvet
