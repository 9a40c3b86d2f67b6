// Tables put together from parts that several windows share.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

namespace korvet {

template <typename T>
constexpr std::array<T, 1> AsPart(const T& entry) {
    return {entry};
}
template <typename T, std::size_t N>
constexpr const std::array<T, N>& AsPart(const std::array<T, N>& part) {
    return part;
}

template <typename T, std::size_t... N>
constexpr std::array<T, (N + ...)> JoinedArrays(const std::array<T, N>&... parts) {
    std::array<T, (N + ...)> all = {};
    auto next = all.begin();
    ((next = std::copy(parts.begin(), parts.end(), next)), ...);
    return all;
}

/// One array of all parts in their order, each a single entry or an array of entries.
template <typename... Parts>
constexpr auto Joined(const Parts&... parts) {
    return JoinedArrays(AsPart(parts)...);
}

}  // namespace korvet
