#include "fittings/makeable.h"

#include "core/checked.h"

namespace korvet {

void RequireWall(double radius) {
    if (radius == 0) {
        throw ArithmeticError("a pipe with a diameter of 0 has no wall");
    }
}

}  // namespace korvet
