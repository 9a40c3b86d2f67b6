// The dialogs that ask for a file's name.
#pragma once

#include <QString>
#include <optional>
#include <string>

#include "dialogs/user_interface.h"

class QWidget;

namespace korvet::desktop {

/// The path that the user chose, or nothing. `folder` is where the dialog opens; empty, or gone: in the
/// folder of the choice. After a choice it is the chosen file's. To open, the file must exist. To save, its
/// folder must, a name without a suffix gets that of the filter, and a file that is there already is only
/// replaced after a question.
std::optional<std::string> RunFileDialog(QWidget* parent, const FileChoice& choice, QString& folder);

}  // namespace korvet::desktop
