// The check of a cut file as an export tells it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/cut_check.h"
#include "exchange/dxf.h"
#include "window/fitting_window.h"

namespace korvet {

/// How many times the segments the pattern has from which the distance of a cut is told.
inline constexpr int FinerTimes = 8;

struct ExportCheck {
    CutCheck cut;
    int finerSegs = 0;                ///< segments of the finer pattern, MaxSegs at most
    std::optional<double> fromFiner;  ///< how far its points lie from the lines that are cut; nothing where
                                      ///< the sizes have no such pattern
};

/// Checks what a drawing of the window's pattern writes, against the pattern and against the pattern of the
/// same sizes in FinerTimes the segments. Nothing when the drawing is no pattern or has no outlines. The
/// window and its fitting stay as they are. Throws ArithmeticError as CDXF::Text.
std::optional<ExportCheck> CheckExport(const CFittingWindow& window, const CDXF& drawing);

/// What a check tells: the pieces with their measures and faults, what stands twice on purpose, and the two
/// distances, each a sentence. Distances are rounded up to four places.
std::vector<std::string> CheckLines(const ExportCheck& check, char decimalMark);

}  // namespace korvet
