// The tabs of the global options.
#pragma once

#include <QFormLayout>

#include "desktop/dialogs/model_dialog.h"
#include "dialogs/options_dialog.h"

class QWidget;

namespace korvet::desktop {

/// A box for a number, tested as it is typed.
QLineEdit* NumberBox(ModelDialog& window, OptionsDialog& dialog, TextBox& box, const char* name);

/// The same behind its label.
void AddNumber(ModelDialog& window, OptionsDialog& dialog, QFormLayout& form, TextBox& box, const char* label,
               const char* name);

// Each makes the page of one tab.
QWidget* MakeGeneralTab(ModelDialog& window, OptionsDialog& dialog);
QWidget* MakeDisplayTab(ModelDialog& window, OptionsDialog& dialog);
QWidget* MakePrintTab(ModelDialog& window, OptionsDialog& dialog);
QWidget* MakeDxfTab(ModelDialog& window, OptionsDialog& dialog);

}  // namespace korvet::desktop
