#include "desktop/dialogs/parts.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <utility>

#include "desktop/bindings.h"

namespace korvet::desktop {

QGroupBox* MakeFrame(const std::string& controlName, const QString& title, const QString& name) {
    auto* frame = new QGroupBox(title);
    NameWidget(*frame, controlName, name);
    return frame;
}

QLineEdit* MakeEdit(const std::string& controlName, const QString& name) {
    auto* edit = new QLineEdit;
    NameWidget(*edit, controlName, name);
    return edit;
}

QComboBox* MakeCombo(const std::string& controlName, const QString& name, bool editable) {
    auto* combo = new QComboBox;
    NameWidget(*combo, controlName, name);
    combo->setEditable(editable);
    if (editable) {
        combo->setInsertPolicy(QComboBox::NoInsert);
        combo->setCompleter(nullptr);
        NameWidget(*combo->lineEdit(), controlName + "_text", name + QStringLiteral(", text"));
    }
    return combo;
}

QLabel* MakeLabel(const QString& text, QWidget* buddy) {
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

std::vector<QRadioButton*> MakeOptions(ModelDialog& window, const std::string& controlName,
                                       OptionGroup& group, std::string_view letters, const QString& prefix,
                                       std::function<void(std::size_t)> click) {
    auto* exclusive = new QButtonGroup(&window);
    std::vector<QRadioButton*> buttons;
    for (std::size_t i = 0; i < group.captions.size(); ++i) {
        const std::string& caption = group.captions.at(i);
        auto* button = new QRadioButton(WithMnemonic(caption, letters.at(i)));
        NameWidget(*button, controlName + "_" + std::to_string(i), prefix + Text(caption));
        exclusive->addButton(button);
        buttons.push_back(button);
    }
    if (!click) {
        click = [&group](std::size_t index) { group.selected = index; };
    }
    window.Bind(buttons, group, std::move(click));
    return buttons;
}

void AddOptions(QBoxLayout& layout, const std::vector<QRadioButton*>& buttons) {
    for (QRadioButton* button : buttons) {
        layout.addWidget(button);
    }
}

QCheckBox* MakeCheck(ModelDialog& window, const std::string& controlName, CheckBox& box, char letter,
                     std::function<void(bool)> click) {
    auto* check = new QCheckBox(WithMnemonic(box.caption, letter));
    NameWidget(*check, controlName, Text(box.caption).trimmed());
    if (!click) {
        click = [&box](bool checked) { box.checked = checked; };
    }
    window.Bind(*check, box, std::move(click));
    return check;
}

}  // namespace korvet::desktop
