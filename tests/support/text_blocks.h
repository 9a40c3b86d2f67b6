// The text blocks of windows that tell of their sizes, the thickness and the kind of pattern alone.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "tests/support/refusals.h"

namespace korvet {

/// The text block of a build: two empty comments, these lines for the sizes, the thickness, and the category
/// with the pattern. No line tells which side of the material the sizes mean.
inline void ExpectTextBlock(CFittingWindow& window, const std::vector<std::string>& sizes,
                            const std::string& pattern = "Full pattern") {
    window.settings.Thickness = 1.5;
    window.settings.PositionString = "inside";
    ASSERT_EQ(window.BuildFitting(), Passed);
    std::vector<std::string> lines = {"", ""};
    lines.insert(lines.end(), sizes.begin(), sizes.end());
    lines.insert(lines.end(), {"Thickness = 1.5", window.category + "  " + pattern + "  21 Nov 2026"});
    EXPECT_EQ(TextBlock(window), lines);
}

/// The sample of each type has these lines for its sizes, as typed, whole and as a half. A fitting without a
/// half (`hasHalf`) does not tell of one that a file asks for.
inline void ExpectTextBlocks(const std::string& category,
                             const std::map<int, std::vector<std::string>>& sizesOfTypes,
                             bool hasHalf = true) {
    for (const auto& [type, sizes] : sizesOfTypes) {
        for (const bool half : {false, true}) {
            TestShell shell;
            const auto window = shell.OpenSample(category, type);
            window->settings.InOutMean = InsideDimension;
            window->settings.HalfPattern = half;
            ExpectTextBlock(*window, sizes, half && hasHalf ? "Half pattern" : "Full pattern");
        }
    }
}

}  // namespace korvet
