#include "window/views.h"

#include <array>
#include <cmath>

#include "core/math_module.h"
#include "form/messages.h"

namespace korvet {
namespace {

struct PresetAngles {
    double fromXY;
    double aroundZ;
};

bool IsSameAngle(double a, double b) {
    constexpr double Close = 1e-8;
    return std::fabs(std::remainder(a - b, 2 * PI)) < Close;
}

PresetAngles AnglesOfButton(int button) {
    const double slant = DegToRad(35);
    const std::array<PresetAngles, 10> angles = {{{slant, DegToRad(135)},
                                                  {0, QuarterTurn},
                                                  {slant, DegToRad(45)},
                                                  {0, PI},
                                                  {QuarterTurn, 0},
                                                  {0, 0},
                                                  {slant, DegToRad(225)},
                                                  {0, DegToRad(270)},
                                                  {slant, DegToRad(315)},
                                                  {QuarterTurn, QuarterTurn}}};
    if (button < 0 || button > PatternButton) {
        throw ListError("view button " + std::to_string(button));
    }
    return angles[static_cast<std::size_t>(button)];
}

/// Refuses another step from a last view that is zoomed too far.
Outcome CheckZoom(MessageBoxes& boxes, const COptions& options, const CViewList& views) {
    if (IsWithinZoomLimits(views.Last().ZoomFactor)) {
        return Passed;
    }
    ShowPlain(boxes, GetMessage(MaximumZoom, options.Language));
    return Refused;
}

}  // namespace

bool IsWithinZoomLimits(double zoomFactor) {
    const auto zoom = static_cast<float>(zoomFactor);
    return zoom >= 0.0001F && zoom <= 10000.0F;
}

void AddPresetView(int button, CViewList& views) {
    const PresetAngles angles = AnglesOfButton(button);
    CViewPoint view = CurrentOrDefaultView(views);
    view.FromXY = angles.fromXY;
    view.AroundZ = angles.aroundZ;
    view.Patternview = button == PatternButton;
    views.Add(view);
}

std::optional<int> ShownButton(const CViewList& views) {
    if (views.Count() == 0) {
        return std::nullopt;
    }
    const CViewPoint& view = views.Last();
    if (view.Patternview) {
        return PatternButton;
    }
    for (int button = 0; button < PatternButton; ++button) {
        const auto [fromXY, aroundZ] = AnglesOfButton(button);
        const bool fromAbove = fromXY == QuarterTurn;  // whatever is turned about the line of sight
        if (IsSameAngle(view.FromXY, fromXY) && (fromAbove || IsSameAngle(view.AroundZ, aroundZ))) {
            return button;
        }
    }
    return std::nullopt;
}

CViewPoint CopyCurrentView(const CViewList& views) {
    return views.Last();
}

void PreviousView(MessageBoxes& boxes, CViewList& views) {
    if (views.Count() > 1) {
        views.Remove(views.Count());
    } else {
        ShowPlain(boxes, "No Previous View");
    }
}

Outcome ZoomView(MessageBoxes& boxes, const COptions& options, double factor, CViewList& views) {
    if (CheckZoom(boxes, options, views)) {
        return Refused;
    }
    CViewPoint view = CopyCurrentView(views);
    view.ZoomFactor *= factor;
    views.Add(view);
    return Passed;
}

Outcome BeginZoomWindow(MessageBoxes& boxes, const COptions& options, const CViewList& views) {
    return CheckZoom(boxes, options, views);
}

bool InPatternView(const CViewList& views) {
    return views.Count() > 0 && views.Last().Patternview;
}

Outcome RequirePatternView(MessageBoxes& boxes, const COptions& options, const CViewList& views) {
    if (InPatternView(views)) {
        return Passed;
    }
    ShowPlain(boxes, GetMessage(PatternViewOnly, options.Language));
    return Refused;
}

}  // namespace korvet
