#include "core/number_hash.h"

namespace korvet {

std::size_t HashOfNumbers(std::span<const std::int32_t> numbers, std::uint64_t before) {
    constexpr std::uint64_t Prime = 0x100000001B3;
    constexpr unsigned Half = 32;
    std::uint64_t hash = before;
    for (const std::int32_t number : numbers) {
        hash = (hash ^ static_cast<std::uint32_t>(number)) * Prime;
        hash ^= hash >> Half;
    }
    return static_cast<std::size_t>(hash);
}

}  // namespace korvet
