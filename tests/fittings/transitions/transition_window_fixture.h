// The windows of transitions in tests.
#pragma once

#include <string>

#include "fittings/transitions/transition.h"
#include "tests/support/refusals.h"

namespace korvet {

inline const std::string RectRound1 = "Rectangle to Round";
inline const std::string RectRound2 = "Rectangle (Radius) to Round";
inline const std::string RectEllipse = "Rectangle to Ellipse";
inline const std::string Folded = "Rectangle to Rectangle (folded)";
inline const std::string Oval = "Oval to Oval";

/// The transition of a window whose sizes are good.
inline const CTransition& Built(CFittingWindow& window) {
    return Built<CTransition>(window);
}

inline void ExpectLevel(const CTransition& transition) {
    EXPECT_EQ(transition.TopTiltX, 0);
    EXPECT_EQ(transition.TopTiltY, 0);
    EXPECT_EQ(transition.BaseTiltX, 0);
    EXPECT_EQ(transition.BaseTiltY, 0);
}

}  // namespace korvet
