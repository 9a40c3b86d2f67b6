// The catalogue as --list prints it.
#pragma once

#include <string>

namespace korvet::batch {

/// Every fitting with its window, types, boxes and options, one line each, by tile.
std::string CatalogueText();

}  // namespace korvet::batch
