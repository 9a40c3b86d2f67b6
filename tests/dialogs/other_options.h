// Options that are all set, for tests.
#pragma once

#include "form/options.h"

namespace korvet {

/// No value of the file is its default, and no two texts are alike.
inline COptions OtherOptions() {
    COptions options;
    options.DefaultSegs = 60;
    options.Decimals = 3;
    options.Language = "German";
    options.DisplayTextSize = 2.5;
    options.Colors = {.DisplayDimensionColor = 101,
                      .DisplayBorderColor = 102,
                      .DisplayFoldColor = 103,
                      .DisplayCutColor = 104,
                      .DisplayTextColor = 105,
                      .DisplayBackColor = 106};
    options.DXFTextLayer = "Text";
    options.DXFFoldLayer = "Fold";
    options.DXFCutLayer = "Schnittlinien \xC3\xBC";
    options.DXFBorderLayer = "Border";
    options.DXFDimensionLayer = "Dimension";
    options.DXFTextSize = 0.75;
    options.PolyMode = 1;
    options.PrintOrientation = 2;
    options.PrintScale = 0.5;
    options.PrintUnits = 5;
    options.PrintXCalibration = 1.01;
    options.PrintYCalibration = 0.99;
    return options;
}

}  // namespace korvet
