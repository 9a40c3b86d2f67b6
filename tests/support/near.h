// How near two numbers are that are the same but for rounding.
#pragma once

namespace korvet {

inline constexpr double Near = 1e-9;

}  // namespace korvet
