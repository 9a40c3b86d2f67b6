// The program's decimal constants. They are not the doubles nearest to the true values: patterns cut over the
// years were made with these digits and some of them are compared for equality, so they are used as they
// stand.
#pragma once

#include <array>
#include <string_view>

namespace korvet {

inline constexpr double PI = 3.14159265358979;
inline constexpr double QuarterTurn = 1.570796326794895;
inline constexpr double ThreeQuarterTurns = 4.712388980384685;
inline constexpr double FullTurn = 6.28318530717958;

/// Where a loop over the stations of a whole ring ends: a full turn plus 1e-05, so that the closing station,
/// reached by repeated addition of the step, is let through.
inline constexpr double ClosingLimit = 6.28319530717958;

/// The angles that a file may have to give back to the last bit.
inline constexpr std::array<double, 4> AngleLiterals = {PI, QuarterTurn, ThreeQuarterTurns, FullTurn};

inline constexpr std::string_view ProductTitle = "Korvet Development";
inline constexpr std::string_view ProgramVersion = "3.3.3";

/// Segments of a full circle that the program accepts.
inline constexpr int MinSegs = 1;
inline constexpr int MaxSegs = 100000;

}  // namespace korvet
