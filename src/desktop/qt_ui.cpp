#include "desktop/qt_ui.h"

#include <QApplication>

#include "desktop/dialogs/branch_dialog.h"
#include "desktop/dialogs/file_dialog.h"
#include "desktop/dialogs/message_box.h"
#include "desktop/dialogs/model_dialog.h"
#include "desktop/dialogs/options_widgets.h"
#include "desktop/dialogs/pattern_settings_widgets.h"
#include "desktop/dialogs/small_dialogs.h"

namespace korvet::desktop {

QtUi::QtUi(QWidget* parent) : parent_(parent) {}

/// The dialog on top if there is one, else the frame once it is on the screen.
QWidget* QtUi::Parent() const {
    if (QWidget* const dialog = QApplication::activeModalWidget()) {
        return dialog;
    }
    return parent_ != nullptr && parent_->isVisible() ? parent_.data() : nullptr;
}

void QtUi::Prepare() const {
    if (beforeModal) {
        beforeModal();
    }
    if (auto* const dialog = dynamic_cast<ModelDialog*>(QApplication::activeModalWidget())) {
        dialog->Project();
    }
}

DialogHost QtUi::Host() {
    Prepare();
    return {Parent(), *this, context, showHelp};
}

Answer QtUi::Show(const MessageBox& message) {
    Prepare();
    return RunMessageBox(Parent(), message);
}

std::optional<std::string> QtUi::ChooseFile(const FileChoice& choice) {
    Prepare();
    return RunFileDialog(Parent(), choice, folder_);
}

void QtUi::RunModal(PatternSettingsDialog& dialog) {
    RunDialog(Host(), dialog);
}

void QtUi::RunModal(OptionsDialog& dialog) {
    RunDialog(Host(), dialog);
}

void QtUi::RunModal(DimensionOptionsDialog& dialog) {
    RunDialog(Host(), dialog);
}

void QtUi::RunModal(LabelDialog& dialog) {
    RunDialog(Host(), dialog);
}

void QtUi::RunModal(DxfOptionsDialog& dialog) {
    RunDialog(Host(), dialog);
}

void QtUi::RunModal(RotateDialog& dialog) {
    RunDialog(Host(), dialog);
}

void QtUi::RunModal(BranchAdditionalDialog& dialog) {
    RunDialog(Host(), dialog);
}

}  // namespace korvet::desktop
