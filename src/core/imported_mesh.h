// A mesh of two rows of points that the program has not modelled itself.
#pragma once

#include <string>

#include "core/rule_surf.h"

namespace korvet {

/// What the window of an imported mesh has of it.
struct ImportedMesh {
    bool DXFMeshOK = false;  ///< there is a mesh
    std::string FileName;    ///< the drawing file that it was read from; empty when it came another way
    CRuleSurf DXFMesh;       ///< the first row as List1, the second as List2, of equal count, at least 2
};

}  // namespace korvet
