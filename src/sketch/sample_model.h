// The model that the sample sizes of a parameter page make: what sketches and tiles are drawn from.
#pragma once

#include <cstddef>

#include "core/rule_surf.h"
#include "form/window_table.h"

namespace korvet {

/// A fitting with its properties set from the sample sizes of page `page` (from 0), without thickness;
/// nothing is made yet. Throws std::logic_error when the samples are refused: a table's samples are always
/// valid.
FittingHandle SampleFitting(const WindowTable& table, std::size_t page);

/// The surfaces of page `page` (from 0) at its sample sizes, in enough segments to look round. Throws as
/// SampleFitting.
CRuleSurfs SampleModel(const WindowTable& table, std::size_t page);

}  // namespace korvet
