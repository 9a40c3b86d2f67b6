// The surfaces of a fitting: the one way from a fitting to what is drawn, exported, printed or told of it.
#pragma once

#include <cstdint>

#include "core/fitting.h"

namespace korvet {

/// What of a fitting is wanted: the body that is made, or the flat blank it is made from.
enum class FittingShape : std::uint8_t { Model, Pattern };

/// Builds the fitting, by one ConstructModel for its model or one DevelopModel for its pattern, and gives the
/// surfaces: the list of a fitting of many pieces (`multiple`), else its single surface, or none when the
/// build made none. The model that a pattern was developed from is let go. The lists of points are shared
/// with the fitting, so move and rotate them, but edit none. The warnings of the build stand in
/// fitting.Results(), also when it throws: ArithmeticError or ListError.
CRuleSurfs MakeSurfaces(const FittingHandle& fitting, FittingShape shape, bool multiple);

}  // namespace korvet
