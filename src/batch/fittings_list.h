// A list of fittings as spreadsheets write it: a row for each, of comma or semicolon separated cells.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "batch/arguments.h"

namespace korvet::batch {

/// The rows of a list with the cells name, fitting, type and then NAME=VALUE, select=N among them. Cells may
/// be quoted (RFC 4180); they are parted by the mark, comma or semicolon, that comes more often in the first
/// row. A first row that names the columns, empty rows and empty cells at the end are passed over. `text` is
/// UTF-8, with a byte order mark or without; `path` is what messages call the list. A row that is not sound
/// has its fault, and the others stand.
std::vector<BatchInput> ReadFittingsList(std::string_view text, const std::string& path);

}  // namespace korvet::batch
