// How the catalogue tells of one fitting.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/pattern_settings.h"
#include "form/window_table.h"

namespace korvet {

/// One fitting. Its category is its key everywhere: in the menu, in parameter files, in the text block.
struct CatalogueRow {
    std::string_view category;
    std::string_view window;        ///< name of its WindowTable
    std::string_view fittingClass;  ///< name of its class
    int helpContextId;              ///< 0: no topic
    std::int16_t lapEnable;         ///< the laps that it has, a LapMask
    const WindowTable* table;       ///< never null
    bool hidden = false;            ///< not offered in the menu; only a parameter file opens it
};

}  // namespace korvet
