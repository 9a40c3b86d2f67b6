// Imported Mesh: a surface that was modelled elsewhere. It has no sizes to type, but two buttons that fetch
// it.
#include <cmath>
#include <memory>

#include "core/math_module.h"
#include "core/number_text.h"
#include "fittings/imported/import_mesh.h"
#include "fittings/windows.h"

namespace korvet {
namespace {

/// Without a mesh there is nothing to build, and nothing to say of a box.
Outcome Build(FittingForm& form, CImportMesh& fitting) {
    fitting.DXFMeshOK = form.mesh.DXFMeshOK;
    fitting.DXFMesh = form.mesh.DXFMesh;
    fitting.FileName = form.mesh.FileName;
    return RefusedIf(!fitting.DXFMeshOK);
}

/// A point of the sample, to the thousandth as drawings have it.
C3DPoint SamplePoint(double x, double y, double z) {
    constexpr int Places = 3;
    return {RoundPlaces(x, Places), RoundPlaces(y, Places), RoundPlaces(z, Places), CornerRuleStation};
}

/// Half of a hood: from an oval mouth below to a round collar above that leans back from it.
ImportedMesh SampleHood() {
    constexpr int Fields = 12;
    constexpr double Step = 15;  // degrees
    constexpr double CollarRadius = 130;
    constexpr double CollarOffset = 90;
    constexpr double CollarHeight = 320;
    constexpr double CollarRise = 60;  // of its back over its front
    constexpr double MouthLength = 280;
    constexpr double MouthWidth = 190;
    ImportedMesh sample;
    sample.DXFMeshOK = true;
    sample.DXFMesh.List1 = std::make_shared<C3DPoints>();
    sample.DXFMesh.List2 = std::make_shared<C3DPoints>();
    for (int i = 0; i <= Fields; ++i) {
        const double angle = DegToRad(i * Step);
        const double x = std::cos(angle);
        const double y = -std::sin(angle);
        sample.DXFMesh.List1->Add(SamplePoint(CollarOffset + CollarRadius * x, CollarRadius * y,
                                              CollarHeight + CollarRise / 2 * x));
        sample.DXFMesh.List2->Add(SamplePoint(MouthLength * x, MouthWidth * y, 0));
    }
    return sample;
}

constexpr SketchView SampleViews[] = {{.turn = -20, .tilt = 25}};
constexpr PageEntry Pages[] = {{{}, {}, SampleViews}};

}  // namespace

const WindowTable frmImportMesh = {
    .pages = Pages,
    .newFitting = FittingHandle::Make<CImportMesh>,
    .buildFitting = BuildAs<CImportMesh, Build>,
    .halfPatterns = HalfPatterns::None,
    .sampleMesh = SampleHood,
};

}  // namespace korvet
