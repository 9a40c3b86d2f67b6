// The points that dimension lines refer to, found on a model.
#pragma once

#include "core/rule_surf.h"
#include "form/sketch_entry.h"

namespace korvet {

/// The point in space, in the user's unit. Throws ListError when the model does not have the surface, line
/// or station, or the line is empty.
C3DPoint SketchPointInSpace(const CRuleSurfs& model, const SketchPoint& point);

}  // namespace korvet
