#include "core/number_hash.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace korvet {
namespace {

TEST(HashOfNumbers, TellsNumbersTheirOrderAndTheirCountApart) {
    std::set<std::size_t> hashes;
    for (std::int32_t a = -20; a < 20; ++a) {
        hashes.insert(HashOfNumbers(std::vector{a}));
        for (std::int32_t b = -20; b < 20; ++b) {
            hashes.insert(HashOfNumbers(std::vector{a, b}));
            hashes.insert(HashOfNumbers(std::vector{a, b, 0}));
        }
    }
    EXPECT_EQ(hashes.size(), 40U + 2U * 40U * 40U);
}

TEST(HashOfNumbers, FillsEveryPartOfATable) {
    // The corners of texts along an edge: multiples of one step.
    std::set<std::size_t> cells;
    for (std::int32_t i = 0; i < 1000; ++i) {
        cells.insert(HashOfNumbers(std::vector{7200 * i, 36}) % 1024);
    }
    EXPECT_GT(cells.size(), 550U);  // of 637 that chance would fill
}

TEST(HashOfNumbers, GoesOnFromAnother) {
    EXPECT_NE(HashOfNumbers(std::vector{1}, 5), HashOfNumbers(std::vector{1}, 6));
}

}  // namespace
}  // namespace korvet
