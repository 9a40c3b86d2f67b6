#include "core/fitting.h"

namespace korvet {

void FittingHandle::Run(void (*operation)(void*)) const {
    FittingResults& results = Results();
    results.warnings.clear();
    operation(object_.get());
    RequireFinite(results.ModelSurface);
    RequireFinite(results.PatternSurface);
    for (const CRuleSurfs* list : {&results.ModelSurfaceList, &results.PatternSurfaceList}) {
        for (const CRuleSurf& surface : *list) {
            RequireFinite(surface);
        }
    }
}

}  // namespace korvet
