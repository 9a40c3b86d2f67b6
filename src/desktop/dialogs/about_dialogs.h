// The windows that tell about the program.
#pragma once

#include "desktop/dialogs/dialog_host.h"

namespace korvet {
struct AboutDialog;
struct DisclaimerDialog;
struct SplashDialog;
}  // namespace korvet

namespace korvet::desktop {

/// The first window; its About button opens the other one on top.
void RunDialog(const DialogHost& host, const SplashDialog& dialog);
void RunDialog(const DialogHost& host, const AboutDialog& dialog);
void RunDialog(const DialogHost& host, const DisclaimerDialog& dialog);

}  // namespace korvet::desktop
