// One pass of drawing on one device: lines by their meaning, surfaces, and texts of one height in the world.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "core/display_colors.h"
#include "core/points.h"
#include "core/rule_surf.h"
#include "display/bounds.h"
#include "display/polyline.h"
#include "display/text.h"
#include "display/world_window.h"

namespace korvet {

/// The world size over the shorter side of a device, one text height off its centre.
struct FitScale {
    double WorldExtents = 0;  ///< world size at zoom 1
    double ZoomFactor = 1;    ///< 0 counts as 1
    double PanX = 0;          ///< world point at the centre
    double PanY = 0;
    float TextSize = 0;  ///< added to left and top
};

/// The world window of a device with the given outer size. Throws ArithmeticError for a device without width
/// or height.
WorldWindow FittedWindow(const FitScale& scale, PixelSize outerSize);

/// Where and how a pass draws. On no device, or one without size, every operation does nothing. Throws
/// ArithmeticError when a pixel does not fit into 32 bits.
struct Drawing {
    DrawingDevice* Device = nullptr;
    WorldWindow Window;
    DisplayColors Colors;
    bool PrintRequested = false;
    float TextSize = 0;  ///< height of text in the user's unit
    int Decimals = 0;    ///< places of every number drawn
    char DecimalMark = '.';
    double CrossArm = 0;  ///< of a reference cross, in the user's unit, of either sign

    /// The part of the world that a sheet of paper shows, if it does not show all: of a line only what lies
    /// in it is drawn (ClipLineToPage), a text is drawn whole when the point that it stands on lies in it.
    std::optional<Bounds> PrinterPage = {};

    /// Whether all that lies in the box is on other sheets of paper: with thousands of them this has to be
    /// told at once.
    [[nodiscard]] bool IsElsewhere(const Bounds& box) const;

    /// Whether there is a surface to draw on.
    [[nodiscard]] bool CanDraw() const;

    /// Whether a text that stands on the point is drawn.
    [[nodiscard]] bool Shows(const C3DPoint& point) const;

    void DrawPath(const C3DPoints& points, LineType lineType) const;
    void DrawLine(const C3DPoint& a, const C3DPoint& b, LineType lineType) const;

    /// Four arms from the point: to the right and left and up and down, in that order for a positive arm.
    void DrawCross(const C3DPoint& point, LineType lineType) const;

    /// A surface in its order: rulings (the first, the last and rule stations), List1, List2, List3, laps,
    /// the reference cross. Throws ListError when List2 is shorter than List1.
    void DrawSurface(const CRuleSurf& surface) const;

    void DrawHorizontalText(const C3DPoint& point, const std::string& text,
                            Justification justification) const;
    void DrawVerticalText(const C3DPoint& point, const std::string& text, Justification justification) const;

    /// A horizontal text of that many points, whatever the scale.
    void DrawTextOfSize(const C3DPoint& point, float points, const std::string& text,
                        Justification justification) const;

    /// The distance of two points, along the line between them.
    void DrawLength(const C3DPoint& a, const C3DPoint& b, Justification justification) const;

    /// The size in points that gives capitals of TextSize in the world under the window's scale, measured
    /// on a "1" of 10 points; 0 where nothing can be drawn.
    [[nodiscard]] double ScaledFontSize() const;

    /// From the middle of a line of the label block down to the next: one and a half text heights.
    [[nodiscard]] double LineSpacing() const;

  private:
    void DrawPoints(std::span<const C3DPoint> points, LineType lineType) const;
    void DrawClipped(std::span<const C3DPoint> points, LineType lineType) const;
    [[nodiscard]] CText NewText(const std::string& text) const;
};

}  // namespace korvet
