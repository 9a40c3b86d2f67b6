// The small steps from the plain models of the windows to widgets and back.
#pragma once

#include <QString>
#include <string>

#include "dialogs/dialog_controls.h"
#include "form/controls.h"

class QAbstractButton;
class QColor;
class QComboBox;
class QLineEdit;
class QPalette;
class QRect;
class QWidget;

namespace korvet::desktop {

/// From twips to pixels and back.
inline constexpr int Pixels(int twips) {
    return twips / TwipsPerPixel;
}
inline constexpr int Twips(int pixels) {
    return pixels * TwipsPerPixel;
}

/// The same of a rectangle.
Place TwipsOf(const QRect& pixels);
QRect PixelsOf(const Place& twips);

inline QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

/// The caption with the mnemonic on the first `letter` in it; without one where it has no such letter.
QString WithMnemonic(const std::string& caption, char letter);

/// A colour of the toolkit as the models have it.
Color ColorFrom(const QColor& color);

/// The colour at `share` of the way from one to another, 0 to 1.
QColor Mixed(const QColor& from, const QColor& to, double share);

/// The red of what is refused or not built yet, readable on the palette's ground.
QColor ReadableRed(const QPalette& palette);

/// Brings a widget into sight, in every frame that it scrolls in.
void RevealWidget(QWidget& widget);

/// Gives a widget its control name, by which tests find it, and the name that a screen reader says.
void NameWidget(QWidget& widget, const std::string& controlName, const QString& accessibleName);

/// Text, enabled state and text colour of a box on its widget. Its signals stay silent.
void ShowBox(QLineEdit& edit, const TextBox& box);

/// The same for a box with a list; the entry that reads as the text is the list's current one. In a box that
/// can't be edited a text that is not in the list still shows. The box's signals stay silent.
void ShowCombo(QComboBox& combo, const ComboBox& box);

/// The selection of a box on its widget.
void ShowSelection(QLineEdit& edit, const TextBox& box);

/// What is selected in a widget into its box; the cursor alone when nothing is.
void TakeSelection(const QLineEdit& edit, TextBox& box);

/// Enabled state, visibility and tool tip of a control on its widget.
void ShowControl(QWidget& widget, const Control& control);

/// Which button of a group is on, and whether the group can be used, on one of its buttons.
void ShowOption(QAbstractButton& button, const OptionGroup& group, std::size_t index);

void ShowCheck(QAbstractButton& button, const CheckBox& box);

}  // namespace korvet::desktop
