// The mouse over the drawing area: what each armed mode does with a press, a drag and a release.
#include <cmath>
#include <limits>
#include <utility>

#include "core/checked.h"
#include "core/math_module.h"
#include "core/reason.h"
#include "dialogs/small_dialogs.h"
#include "window/fitting_window.h"
#include "window/measure.h"
#include "window/views.h"

namespace korvet {
namespace {

/// A drawn coordinate in the precision of the mouse.
float Single(double value) {
    if (!(std::fabs(value) <= std::numeric_limits<float>::max())) {
        throw ArithmeticError("a point lies too far out to be picked");
    }
    return static_cast<float>(value);
}

std::optional<CNearestPoint> FindNearest(const CObjectDisplay& display, float x, float y) {
    return display.FindClosestPoint({Finite(x, "the mouse"), Finite(y, "the mouse"), 0, PlainStation});
}

/// Whether the drag runs between points of the drawing, not between places of the mouse.
bool PicksPoints(const MouseModes& modes) {
    return modes.measureMode || modes.rotateMode || modes.dimensionMode > 0;
}

bool Drags(const MouseModes& modes) {
    return modes.zoomWindowMode || modes.panMode || PicksPoints(modes);
}

/// Starts a rubber band of no length.
void BeginRubberBand(DrawingArea& area, MouseModes& modes, float x, float y) {
    modes.mouseDown = true;
    modes.startX = modes.currentX = x;
    modes.startY = modes.currentY = y;
    area.rubberBand = DrawnBand{modes.zoomWindowMode, x, y, x, y};
}

/// Keeps a line between two picked points on the drawing for as long as it lives.
class PickedLineWhile {
  public:
    PickedLineWhile(DrawingArea& area, const MouseModes& modes, const C3DPoint& end) : area_(area) {
        area.pickedLine = DrawnBand{false, modes.startX, modes.startY, Single(end.x), Single(end.y)};
    }
    ~PickedLineWhile() { area_.pickedLine.reset(); }
    PickedLineWhile(const PickedLineWhile&) = delete;
    PickedLineWhile& operator=(const PickedLineWhile&) = delete;

  private:
    DrawingArea& area_;
};

}  // namespace

/// Runs one step of a mouse operation. What the arithmetic can't do ends in a box, and the operation with it.
/// The result is that of `step`; false then.
template <typename Step>
bool CFittingWindow::RunMouseStep(Step step) {
    try {
        return step();
    } catch (const std::exception& error) {
        EndRubberBand();
        ShowPlain(context_.ui, context_.Message(NotAtThisTime), ReasonOf(error));
        return false;
    }
}

/// Ends the drag. Whether there was one.
bool CFittingWindow::EndRubberBand() {
    controls.pboxGraphicWindow.rubberBand.reset();
    return std::exchange(modes.mouseDown, false);
}

bool CFittingWindow::MouseDown(MouseButton button, float x, float y) {
    if (views->Count() == 0) {
        return false;
    }
    if (button == MouseButton::Left) {
        RunMouseStep([&] {
            BeginMouseOperation(x, y);
            return true;
        });
    }
    if (button == MouseButton::Middle) {
        panFrom_ = {x, y};
        moved_.reset();  // a drag of its own is a view of its own
    }
    if (button == MouseButton::Right) {
        EndRubberBand();  // the menu that comes up takes the release of a drag
    }
    return button == MouseButton::Right;
}

/// A drag that picks starts on a point of the drawing, not under the mouse. With nothing drawn there is none
/// to start.
void CFittingWindow::BeginMouseOperation(float x, float y) {
    EndRubberBand();
    DrawingArea& area = controls.pboxGraphicWindow;
    if (modes.zoomWindowMode || modes.panMode) {
        BeginRubberBand(area, modes, x, y);
    }
    if (PicksPoints(modes)) {
        nearest1 = FindNearest(display, x, y);
        if (nearest1) {
            BeginRubberBand(area, modes, Single(nearest1->ScreenPoint.x), Single(nearest1->ScreenPoint.y));
        }
    }
}

void CFittingWindow::MouseLeave() {
    pointer.reset();
}

void CFittingWindow::MouseMove(MouseButton button, float x, float y) {
    pointer = {x, y};
    if (button == MouseButton::Middle) {
        PanTo(x, y);
    }
    if (button != MouseButton::Left || !modes.mouseDown || !Drags(modes)) {
        return;
    }
    modes.currentX = x;
    modes.currentY = y;
    controls.pboxGraphicWindow.rubberBand = DrawnBand{modes.zoomWindowMode, modes.startX, modes.startY, x, y};
}

void CFittingWindow::MouseUp(MouseButton button, float x, float y) {
    if (button == MouseButton::Middle) {
        panFrom_.reset();
    }
    if (views->Count() == 0 || button != MouseButton::Left) {
        return;
    }
    MouseMove(button, x, y);  // the release may lie beyond the last move
    if (RunMouseStep([&] { return FinishMouseOperation(x, y); })) {
        UpdateFitting();
    }
}

/// Does what the armed modes ask for, one after the other, for removal goes together with another mode. True
/// when the window is to be updated.
bool CFittingWindow::FinishMouseOperation(float x, float y) {
    const bool dragged = EndRubberBand();
    if (modes.selectFramesMode) {
        ClickFrames(x, y);
    }
    bool changed = RemoveDimensionAt(x, y);
    if (dragged && Drags(modes)) {
        FinishDrag();
        changed = true;
    }
    if (modes.labelMode) {
        PlaceLabelAt(x, y);
        changed = true;
    }
    return changed;
}

/// The modes that end a drag exclude each other.
void CFittingWindow::FinishDrag() {
    if (modes.zoomWindowMode) {
        display.ZoomWindow(modes.startX, modes.startY, modes.currentX, modes.currentY);
        keepsInSight = false;
    } else if (modes.panMode) {
        PanByRubberBand();
    } else {
        nearest2 = FindNearest(display, modes.currentX, modes.currentY);
        if (!nearest1 || !nearest2) {
            return;
        }
        if (modes.measureMode) {
            MeasureAt();
        } else if (modes.dimensionMode > 0) {
            AddDimensionAt();
        } else {
            RotateAt();
        }
    }
}

/// Removal ends by itself: the pointer and the tool tip go back even when there was nothing to remove.
bool CFittingWindow::RemoveDimensionAt(float x, float y) {
    if (!removeDimensionMode) {
        return false;
    }
    EndRemoval();
    return dimensions->Count() > 0 && display.DimRemove(x, y);
}

void CFittingWindow::EndRemoval() {
    removeDimensionMode = false;
    controls.pboxGraphicWindow.mousePointer = Cursor::Cross;
    controls.pboxGraphicWindow.toolTip.clear();
}

void CFittingWindow::PanByRubberBand() {
    CViewPoint view = CopyCurrentView(*views);
    view.PanX = Finite(view.PanX + modes.startX - modes.currentX, "the view");
    view.PanY = Finite(view.PanY + modes.startY - modes.currentY, "the view");
    views->Add(view);
    keepsInSight = false;
}

void CFittingWindow::MeasureAt() {
    const PickedLineWhile shown(controls.pboxGraphicWindow, modes, nearest2->ScreenPoint);
    const CMeasure measure = {nearest1->TruePoint, nearest2->TruePoint, context_.options.Decimals,
                              context_.decimalMark};
    measure.DisplayDistance(context_.ui);
}

/// Two picks of the same place make no dimension.
void CFittingWindow::AddDimensionAt() {
    if (dimensions->Count() == MostDimensions) {
        ShowUserError(context_.ui,
                      "A drawing holds at most " + std::to_string(MostDimensions) + " dimensions");
    } else if (Distance3D(nearest1->ScreenPoint, nearest2->ScreenPoint) > 0) {
        dimensions->Add({.SurfaceNo2 = nearest2->surfaceNo,
                         .SurfaceNo1 = nearest1->surfaceNo,
                         .ListNo2 = nearest2->ListNo,
                         .ListNo1 = nearest1->ListNo,
                         .PointNo2 = nearest2->PointNo,
                         .PointNo1 = nearest1->PointNo});
    }
}

void CFittingWindow::PlaceLabelAt(float x, float y) {
    display.LabelPoint = C3DPoint{Finite(x, "the mouse"), Finite(y, "the mouse"), 0, PlainStation};
    display.AddLabel();
}

/// Turns the pattern about the first picked point. An earlier turn about another point is added to this one,
/// and both then act about the new point.
void CFittingWindow::RotateAt() {
    const PickedLineWhile shown(controls.pboxGraphicWindow, modes, nearest2->ScreenPoint);
    RotateDialog dialog(context_.ui, context_.options, context_.decimalMark,
                        PlanAngle(nearest1->TruePoint, nearest2->TruePoint));
    context_.ui.RunModal(dialog);
    if (dialog.lblStatus != "OK") {
        return;
    }
    const double angle = Finite(display.RotationAngle + dialog.Turn(), "the rotation");
    display.RotationPoint.x = nearest1->TruePoint.x;
    display.RotationPoint.y = nearest1->TruePoint.y;
    display.RotationAngle = angle;
}

}  // namespace korvet
