#include "desktop/qt_ui.h"

#include <QApplication>
#include <QProgressDialog>

#include "desktop/bindings.h"
#include "desktop/dialogs/branch_dialog.h"
#include "desktop/dialogs/file_dialog.h"
#include "desktop/dialogs/message_box.h"
#include "desktop/dialogs/model_dialog.h"
#include "desktop/dialogs/options_widgets.h"
#include "desktop/dialogs/pattern_settings_widgets.h"
#include "desktop/dialogs/printers_widgets.h"
#include "desktop/dialogs/refusal_frame.h"
#include "desktop/dialogs/small_dialogs.h"

namespace korvet::desktop {

QtUi::QtUi(QWidget* parent) : parent_(parent) {}

QtUi::~QtUi() = default;

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
    const RefusalFrame refused(Parent(), Text(message.control));
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

void QtUi::RunModal(PrintersDialog& dialog) {
    RunDialog(Host(), dialog);
}

/// Short work is over before its box would come up, unless the box must keep the user off the window that
/// waits for it.
bool QtUi::GoesOn(const WorkProgress& progress) {
    const int total = static_cast<int>(progress.total);
    if (progress.done >= progress.total) {
        progress_.reset();
        return true;
    }
    const bool first = !progress_;
    if (first) {
        progress_ = MakeProgressBox(Parent(), total);
    }
    progress_->setLabelText(QString::fromStdString(progress.what));
    if (first && progress.eventsGoOn) {
        progress_->show();
    }
    progress_->setValue(static_cast<int>(progress.done));  // lets the user's click come through
    return !progress_->wasCanceled();
}

}  // namespace korvet::desktop
