// The stations of a round fitting that is cut by two planes which meet along a ridge, like a roof.
#pragma once

#include "core/constants.h"
#include "fittings/ring.h"

namespace korvet {

/// A ridge runs along y at x = offset; `radius` is that of the round section at the ridge's height. Both in
/// the user's unit, the offset within the radius.
struct Ridge {
    double radius = 0;
    double offset = 0;
};

/// A station of the walk round a roof.
struct RoofStation {
    double angle = 0;                 ///< plan angle, radians
    bool far = false;                 ///< cut by the plane beyond the ridge; else by the one on its +x side
    bool ridgeEnd = false;            ///< where an end of the ridge meets the wall: both planes cut here
    std::int16_t flag = RuleStation;  ///< for the edge that stays whole: a rule station at ridge ends
    std::int16_t brokenFlag = RuleStation;  ///< for the edge that breaks: a rule corner at ridge ends
};

/// The plan angle in the first half turn at which the ridge meets the wall: radius cos(angle) = offset.
/// Throws ArithmeticError when it does not.
double RidgeAngle(const Ridge& ridge);

/// Visits the stations of a roof: those of a ring, with its start and step and round to the closing one at a
/// full turn whatever its count, and between them one more at each end of the ridge, which leaves the spacing
/// of the others alone and takes no number. A regular station that meets a ridge end comes behind it.
template <typename Visit>
void WalkRoof(const Ring& ring, const Ridge& ridge, Visit visit) {
    const double first = RidgeAngle(ridge);
    const double second = FullTurn - first;
    double t = ring.Start();
    int i = 1;
    const auto visitBelow = [&](double limit, bool far) {
        while (t < limit) {
            visit(RoofStation{t, far, false, AlternatingFlag(i), AlternatingFlag(i)});
            t += ring.Step();
            ++i;
        }
    };
    visitBelow(first, false);
    visit(RoofStation{first, false, true, RuleStation, CornerRuleStation});
    visitBelow(second, true);
    visit(RoofStation{second, true, true, RuleStation, CornerRuleStation});
    visitBelow(ClosingLimit, false);
}

}  // namespace korvet
