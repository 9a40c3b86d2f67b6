#include "desktop/bindings.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QPalette>
#include <QSignalBlocker>

namespace korvet::desktop {
namespace {

/// Red is the text of an edit that is not in the drawing yet; a dark desktop needs a lighter one to be read.
QColor ReadableRed(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return dark ? QColor(255, 110, 110) : QColor(200, 0, 0);
}

}  // namespace

void NameWidget(QWidget& widget, const std::string& controlName, const QString& accessibleName) {
    widget.setObjectName(Text(controlName));
    widget.setAccessibleName(accessibleName);
}

void ShowBox(QLineEdit& edit, const TextBox& box) {
    const QSignalBlocker silent(edit);
    if (edit.text() != Text(box.text)) {
        edit.setText(Text(box.text));
    }
    edit.setEnabled(box.enabled);
    QPalette palette;
    if (box.textColor == Red) {
        palette.setColor(QPalette::Active, QPalette::Text, ReadableRed(palette));
        palette.setColor(QPalette::Inactive, QPalette::Text, ReadableRed(palette));
    }
    edit.setPalette(palette);
}

void ShowSelection(QLineEdit& edit, const TextBox& box) {
    edit.setSelection(static_cast<int>(box.selectionStart), static_cast<int>(box.selectionLength));
}

void TakeCursor(const QLineEdit& edit, TextBox& box) {
    box.selectionStart = static_cast<std::size_t>(edit.cursorPosition());
    box.selectionLength = 0;
}

void ShowControl(QWidget& widget, const Control& control) {
    widget.setEnabled(control.enabled);
    widget.setVisible(control.visible);
    widget.setToolTip(Text(control.toolTip));
}

void ShowOption(QAbstractButton& button, const OptionGroup& group, std::size_t index) {
    const QSignalBlocker silent(button);
    button.setChecked(group.IsOn(index));
    button.setEnabled(group.enabled);
}

void ShowCheck(QAbstractButton& button, const CheckBox& box) {
    const QSignalBlocker silent(button);
    button.setChecked(box.checked);
    button.setEnabled(box.enabled);
}

}  // namespace korvet::desktop
