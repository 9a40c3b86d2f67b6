// How a branch pipe is joined to its trunk.
#pragma once

#include <cstddef>

namespace korvet {

/// By index of the option buttons, and in parameter files.
enum BranchJoin : std::size_t {
    SetInJoin = 0,      ///< the branch reaches into a hole of its outside diameter
    SetOnJoin = 1,      ///< the branch stands on the trunk around a hole of its inside diameter
    MeanToMeanJoin = 2  ///< both are cut along their mean surfaces
};

struct BranchOptions {
    BranchJoin join = MeanToMeanJoin;
    bool heelCompensation = false;  ///< a set-on branch leans until its outside touches at the heel
};

}  // namespace korvet
