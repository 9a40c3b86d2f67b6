#include "fittings/roof.h"

#include "core/checked.h"
#include "core/math_module.h"

namespace korvet {

double RidgeAngle(const Ridge& ridge) {
    return ArcCos(Quotient(ridge.offset, ridge.radius));
}

}  // namespace korvet
