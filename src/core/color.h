// Colours by number.
#pragma once

#include <cstdint>

namespace korvet {

/// A 24-bit colour, blue-green-red: red is v & 255, green v >> 8 & 255, blue v >> 16 & 255.
using Color = std::int32_t;

inline constexpr Color Black = 0;
inline constexpr Color Yellow = 65535;
inline constexpr Color Cyan = 16776960;
inline constexpr Color Red = 255;
inline constexpr Color Green = 65280;
inline constexpr Color Magenta = 16711935;

}  // namespace korvet
