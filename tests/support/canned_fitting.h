// A fitting that makes what a test laid into it, and counts.
#pragma once

#include <optional>

#include "core/checked.h"
#include "core/fitting.h"

namespace korvet {

/// A fitting whose builds put forth what the test laid into it.
struct CannedFitting {
    FittingInputs inputs;
    FittingResults results;
    FittingResults canned;
    int developed = 0;
    int constructed = 0;
    bool fails = false;            ///< a build leaves its warnings and fails
    std::optional<int> failsFrom;  ///< so does every DevelopModel from this one on, counted from 1

    void ConstructModel() {
        ++constructed;
        Produce();
    }
    void DevelopModel() {
        ++developed;
        Produce();
    }

  private:
    void Produce() {
        results = canned;
        if (fails || (failsFrom && developed >= *failsFrom)) {
            throw ArithmeticError("no shape");
        }
    }
};

}  // namespace korvet
