// Lines on a device: one call for a whole list, in the pen of its meaning.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/display_colors.h"
#include "core/points.h"
#include "display/world_window.h"

namespace korvet {

/// What a line means; its pen follows from it.
enum class LineType : std::uint8_t {
    Cut = 1,             ///< outline and end rulings
    Fold = 2,            ///< bend lines and laps
    Mark = 3,            ///< frame, dimensions, reference cross
    GridLeader = 4,      ///< dotted
    Diagonal = 5,        ///< dotted
    SheetMark = 6,       ///< corners of a sheet
    FrameNotChosen = 7,  ///< print frame
    FrameChosen = 8      ///< print frame
};

/// The pen of a line type. Paper gets its widths in black, the screen its colours one pixel wide.
Pen PenFor(LineType lineType, const DisplayColors& colors, bool printing);

/// A line through points in world units. It lives for one drawing call and holds on to the device.
class CPolyline {
  public:
    /// Throws ArithmeticError for a window without width or height.
    CPolyline(DrawingDevice& device, const WorldWindow& window);

    LineType Type = LineType::Cut;
    bool PrintRequested = false;

    /// Appends a point. Throws ArithmeticError when its pixel does not fit into 32 bits.
    void Point(float x, float y);

    /// How many points the line has so far.
    [[nodiscard]] std::size_t Count() const { return pixels_.size(); }

    /// One call of the device, made for an empty line too; afterwards the line is empty.
    void Draw(const DisplayColors& colors);

  private:
    DrawingDevice& device_;
    PixelMap map_;
    std::vector<PixelPoint> pixels_;
};

/// The outline of the box between two corners, in world units: four lines of one pixel in the given colour,
/// from (x1, y1) along x first and back to it. Throws ArithmeticError as CPolyline does.
void DrawBox(DrawingDevice& device, const WorldWindow& window, const C3DPoint& corner1,
             const C3DPoint& corner2, Color color);

}  // namespace korvet
