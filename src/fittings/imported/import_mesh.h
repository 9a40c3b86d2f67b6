// A mesh that came from a drawing, laid flat.
#pragma once

#include "core/fitting.h"
#include "core/imported_mesh.h"

namespace korvet {

/// The two rows of an imported mesh as the edges of one surface. No size and no setting changes it: the mesh
/// is taken as the mean surface of the sheet, in the drawing's unit.
struct CImportMesh {
    FittingInputs inputs;
    FittingResults results;
    bool DXFMeshOK = false;  ///< there is a mesh
    CRuleSurf DXFMesh;       ///< as it was read
    std::string FileName;    ///< the drawing file that it was read from

    /// The model shares List1 and List2 of the mesh. Throws ListError when there is none.
    void ConstructModel();

    /// The model unfolded (CTriangulation): all rulings and the edge along List1 keep their lengths, and
    /// where the four points of a field lie in one plane the edge along List2 does too. Throws
    /// ArithmeticError when the sides of a triangle do not close.
    void DevelopModel();
};

}  // namespace korvet
