// The table of the stations' coordinates, for marking out with a rule from the corner of the sheet.
#pragma once

#include <optional>
#include <string>

#include "core/points.h"
#include "display/annotations.h"

namespace korvet {

/// "x,y", or "x,y,z", each rounded to `decimals` places, with a decimal point on every desktop since commas
/// stand between them; nothing for a point that is not there.
std::string PointText(const std::optional<C3DPoint>& point, bool withZ, int decimals);

/// A new list with x and y told from `origin`; z is 0 and no flag is kept.
C3DPoints OffsetList(const C3DPoints& list, const C3DPoint& origin);

/// The table as text with CR LF lines: the product's name, then for each surface a heading and a row per
/// station with the points of List1, List2 and, where present, List3, told from the lower left corner of the
/// frame. Columns are 14 characters apart. Without a surface it is the name alone. Throws ListError when the
/// surfaces have no point at all, or when List2 or a present List3 has fewer stations than List1.
std::string CoordinateTable(const AnnotatedPattern& pattern, int decimals);

}  // namespace korvet
