#include "fittings/imported/import_mesh.h"

#include "core/triangulation.h"

namespace korvet {

void CImportMesh::ConstructModel() {
    if (!DXFMeshOK) {
        throw ListError("no mesh has been imported");
    }
    results.ModelSurface = CRuleSurf();
    results.ModelSurface.List1 = DXFMesh.List1;
    results.ModelSurface.List2 = DXFMesh.List2;
}

void CImportMesh::DevelopModel() {
    ConstructModel();
    results.PatternSurface = Unfolded(results.ModelSurface);
}

}  // namespace korvet
