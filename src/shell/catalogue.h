// The fittings that the program can make.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/pattern_settings.h"
#include "form/window_table.h"

namespace korvet {

/// One fitting. Its category is its key everywhere: in the menu, in parameter files, in the text block.
struct CatalogueRow {
    std::string_view category;
    std::string_view window;
    std::string_view fittingClass;
    int helpContextId;         ///< 0: no topic
    std::int16_t lapEnable;    ///< the laps that it has, a LapMask
    const WindowTable* table;  ///< null: this window is not built yet
    bool hidden = false;       ///< not offered in the menu; only a parameter file opens it
};

inline constexpr std::size_t CatalogueSize = 39;

/// All fittings, by tile index.
extern const std::array<CatalogueRow, CatalogueSize> Catalogue;

/// Tile indices in the order in which the menu lays them out; hidden tiles keep their cells.
extern const std::array<int, CatalogueSize> DisplayOrder;

/// The row of a category, by the exact name; null when there is none.
const CatalogueRow* FindCategory(std::string_view category);

}  // namespace korvet
