// The coordinate table on paper.
#pragma once

#include <string_view>

#include "printing/printers.h"

namespace korvet {

/// Prints the lines of a text: the first in Arial of 14 points, bold, the others in Courier New of 12, with
/// the margin of print frames. A line that does not fit on the sheet begins the next one; of a line that is
/// too long the end is cut off by the edge.
void PrintLines(PrintJob& job, std::string_view text);

}  // namespace korvet
