// The fittings that the program can make.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "form/catalogue_row.h"

namespace korvet {

inline constexpr std::size_t CatalogueSize = 39;

/// All fittings, by tile index.
extern const std::array<CatalogueRow, CatalogueSize> Catalogue;

/// Tile indices in the order in which the menu lays them out; hidden tiles keep their cells.
extern const std::array<int, CatalogueSize> DisplayOrder;

/// The row of a category, by the exact name; null when there is none.
const CatalogueRow* FindCategory(std::string_view category);

}  // namespace korvet
