// The window of the further options of a branch.
#pragma once

#include "desktop/dialogs/dialog_host.h"
#include "dialogs/branch_additional_dialog.h"

namespace korvet::desktop {

void RunDialog(const DialogHost& host, BranchAdditionalDialog& dialog);

}  // namespace korvet::desktop
