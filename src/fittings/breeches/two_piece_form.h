// What the windows of a reducing breech of two pieces share: the checks of its diameters, the sizes that both
// come down to, the choice of the side on which pipe and outlets align, the table.
#pragma once

#include "core/math_module.h"
#include "fittings/breeches/breech_reducing_2prt.h"
#include "fittings/mean_sizes.h"
#include "fittings/windows.h"

namespace korvet::two_piece {

/// The boxes that both windows have. The third one holds the length or the height of the outlets.
enum SharedBox : int { PipeDiameter = 0, ConeDiameter = 1, Reach = 2 };

/// Mean radii, in the user's unit.
struct Radii {
    double pipe;
    double outlet;
};

inline Radii RadiiOf(const FittingForm& form) {
    return {MeanRadiusOfDiameter(form, PipeDiameter), MeanRadiusOfDiameter(form, ConeDiameter)};
}

/// Diameters and reach above 0, and room for the material in both diameters.
inline Outcome CheckDiameters(FittingForm& form) {
    const auto checkRoom = [&](int box) {
        return CheckRoundWall(form, box, MeanRadiusOfDiameter(form, box));
    };
    return RefusedIf(form.CheckAllPositive(PipeDiameter, ConeDiameter, Reach) || checkRoom(PipeDiameter) ||
                     checkRoom(ConeDiameter));
}

/// Buttons of optFlushSide.
enum AlignedSide : int { CenterLine = 0, FlushSide = 1 };
inline constexpr std::string_view Sides[] = {"Center line", " Flush side"};

/// Where the outlets are, in the user's unit and radians.
struct Outlets {
    double length;     ///< from the pipe's centre to that of each outlet
    double clAngle;    ///< of that line against the pipe's axis
    double faceAngle;  ///< tilt of the outlet of the first piece
};

/// Hands the sizes on; the second outlet mirrors the first. On the flush side both walls lie in one line, and
/// the pieces are no more the same before and behind their middle: a half pattern is refused.
inline void SetBreech(FittingForm& form, const Outlets& outlets, CBreechReducing2Prt& breech) {
    const auto [pipe, outlet] = RadiiOf(form);
    const bool flush = form.options.optFlushSide.IsOn(FlushSide);
    breech.PipeRad = pipe;
    breech.ConeRadA = breech.ConeRadB = outlet;
    breech.ConeLengthA = breech.ConeLengthB = outlets.length;
    breech.CLAngleA = outlets.clAngle;
    breech.CLAngleB = -outlets.clAngle;
    breech.ConeFaceAngleA = outlets.faceAngle;
    breech.ConeFaceAngleB = -outlets.faceAngle;
    breech.Offset = flush ? -(pipe - outlet) : 0;
    if (form.settings.HalfPattern && flush) {
        form.RefuseHalfPattern();
    }
}

/// The table of such a window.
template <Outcome (*Build)(FittingForm&, CBreechReducing2Prt&)>
constexpr WindowTable Table(std::span<const PageEntry> pages) {
    return {.pages = pages,
            .newFitting = FittingHandle::Make<CBreechReducing2Prt>,
            .buildFitting = BuildAs<CBreechReducing2Prt, Build>,
            .multiple = true,
            .joinAngleDisable = true,
            .flushSide = Sides};
}

}  // namespace korvet::two_piece
