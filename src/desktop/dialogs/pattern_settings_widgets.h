// frmPatternSettings: the settings of one fitting's pattern.
#pragma once

#include "desktop/dialogs/dialog_host.h"

namespace korvet::desktop {

/// Shows the dialog until it is left. Its model must be ready to be shown.
void RunDialog(const DialogHost& host, PatternSettingsDialog& dialog);

}  // namespace korvet::desktop
