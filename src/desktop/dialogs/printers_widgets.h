// frmPrinters, and the box that tells how far a document is.
#pragma once

#include <QProgressDialog>
#include <memory>

#include "desktop/dialogs/dialog_host.h"
#include "printing/printers_dialog.h"

namespace korvet::desktop {

/// Shows the dialog until it is closed.
void RunDialog(const DialogHost& host, PrintersDialog& dialog);

/// A box that comes up when the work of `total` steps takes its time, with a Cancel button.
std::unique_ptr<QProgressDialog> MakeProgressBox(QWidget* parent, int total);

}  // namespace korvet::desktop
