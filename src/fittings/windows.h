// The tables of all fitting windows that are built, for the catalogue.
#pragma once

#include "form/window_table.h"

namespace korvet {

extern const WindowTable frmRightCone1;
extern const WindowTable frmRightCone2;

}  // namespace korvet
