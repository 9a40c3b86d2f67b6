#include "core/fitting.h"

#include "core/lap_join.h"

namespace korvet {

bool AddLaps(CRuleSurf& pattern, const FittingInputs& inputs) {
    if (inputs.JoinType <= 0) {
        return false;
    }
    ApplyLapJoin(pattern, inputs.JoinType, inputs.LapSize0, inputs.LapSize1, inputs.LapSize2);
    return true;
}

void FittingHandle::Run(void (*operation)(void*)) const {
    FittingResults& results = Results();
    results.warnings.clear();
    operation(object_.get());
    RequireWithinReach(results.ModelSurface);
    RequireWithinReach(results.PatternSurface);
    for (const CRuleSurfs* list : {&results.ModelSurfaceList, &results.PatternSurfaceList}) {
        for (const CRuleSurf& surface : *list) {
            RequireWithinReach(surface);
        }
    }
}

}  // namespace korvet
