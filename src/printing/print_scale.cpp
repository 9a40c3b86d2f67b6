#include "printing/print_scale.h"

#include <algorithm>
#include <cmath>

#include "core/checked.h"
#include "dialogs/paper.h"

namespace korvet {
namespace {

/// Both margins of a sheet together.
double Margins(std::int16_t printUnits) {
    return printUnits == Millimetres ? 10.0 : 0.3937007874015748;
}

/// One of them.
double Margin(std::int16_t printUnits) {
    return printUnits == Millimetres ? 5.0 : 0.1968503937007874;
}

}  // namespace

FrameSize FrameSizeFor(PrintableSize printable, Calibration calibration, std::int16_t printUnits) {
    return {printable.width / std::max(1.0, calibration.x) - Margins(printUnits),
            printable.height / std::max(1.0, calibration.y) - Margins(printUnits)};
}

WorldWindow ApplyPrintScale(const Bounds& frame, PrintableSize printable, double scale,
                            Calibration calibration, std::int16_t printUnits) {
    WorldWindow window;
    window.ScaleHeight = -printable.height * Quotient(1, scale) * Quotient(1, calibration.y);
    window.ScaleWidth = printable.width * Quotient(1, scale) * Quotient(1, calibration.x);
    const double height = frame.maxY - frame.minY;
    const double above = std::fabs(window.ScaleHeight) - std::fabs(height);
    window.ScaleTop = frame.maxY + above - Margin(printUnits);
    window.ScaleLeft = frame.minX - Margin(printUnits);
    return window;
}

}  // namespace korvet
