// frmOptions: the global options.
#pragma once

#include "desktop/dialogs/dialog_host.h"

namespace korvet::desktop {

/// Shows the dialog, open on the tab of its model, until it is left.
void RunDialog(const DialogHost& host, OptionsDialog& dialog);

}  // namespace korvet::desktop
