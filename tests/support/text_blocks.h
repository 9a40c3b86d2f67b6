// The text blocks of windows that tell of their sizes, the thickness and the kind of pattern alone.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "tests/support/refusals.h"

namespace korvet {

/// With the sample sizes of each type the text block has these lines for them, as typed, between the two
/// empty comments and the thickness. No line tells which side of the material the sizes mean.
inline void ExpectTextBlocks(const std::string& category,
                             const std::map<int, std::vector<std::string>>& sizesOfTypes) {
    for (const auto& [type, sizes] : sizesOfTypes) {
        for (const bool half : {false, true}) {
            TestShell shell;
            const auto window = shell.OpenSample(category, type);
            window->settings.Thickness = 1.5;
            window->settings.InOutMean = InsideDimension;
            window->settings.HalfPattern = half;
            ASSERT_EQ(window->BuildFitting(), Passed);
            std::vector<std::string> lines = {"", ""};
            lines.insert(lines.end(), sizes.begin(), sizes.end());
            lines.insert(lines.end(), {"Thickness = 1.5", category + (half ? "  Half pattern  21 Nov 2026"
                                                                           : "  Full pattern  21 Nov 2026")});
            EXPECT_EQ(TextBlock(*window), lines);
        }
    }
}

}  // namespace korvet
