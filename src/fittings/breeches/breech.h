// Junction of three, four or five equal round pipes, whose axes lie in one plane and meet in one point.
#pragma once

#include <array>
#include <vector>

#include "core/fitting.h"

namespace korvet {

/// The values of Miscellaneous that CBreech tells apart: how the patterns are arranged. With any other one
/// they lie on each other.
enum BreechLayout : std::int16_t { PatternsInARow = 1, PatternsInAColumn = 2 };

/// Lengths are mean dimensions in the user's unit, angles radians. Dtype is the number of pipes less three.
/// The axes lie in the plane of x and z. The first pipe stands on its free end, in the plan about the origin,
/// and goes up to the meeting point at (0, 0, PipeLength1); the others follow about that point, in the
/// direction from x to z.
struct CBreech {
    FittingInputs inputs;    ///< Miscellaneous is a BreechLayout; JoinAngle is not read
    FittingResults results;  ///< ModelSurfaceList and PatternSurfaceList

    double Thickness = 0;           ///< handed to the pipes, like TemplateType
    std::int16_t TemplateType = 0;  ///< see CRightCylinder
    double KerfSpacing = 0;         ///< gap between neighbouring patterns

    /// Between each pipe and the next one. The angle behind the last pipe is what the others leave of the
    /// full turn: it is worked out and set by each build.
    double PipeAngle1 = 0;
    double PipeAngle2 = 0;
    double PipeAngle3 = 0;
    double PipeAngle4 = 0;
    double PipeAngle5 = 0;

    double PipeLength1 = 0;  ///< of every pipe, from its free end to the meeting point
    double BaseRad = 0;

    /// Fills results.ModelSurfaceList with the pipes in their order, each cut by two planes that meet on its
    /// axis, half way to either neighbour. Of each List1 is the cut and List2 the free end; see
    /// CRightCylinder for the stations of a RoofOverTracedBase, which begin on the side towards the next
    /// pipe. HalfPattern keeps the halves with y from 0 up. Throws ArithmeticError when the pipes are too
    /// short for their cuts.
    void ConstructModel();

    /// Fills results.PatternSurfaceList with the stretch-outs of all pipes: the first at the origin, the next
    /// ones KerfSpacing to the right of its last station, or above its highest point. The warnings are those
    /// of the pipes.
    void DevelopModel();

  private:
    /// A pipe between its neighbours.
    struct Limb {
        double angleBefore;  ///< to the pipe before it
        double angleAfter;   ///< to the next one
        double turn;         ///< from the first pipe
    };

    [[nodiscard]] std::vector<Limb> Limbs();
    template <typename Make>
    void MakePipes(Make make);
};

/// The angles of a breech in their order.
inline constexpr std::array PipeAnglesOfBreech = {&CBreech::PipeAngle1, &CBreech::PipeAngle2,
                                                  &CBreech::PipeAngle3, &CBreech::PipeAngle4,
                                                  &CBreech::PipeAngle5};

/// The tilt against level, in radians, of the plane half way between two pipes with this angle between them,
/// on either.
double BreechCutAngle(double betweenPipes);

}  // namespace korvet
