#include "desktop/bindings.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QColor>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QRect>
#include <QScrollArea>
#include <QSignalBlocker>

namespace korvet::desktop {
namespace {

QStringList Entries(const ComboBox& box) {
    QStringList entries;
    for (const std::string& entry : box.list) {
        entries.append(Text(entry));
    }
    return entries;
}

QStringList Entries(const QComboBox& combo) {
    QStringList entries;
    for (int i = 0; i < combo.count(); ++i) {
        entries.append(combo.itemText(i));
    }
    return entries;
}

}  // namespace

Place TwipsOf(const QRect& pixels) {
    return {Twips(pixels.x()), Twips(pixels.y()), Twips(pixels.width()), Twips(pixels.height())};
}

QRect PixelsOf(const Place& twips) {
    return {Pixels(twips.left), Pixels(twips.top), Pixels(twips.width), Pixels(twips.height)};
}

QString WithMnemonic(const std::string& caption, char letter) {
    QString text = Text(caption);
    const auto at = text.indexOf(QLatin1Char(letter));
    if (at < 0) {
        return text.replace(QLatin1Char('&'), QLatin1String("&&"));
    }
    const auto plain = [&](const QString& part) {
        return QString(part).replace(QLatin1Char('&'), QLatin1String("&&"));
    };
    return plain(text.left(at)) + QLatin1Char('&') + plain(text.mid(at));
}

Color ColorFrom(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}

QColor Mixed(const QColor& from, const QColor& to, double share) {
    const auto part = [share](float a, float b) { return a + static_cast<float>(share) * (b - a); };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()));
}

QColor ReadableRed(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return dark ? QColor(255, 110, 110) : QColor(200, 0, 0);
}

/// The toolkit's own call is content when the cursor of a box can be seen.
void RevealWidget(QWidget& widget) {
    constexpr int Around = 10;  // pixels that are to be seen with it
    for (QWidget* parent = widget.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        if (auto* scroll = qobject_cast<QScrollArea*>(parent)) {
            const QPoint middle = widget.mapTo(scroll->widget(), widget.rect().center());
            scroll->ensureVisible(middle.x(), middle.y(), widget.width() / 2 + Around,
                                  widget.height() / 2 + Around);
        }
    }
}

void NameWidget(QWidget& widget, const std::string& controlName, const QString& accessibleName) {
    widget.setObjectName(Text(controlName));
    widget.setAccessibleName(accessibleName);
}

void ShowBox(QLineEdit& edit, const TextBox& box) {
    const QSignalBlocker silent(edit);
    if (edit.text() != Text(box.text)) {
        const auto behindCursor = edit.text().size() - edit.cursorPosition();
        edit.setText(Text(box.text));
        edit.setCursorPosition(static_cast<int>(edit.text().size() - behindCursor));
    }
    edit.setEnabled(box.enabled);
    for (QLabel* label :
         edit.parentWidget() != nullptr ? edit.parentWidget()->findChildren<QLabel*>() : QList<QLabel*>()) {
        if (label->buddy() == &edit) {
            label->setEnabled(box.enabled);  // a label that can be read asks for a box that can be used
        }
    }
    QPalette palette;
    if (box.textColor == Red) {
        palette.setColor(QPalette::Active, QPalette::Text, ReadableRed(palette));
        palette.setColor(QPalette::Inactive, QPalette::Text, ReadableRed(palette));
    }
    edit.setPalette(palette);
}

void ShowCombo(QComboBox& combo, const ComboBox& box) {
    const QSignalBlocker silent(combo);
    const QString text = Text(box.edit.text);
    const QStringList entries = Entries(box);
    if (Entries(combo) != entries) {
        combo.clear();
        combo.addItems(entries);
    }
    const int index = static_cast<int>(entries.indexOf(text));
    if (combo.isEditable()) {
        const QSignalBlocker silentEdit(combo.lineEdit());
        if (combo.currentIndex() != index) {
            const int cursor = combo.lineEdit()->cursorPosition();
            combo.setCurrentIndex(index);
            combo.setEditText(text);
            combo.lineEdit()->setCursorPosition(cursor);
        }
        ShowBox(*combo.lineEdit(), box.edit);
    } else {
        combo.setPlaceholderText(text);
        combo.setCurrentIndex(index);
    }
    combo.setEnabled(box.edit.enabled);
}

void ShowSelection(QLineEdit& edit, const TextBox& box) {
    edit.setSelection(static_cast<int>(box.selectionStart), static_cast<int>(box.selectionLength));
}

void TakeSelection(const QLineEdit& edit, TextBox& box) {
    const bool selected = edit.hasSelectedText();
    box.selectionStart = static_cast<std::size_t>(selected ? edit.selectionStart() : edit.cursorPosition());
    box.selectionLength = static_cast<std::size_t>(edit.selectionLength());
}

void ShowControl(QWidget& widget, const Control& control) {
    widget.setEnabled(control.enabled);
    widget.setVisible(control.visible);
    widget.setToolTip(Text(control.toolTip));
}

void ShowOption(QAbstractButton& button, const OptionGroup& group, std::size_t index) {
    const QSignalBlocker silent(button);
    QButtonGroup* const others = button.group();
    if (others != nullptr && !group.selected) {
        // An exclusive group would keep its last button on.
        others->setExclusive(false);
        button.setChecked(false);
        others->setExclusive(true);
    } else {
        button.setChecked(group.IsOn(index));
    }
    button.setEnabled(group.enabled);
}

void ShowCheck(QAbstractButton& button, const CheckBox& box) {
    const QSignalBlocker silent(button);
    button.setChecked(box.checked);
    button.setEnabled(box.enabled);
}

}  // namespace korvet::desktop
