#include "core/fitting_surfaces.h"

namespace korvet {
namespace {

CRuleSurfs OneSurface(const CRuleSurf& surface) {
    CRuleSurfs surfaces;
    if (surface.List1 && surface.List1->Count() > 0) {
        surfaces.Add(surface);
    }
    return surfaces;
}

}  // namespace

CRuleSurfs MakeSurfaces(const FittingHandle& fitting, FittingShape shape, bool multiple) {
    FittingResults& results = fitting.Results();
    if (shape == FittingShape::Model) {
        fitting.ConstructModel();
        return multiple ? results.ModelSurfaceList : OneSurface(results.ModelSurface);
    }
    fitting.DevelopModel();
    results.ModelSurface = {};  // has served: of a large bend it takes as much memory as the pattern
    results.ModelSurfaceList = {};
    return multiple ? results.PatternSurfaceList : OneSurface(results.PatternSurface);
}

}  // namespace korvet
