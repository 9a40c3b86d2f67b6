// The colours of a drawing on the screen.
#pragma once

#include "core/color.h"

namespace korvet {

/// Paper takes every line and text in black instead.
struct DisplayColors {
    Color DisplayDimensionColor = Yellow;
    Color DisplayBorderColor = Cyan;
    Color DisplayFoldColor = Cyan;
    Color DisplayCutColor = Red;
    Color DisplayTextColor = Green;
    Color DisplayBackColor = Black;
};

}  // namespace korvet
