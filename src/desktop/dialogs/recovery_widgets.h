// The choice that a start offers after a run that ended badly.
#pragma once

#include "desktop/dialogs/dialog_host.h"

namespace korvet {
struct RecoveryDialog;
}

namespace korvet::desktop {

/// Shows it until a button is pressed; Esc and the close box leave everything for later.
void RunDialog(const DialogHost& host, RecoveryDialog& dialog);

}  // namespace korvet::desktop
