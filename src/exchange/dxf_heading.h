// What may stand before the entities of a drawing file: its version, size and unit, and what its layers are.
#pragma once

#include <string>
#include <vector>

#include "core/color.h"
#include "core/points.h"

namespace korvet {

/// A layer of a drawing file.
struct DxfLayer {
    std::string name;
    Color color = Black;
};

/// The corners of the box about all that a drawing shows.
struct DxfExtents {
    C3DPoint low;
    C3DPoint high;
};

/// A heading of AC1009, the version that every reader knows.
struct DxfHeading {
    bool inches = false;           ///< a unit is an inch, else a millimetre
    std::vector<DxfLayer> layers;  ///< of layers of the same name, but for the case, the first one counts
};

/// The number of the colour among the 255 indexed ones that lies nearest to it, by red, green and blue. White
/// and black are one number, 7, which readers show in the one that stands out from what is behind it.
int NearestColorIndex(Color color);

/// The sections HEADER, TABLES and BLOCKS: version, extents, limits and unit; the line type of the layers,
/// the layers and the text style. Throws ArithmeticError when an extent is not finite.
std::string HeadingText(const DxfHeading& heading, const DxfExtents& extents);

}  // namespace korvet
