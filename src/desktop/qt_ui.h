// The user interface on the desktop: message boxes, file dialogs and the dialogs of the models.
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>

#include "desktop/dialogs/dialog_host.h"
#include "dialogs/user_interface.h"

class QProgressDialog;

namespace korvet::desktop {

class QtUi final : public UserInterface {
  public:
    /// Boxes and dialogs stand over `parent`, or in the middle of the screen while there is none.
    explicit QtUi(QWidget* parent);
    ~QtUi() override;
    void SetParent(QWidget* parent) { parent_ = parent; }

    /// What dialogs that open the global options work with; null until it is made.
    WindowContext* context = nullptr;

    /// Called before a box or a dialog is shown, so that the windows below it show what their models say.
    std::function<void()> beforeModal;

    /// Shows the help topic of a context number, 0 where there is none.
    std::function<void(int)> showHelp;

    Answer Show(const MessageBox& message) override;
    std::optional<std::string> ChooseFile(const FileChoice& choice) override;
    void RunModal(PatternSettingsDialog& dialog) override;
    void RunModal(OptionsDialog& dialog) override;
    void RunModal(DimensionOptionsDialog& dialog) override;
    void RunModal(LabelDialog& dialog) override;
    void RunModal(DxfOptionsDialog& dialog) override;
    void RunModal(RotateDialog& dialog) override;
    void RunModal(BranchAdditionalDialog& dialog) override;
    void RunModal(PrintersDialog& dialog) override;
    bool GoesOn(const WorkProgress& progress) override;

    /// What a dialog that is not one of a model above needs to be shown now.
    [[nodiscard]] DialogHost Host();

  private:
    [[nodiscard]] QWidget* Parent() const;
    void Prepare() const;

    QPointer<QWidget> parent_;
    QString folder_;  ///< of the last file chosen
    std::unique_ptr<QProgressDialog> progress_;
};

}  // namespace korvet::desktop
