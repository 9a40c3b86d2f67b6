// How a mesh comes into its window.
#pragma once

#include <string>

#include "window/fitting_window.h"

namespace korvet {

/// Takes the mesh of a drawing file into the window; nothing is drawn. Refuses with message 152 and the
/// reason when there is none to be had, before that with messages 150 and 151 when the file has no entities
/// at all; the window then keeps the mesh that it has.
Outcome ReadMeshDXF(CFittingWindow& window, const std::string& path);

}  // namespace korvet
