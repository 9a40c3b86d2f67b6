#include "dialogs/branch_additional_dialog.h"

namespace korvet {
namespace {

constexpr std::array<std::string_view, 2> SetInBranch = {"The branch pipe is shaped to match the MEAN",
                                                         "surface of the trunk pipe."};
constexpr std::array<std::string_view, 2> SetInHole = {"The hole in the trunk pipe is set to the OUTSIDE ",
                                                       "diameter of the branch pipe."};
constexpr std::array<std::string_view, 2> SetOnBranch = {"The branch pipe is shaped to match the OUTSIDE ",
                                                         "surface (OD) of the trunk pipe."};
constexpr std::array<std::string_view, 2> SetOnHole = {"The hole in the trunk pipe is set to the INSIDE ",
                                                       "diameter (ID) of the branch pipe. "};
constexpr std::array<std::string_view, 4> SetOnHeel = {
    "If the \"Apply Heel Compensation\" option is checked ",
    "the angle of the pipe is adjusted to allow for the ",
    "contact of the outside diameter at the heel of the ", "branch."};
constexpr std::array<std::string_view, 2> MeanBranch = SetInBranch;
constexpr std::array<std::string_view, 2> MeanHole = {"The hole in the trunk pipe is set to the MEAN",
                                                      "diameter of the branch pipe."};

using Description = BranchAdditionalDialog::Description;
constexpr Description SetIn = {"Set In Branch", SetInBranch, SetInHole};
constexpr Description SetOn = {"Set On Branch", SetOnBranch, SetOnHole, SetOnHeel};
constexpr Description MeanToMean = {"Mean to Mean Branch", MeanBranch, MeanHole};

}  // namespace

BranchAdditionalDialog::BranchAdditionalDialog(const BranchOptions& options)
    : optInOrOn{.captions = {"SET-IN type join", "SET-ON type join", "MEAN  to MEAN  type join"}},
      chkHeelCompensation{.caption = "Apply Heel Compensation", .checked = options.heelCompensation},
      fraDescription{{SetIn, SetOn, MeanToMean}} {
    SelectJoin(options.join);
}

void BranchAdditionalDialog::SelectJoin(std::size_t join) {
    optInOrOn.selected = join;
    chkHeelCompensation.enabled = join == SetOnJoin;
    for (std::size_t i = 0; i < fraDescription.size(); ++i) {
        fraDescription.at(i).visible = i == join;
    }
}

void BranchAdditionalDialog::ClickOK() {
    lblStatus = "OK";
    visible = false;
}

void BranchAdditionalDialog::ClickCancel() {
    lblStatus = "Cancel";
    visible = false;
}

BranchOptions BranchAdditionalDialog::Chosen() const {
    return {static_cast<BranchJoin>(optInOrOn.selected.value_or(MeanToMeanJoin)),
            chkHeelCompensation.checked};
}

}  // namespace korvet
