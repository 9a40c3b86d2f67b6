// The window of a dialog as a projection of its plain model. Whatever the user does goes to the model as an
// event; then everything that the window shows is taken from the model again.
#pragma once

#include <QDialog>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "desktop/dialogs/dialog_host.h"
#include "dialogs/dialog_controls.h"
#include "form/controls.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;

namespace korvet::desktop {

/// What the window asks of the model as a whole.
struct DialogModel {
    std::function<bool()> visible;  ///< false ends the modal run
    std::function<void()> cancel;   ///< Esc and the close box
    std::string* focus = nullptr;   ///< where the checks name the control that is to have the focus
};

class ModelDialog final : public QDialog {
  public:
    /// `minimum` in twips; the window grows with its contents and the font.
    ModelDialog(DialogHost host, const std::string& controlName, const std::string& caption, QSize minimum,
                int helpContext = 0);

    [[nodiscard]] const DialogHost& Host() const { return host_; }

    /// The layout of the controls, above the row of buttons.
    [[nodiscard]] QBoxLayout& Body() { return *bodyLayout_; }

    /// A button of the bottom row and what it does. The names of buttons are those that a reader says.
    enum class Role { Accept, Reject, Help, Other };
    QPushButton& AddButton(Role role, const std::string& controlName, const QString& text,
                           const QString& accessibleName, std::function<void()> event);

    /// The button with the topic of the dialog.
    void AddHelpButton();

    /// The button with the global options on top, open on the tab of what is drawn and exported.
    void AddOptionsButton();

    /// Shows what the model says now: before a message comes up over the dialog, and after every event.
    void Project();

    /// Runs an event of the model, shows what has become of it, and closes when the model did.
    void Do(const std::function<void()>& event);

    /// Adds a step of the projection, which runs after every event.
    void ShowBy(std::function<void()> projection);

    // Each ties a widget to its part of the model, which must outlive the window.
    void Bind(QWidget& widget, const Control& control);
    void Bind(QLineEdit& edit, TextBox& box, std::function<void(const std::string&)> change);
    void Bind(QComboBox& combo, ComboBox& box, std::function<void(const std::string&)> change);
    void Bind(std::span<QRadioButton* const> buttons, const OptionGroup& group,
              std::function<void(std::size_t)> click);
    void Bind(QCheckBox& button, const CheckBox& box, std::function<void(bool)> click);

    /// What a box does when the user goes to it.
    void OnFocus(QWidget& widget, std::function<void()> event);

    /// Shows the window until the model is closed.
    void Run(DialogModel model);

    void reject() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct BoundBox {
        QLineEdit* edit;
        TextBox* box;
    };
    struct FocusEvent {
        QObject* widget;
        std::function<void()> event;
    };

    void ShowFocus();
    void FitToScreen();

    DialogHost host_;
    QSize minimum_;
    QScrollArea* scroll_;
    QBoxLayout* bodyLayout_;
    QDialogButtonBox* buttons_;
    int helpContext_;
    DialogModel model_;
    std::vector<std::function<void()>> projections_;
    std::vector<BoundBox> boxes_;
    std::vector<FocusEvent> focusEvents_;
};

}  // namespace korvet::desktop
