// The layout of a pattern on sheets of paper: its frames, with the marks and ticks by which the sheets are
// taped together.
#pragma once

#include <cstdint>
#include <optional>

#include "core/points.h"
#include "dialogs/paper.h"
#include "display/drawing.h"
#include "printing/print_page.h"

namespace korvet {

/// More sheets than this are not laid out.
inline constexpr double MostSheets = 2000;

/// Columns and rows of frames about a pattern. A side of exactly a whole number of frames takes one more, for
/// a frame begins wherever there is still pattern or its edge.
struct SheetGrid {
    double columns = 0;
    double rows = 0;

    [[nodiscard]] double Sheets() const { return columns * rows; }
};

/// The print frames of one fitting window.
struct PrintFrames {
    bool PrintFrameDisplayRequested = false;  ///< they are drawn over the pattern
    double PrintFrameWidth = 0;               ///< size of a frame in y, print units
    double PrintFrameLength = 0;              ///< in x
    std::int16_t PrintUnits = Millimetres;
    CPrintPages PrinterPages;  ///< of the layout that is shown
    SheetGrid Grid;            ///< of that layout, also when it has too many sheets to be laid out

    /// Lays frames over a pattern, from the lower left corner of the frame about it (BuildExtentFrame); none
    /// of them is chosen. There are none for an empty frame, for frames without length or width, and when
    /// they would be more than MostSheets.
    void Lay(const C3DPoints& extentFrame);

    /// Draws all frames with their corner marks, sheet names and ruler ticks.
    void Draw(const Drawing& drawing) const;

  private:
    void DrawTicks(const Drawing& drawing) const;
};

/// A tick of a ruler at `point`: to the right of it on a left edge, upward on a lower edge, with its text
/// beyond its end.
enum class TickSide { Left = 2, Lower = 3 };
void DrawRulerTick(const Drawing& drawing, const C3DPoint& point, TickSide side, const std::string& text,
                   std::int16_t printUnits);

/// Two lines into the frame from each corner, along its edges, and the name of the sheet at the lower left.
void DrawSheetMarks(const Drawing& drawing, const CPrintPage& page, std::int16_t printUnits);

}  // namespace korvet
