// Polygon meshes of drawing files, read.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/rule_surf.h"

namespace korvet {

/// No drawing with a mesh that anybody cuts comes near this; what does is not read.
inline constexpr std::size_t LargestDrawing = 256U << 20U;

/// What a drawing file holds of a mesh.
struct DxfMesh {
    bool hasEntities = false;          ///< the file has a section of entities
    std::optional<CRuleSurf> surface;  ///< List1 and List2 from the first and the second row of the mesh
    std::string fault;                 ///< why there is none, with the line where that shows
};

/// The first polygon mesh of 2 by N vertices, N at least 2, in the text of an ASCII drawing file that is open
/// at both ends of its rows: a POLYLINE with 16 in its group 70. The first N vertices make List1 and the next
/// N make List2, each point with the flag of a corner with a bend line. Coordinates are in the drawing's
/// unit.
///
/// Lines end with CR LF, LF or CR, and are compared without the blanks around them and without regard to
/// case. Group codes are looked for by their text, in their order, whatever stands between. There is no
/// surface when the mesh has fewer or more vertices than it says, or when a coordinate is no finite number.
/// Takes memory in proportion to the text, whatever counts it names.
DxfMesh ReadDxfMesh(std::string_view text);

}  // namespace korvet
