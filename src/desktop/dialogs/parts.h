// The parts that several dialogs are put together from. The layouts that they are added to own them.
#pragma once

#include <QString>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/dialogs/model_dialog.h"

class QGroupBox;
class QLabel;

namespace korvet::desktop {

/// A frame with its title. `name` is what a screen reader says.
QGroupBox* MakeFrame(const std::string& controlName, const QString& title, const QString& name);

QLineEdit* MakeEdit(const std::string& controlName, const QString& name);

/// A box with a list; an editable one takes any text and completes none of it.
QComboBox* MakeCombo(const std::string& controlName, const QString& name, bool editable);

/// A label with the mnemonic of the control that it stands for; it is named after its text.
QLabel* MakeLabel(const QString& text, QWidget* buddy = nullptr);

/// The option buttons of an array, in one exclusive group and tied to the model: a mnemonic on the letter of
/// each in `letters`, and `prefix` before the caption in what a screen reader says. Without a `click` the
/// button is selected. The caller lays them out.
std::vector<QRadioButton*> MakeOptions(ModelDialog& window, const std::string& controlName,
                                       OptionGroup& group, std::string_view letters,
                                       const QString& prefix = {},
                                       std::function<void(std::size_t)> click = {});

/// The same, one after the other in a layout.
void AddOptions(QBoxLayout& layout, const std::vector<QRadioButton*>& buttons);

/// A tick box tied to the model, with a mnemonic on `letter`. Without a `click` the tick is stored.
QCheckBox* MakeCheck(ModelDialog& window, const std::string& controlName, CheckBox& box, char letter,
                     std::function<void(bool)> click = {});

/// The OK and Cancel buttons of a dialog.
template <typename Dialog>
void AddOkAndCancel(ModelDialog& window, Dialog& dialog, const std::string& cancelName = "btnCancel") {
    window.AddButton(ModelDialog::Role::Accept, "btnOK", QStringLiteral("OK"), QStringLiteral("OK"),
                     [&dialog] { dialog.ClickOK(); });
    window.AddButton(ModelDialog::Role::Reject, cancelName, QStringLiteral("Cancel"),
                     QStringLiteral("Cancel"), [&dialog] { dialog.ClickCancel(); });
}

/// Shows a dialog until its model is closed.
template <typename Dialog>
void RunUntilClosed(ModelDialog& window, Dialog& dialog, std::string* focus = nullptr) {
    window.Run({[&dialog] { return dialog.visible; }, [&dialog] { dialog.ClickCancel(); }, focus});
}

}  // namespace korvet::desktop
