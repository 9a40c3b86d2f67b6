// How a branch is joined to its trunk: the further options of the branch windows, as a plain model.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "core/branch_options.h"
#include "form/controls.h"

namespace korvet {

struct BranchAdditionalDialog {
    /// What one join type does to the two pipes. Only the one that is selected is shown.
    struct Description {
        std::string_view caption;
        std::span<const std::string_view> branch;     ///< lines about the branch pipe
        std::span<const std::string_view> hole;       ///< lines about the hole in the trunk
        std::span<const std::string_view> heel = {};  ///< lines about the heel, if it matters
        bool visible = false;
    };

    explicit BranchAdditionalDialog(const BranchOptions& options);

    std::string caption = "Additional Options";
    std::string fraBranchTypes = "Branch Types";
    OptionGroup optInOrOn;  ///< by BranchJoin
    CheckBox chkHeelCompensation;
    std::array<Description, 3> fraDescription;  ///< by BranchJoin
    std::string lblStatus;
    bool visible = true;  ///< false ends the modal run

    /// Selects a join type. The heel is a matter of a set-on branch alone.
    void SelectJoin(std::size_t join);
    void ClickOK();
    void ClickCancel();  ///< also for Esc and the close box

    [[nodiscard]] BranchOptions Chosen() const;
};

}  // namespace korvet
