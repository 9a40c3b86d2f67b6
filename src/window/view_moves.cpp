// The views that come by themselves: a first picture that shows everything, and those that the wheel and the
// middle button make of the last display.
#include <cmath>

#include "core/checked.h"
#include "window/fitting_window.h"
#include "window/views.h"

namespace korvet {
namespace {

/// Turns of the wheel that follow each other no later than this are one view to go back from.
constexpr std::int64_t RunPause = 500;  // milliseconds

}  // namespace

/// What a view button has drawn at the pan and zoom of the view before it may lie outside the picture, wholly
/// or in part. The user who has not yet looked round himself can't know that, so he is shown all of it. The
/// history has one view of the button, not the one that nobody saw; extents that no view can show leave the
/// picture.
void CFittingWindow::BringIntoSight() {
    if (!keepsInSight || display.ShowsAll()) {
        return;
    }
    const std::size_t before = views->Count();
    try {
        display.ZoomExtents();
        if (views->Count() > before) {
            display.ShowUnder(views->Last());
            views->Remove(before);
        }
    } catch (const ArithmeticError&) {
        if (views->Count() > before) {
            views->Remove(views->Count());
        }
    }
}

void CFittingWindow::TurnWheel(double turns, float x, float y, std::int64_t milliseconds) {
    if (!hasModel || views->Count() == 0) {
        return;
    }
    const double zoom = views->Last().ZoomFactor;
    const double factor = std::pow(1 / ZoomStep, turns);
    if (factor == 1 || !IsWithinZoomLimits(zoom) || !IsWithinZoomLimits(zoom * factor)) {
        return;
    }
    const bool sameRun = std::llabs(milliseconds - lastTurn_) <= RunPause;
    lastTurn_ = milliseconds;
    ShowMoved(MovedView::By::Wheel, sameRun, [&] { return display.ZoomedAbout({x, y}, factor); });
}

/// The point that was pressed follows the mouse. x and y are counted on the picture as it is now, so that
/// each step only makes up for what the step before has left.
void CFittingWindow::PanTo(float x, float y) {
    if (!panFrom_ || !hasModel) {
        return;
    }
    ShowMoved(MovedView::By::MiddleButton, true, [&] {
        CViewPoint view = CopyCurrentView(*views);
        view.PanX = Finite(view.PanX + panFrom_->x - x, "the view");
        view.PanY = Finite(view.PanY + panFrom_->y - y, "the view");
        return view;
    });
}

/// Shows the last display under another view, which joins the history or takes the place of the last one of
/// the same run. What can't be drawn is too far out: a limit, at which nothing happens.
void CFittingWindow::ShowMoved(MovedView::By by, bool sameRun, const std::function<CViewPoint()>& makeView) {
    try {
        const CViewPoint view = makeView();
        display.ShowUnder(view);
        if (sameRun && LastIsMoved(by)) {
            views->Remove(views->Count());
        }
        views->Add(view);
        moved_ = MovedView{by, view, views->Count()};
        keepsInSight = false;
    } catch (const ArithmeticError&) {
        return;
    }
}

bool CFittingWindow::LastIsMoved(MovedView::By by) const {
    return moved_ && moved_->by == by && views->Count() == moved_->count && views->Last() == moved_->view;
}

}  // namespace korvet
