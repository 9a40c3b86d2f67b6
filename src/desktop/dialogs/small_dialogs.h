// The small dialogs of a fitting window, each shown until it is left.
#pragma once

#include "desktop/dialogs/dialog_host.h"

namespace korvet::desktop {

void RunDialog(const DialogHost& host, DimensionOptionsDialog& dialog);
void RunDialog(const DialogHost& host, LabelDialog& dialog);
void RunDialog(const DialogHost& host, DxfOptionsDialog& dialog);
void RunDialog(const DialogHost& host, RotateDialog& dialog);

}  // namespace korvet::desktop
