// From print units of a pattern to a sheet of paper.
#pragma once

#include <cstdint>

#include "display/bounds.h"
#include "display/world_window.h"

namespace korvet {

/// What a printer can print on of a sheet, in print units.
struct PrintableSize {
    double width = 0;
    double height = 0;
};

/// Stretch factors of a printer: a line of 100 with factor 1.01 is sent to it as one of 101.
struct Calibration {
    double x = 1;
    double y = 1;
};

/// Length (in x) and width (in y) of a print frame: the printable size less a margin of 5 mm
/// (0.1968503937007874 inch) all round. A printer that is sent more than the true length has less room by as
/// much. Neither need be above 0.
struct FrameSize {
    double length = 0;
    double width = 0;
};
FrameSize FrameSizeFor(PrintableSize printable, Calibration calibration, std::int16_t printUnits);

/// The world window of a sheet that shows a frame: its lower left corner lies a margin in and up from the one
/// of the printable area. `scale` is the size on paper of a true length of 1. Throws ArithmeticError for a
/// scale or factor of 0.
WorldWindow ApplyPrintScale(const Bounds& frame, PrintableSize printable, double scale,
                            Calibration calibration, std::int16_t printUnits);

}  // namespace korvet
