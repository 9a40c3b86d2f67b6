// Hashes of whole numbers, for tables that are asked millions of times.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace korvet {

/// A hash of the numbers in their order, going on from `before` (FNV-1a by numbers in place of bytes, with
/// the upper half folded in).
std::size_t HashOfNumbers(std::span<const std::int32_t> numbers, std::uint64_t before = 0xCBF29CE484222325);

}  // namespace korvet
