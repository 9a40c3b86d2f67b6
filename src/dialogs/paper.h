// Paper as options and dialogs speak of it.
#pragma once

#include <cstdint>

#include "form/controls.h"

namespace korvet {

/// Print units, by the numbers of the settings file. A print unit is a unit of the full-size drawing.
inline constexpr std::int16_t Millimetres = 6;
inline constexpr std::int16_t Inches = 5;

inline constexpr double MillimetresPerInch = 25.4;

/// Orientations, by the numbers of the settings file.
inline constexpr std::int16_t Portrait = 1;
inline constexpr std::int16_t Landscape = 2;

/// The small picture of a sheet beside the choice of its orientation, in twips.
struct SheetPicture {
    Place frame;  ///< fraOrientation
    Place sheet;  ///< pboxOrient, a sheet of paper in the frame
    Place print;  ///< pboxOrientInner, what is printed on the sheet, in the sheet
};

/// The picture for portrait (1) or landscape (any other): the sheet is centred below the middle of its frame,
/// with the print in its own middle.
SheetPicture PictureOfSheet(std::int16_t orientation);

}  // namespace korvet
