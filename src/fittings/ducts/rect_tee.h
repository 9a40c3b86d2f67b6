// Tee of rectangular ducts: its plan, drawn up to the depth of the ducts.
#pragma once

#include "core/fitting.h"

namespace korvet {

/// The values of Dtype.
enum TeeForm : std::int16_t {
    SquareTee = 0,  ///< both outlets square to the inlet
    AngledTee = 1   ///< the left outlet at CenterLineAngle
};

/// Lengths are in the user's unit. The plan lies in x and y, the depth is along z. The inlet, end 1, comes
/// along +x; end 2 goes to the left (+y) and to the right of it.
struct CRectTee {
    FittingInputs inputs;    ///< of these only Dtype is read
    FittingResults results;  ///< ModelSurface; there is no pattern

    double End1PlanWidth = 0;
    double End2LeftPlanWidth = 0;
    double End2RightPlanWidth = 0;  ///< of a SquareTee alone
    double End1Length = 0;          ///< SquareTee: from the inlet to the wall opposite; else to the centre
    double End2LeftLength = 0;      ///< from the inlet's centre line, or the centre, to the end
    double End2RightLength = 0;
    double End1Depth = 0;
    double End2Depth = 0;        ///< held for the caller, as are the laps; not read
    double CenterLineAngle = 0;  ///< between the centre lines of inlet and left outlet, radians; AngledTee
    double SeamLapSmall = 0;
    double SeamLapLarge = 0;

    /// Fills results.ModelSurface: List1 the outline of the plan at z = 0, closed, List2 the same at
    /// End1Depth; all corners are rule stations. A SquareTee has its eight corners, from the inlet's left one
    /// on, which lies at x = 0. An AngledTee has six, from the inlet's right one on, with the centre at the
    /// origin: the wall opposite the inlet runs on straight, by both outlet lengths, at CenterLineAngle - PI,
    /// and back to the inlet. So its right outlet is not laid out, and at no angle is it a tee of three ends.
    /// Sizes are taken as they are; 0 leaves walls of no extent.
    void ConstructModel();

    /// Nothing: the ducts have no pattern.
    void DevelopModel() {}

  private:
    [[nodiscard]] C3DPoints BuildSquarePlan() const;
    [[nodiscard]] C3DPoints BuildAngledPlan() const;
};

}  // namespace korvet
