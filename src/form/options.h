// The global options: one object for the whole run.
#pragma once

#include <cstdint>
#include <string>

#include "core/display_colors.h"

namespace korvet {

struct COptions {
    int DefaultSegs = 24;       ///< number of fold lines of a new fitting
    std::int16_t Decimals = 1;  ///< places of drawn numbers and of limits in messages
    std::string Language = "English";
    double DisplayTextSize = 2.0;  ///< drawing text height of a new window, in the user's unit
    DisplayColors Colors;
    std::string DXFBorderLayer = "BorderLayer";
    std::string DXFDimensionLayer = "DimensionLayer";
    std::string DXFTextLayer = "TextLayer";
    std::string DXFFoldLayer = "FoldLayer";
    std::string DXFCutLayer = "CutLayer";
    double DXFTextSize = 1.0;           ///< text height in DXF, in the user's unit
    std::int16_t PolyMode = 0;          ///< DXF profiles: 0 arcs, 1 polylines
    std::int16_t PrintUnits = 6;        ///< 6 millimetres, otherwise inches
    double PrintScale = 0.0;            ///< 0 scale to fit page, 1 full size, other a user scale
    std::int16_t PrintOrientation = 1;  ///< 1 portrait, 2 landscape
    double PrintXCalibration = 1.0;
    double PrintYCalibration = 1.0;
    std::int16_t WindowState = -1;  ///< state for new fitting windows: -1 not known yet; not saved
    std::string IniFileName;        ///< settings.ini in the folder that was current at the start, or
                                    ///< in the user's; empty where there is no place for one
};

}  // namespace korvet
