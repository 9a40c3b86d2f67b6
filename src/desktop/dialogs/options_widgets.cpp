#include "desktop/dialogs/options_widgets.h"

#include <QColorDialog>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "desktop/bindings.h"
#include "desktop/dialogs/options_tabs.h"
#include "desktop/dialogs/painted_widget.h"
#include "desktop/dialogs/parts.h"
#include "platform/painter_device.h"

namespace korvet::desktop {
namespace {

constexpr QSize OptionsDialogTwips = {7400, 0};

/// Decimal places, a list of which one is always picked.
void AddDecimals(ModelDialog& window, OptionsDialog& dialog, QFormLayout& form) {
    QComboBox* const combo = MakeCombo("cmbDecimals", QStringLiteral("Decimal places"), false);
    for (const std::string& caption : dialog.cmbDecimals.captions) {
        combo->addItem(Text(caption));
    }
    form.addRow(MakeLabel(QStringLiteral("Deci&mal places:"), combo), combo);
    window.ShowBy([combo, &dialog] {
        const QSignalBlocker silent(combo);
        combo->setCurrentIndex(dialog.cmbDecimals.selected ? static_cast<int>(*dialog.cmbDecimals.selected)
                                                           : -1);
    });
    QObject::connect(combo, &QComboBox::currentIndexChanged, &window, [&](int index) {
        window.Do([&] { dialog.cmbDecimals.selected = static_cast<std::size_t>(index); });
    });
}

/// Lets the user pick another colour for a swatch; without a choice it stays.
void PickColor(ModelDialog& window, OptionsDialog& dialog, ColorSwatch& swatch) {
    QColorDialog picker(ColorOf(swatch.backColor), &window);
    NameWidget(picker, "dlgColor", QStringLiteral("Select colour"));
    if (picker.exec() == QDialog::Accepted) {
        dialog.StoreColor(swatch, ColorFrom(picker.selectedColor()));
    }
}

void AddSwatch(ModelDialog& window, OptionsDialog& dialog, QFormLayout& form, ColorSwatch& swatch,
               const char* label, const char* name) {
    auto* patch = new ColorPatch;
    NameWidget(*patch, swatch.name, QString::fromLatin1(name));
    patch->setToolTip(QStringLiteral("Click for another colour"));
    form.addRow(MakeLabel(QString::fromLatin1(label), patch), patch);
    window.ShowBy([patch, &swatch] { patch->SetColor(ColorOf(swatch.backColor)); });
    QObject::connect(patch, &ColorPatch::clicked, &window,
                     [&] { window.Do([&] { PickColor(window, dialog, swatch); }); });
}

void AddLayer(ModelDialog& window, QFormLayout& form, TextBox& box, const char* label, const char* name) {
    constexpr int LongestLayerName = 255;  // of drawing programs
    QLineEdit* const edit = MakeEdit(box.name, QString::fromLatin1(name));
    edit->setMaxLength(LongestLayerName);
    form.addRow(MakeLabel(QString::fromLatin1(label), edit), edit);
    window.Bind(*edit, box, [&box](const std::string& text) { box.text = text; });
}

void AddTabs(ModelDialog& window, OptionsDialog& dialog) {
    auto* tabs = new QTabWidget;
    NameWidget(*tabs, "SSTab2", QStringLiteral("Options"));
    tabs->addTab(MakeGeneralTab(window, dialog), QStringLiteral("&General"));
    tabs->addTab(MakeDisplayTab(window, dialog), QStringLiteral("&Display"));
    tabs->addTab(MakePrintTab(window, dialog), QStringLiteral("&Printing"));
    tabs->addTab(MakeDxfTab(window, dialog), QStringLiteral("DXF and dimensio&ns"));
    window.Body().addWidget(tabs);
    window.ShowBy([tabs, &dialog] {
        const QSignalBlocker silent(tabs);
        tabs->setCurrentIndex(dialog.tab - OptionsDialog::GeneralTab);
    });
    QObject::connect(tabs, &QTabWidget::currentChanged, &window,
                     [&](int index) { window.Do([&] { dialog.tab = index + OptionsDialog::GeneralTab; }); });
}

}  // namespace

QLineEdit* NumberBox(ModelDialog& window, OptionsDialog& dialog, TextBox& box, const char* name) {
    QLineEdit* const edit = MakeEdit(box.name, QString::fromLatin1(name));
    window.Bind(*edit, box, [&](const std::string& text) { dialog.ChangeNumber(box, text); });
    return edit;
}

void AddNumber(ModelDialog& window, OptionsDialog& dialog, QFormLayout& form, TextBox& box, const char* label,
               const char* name) {
    QLineEdit* const edit = NumberBox(window, dialog, box, name);
    form.addRow(MakeLabel(QString::fromLatin1(label), edit), edit);
}

QWidget* MakeGeneralTab(ModelDialog& window, OptionsDialog& dialog) {
    auto* page = new QWidget;
    auto* form = new QFormLayout(page);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    QComboBox* const language = MakeCombo("cmbLanguage", QStringLiteral("Language"), false);
    form->addRow(MakeLabel(QStringLiteral("&Language:"), language), language);
    window.Bind(*language, dialog.cmbLanguage,
                [&](const std::string& text) { dialog.cmbLanguage.edit.text = text; });
    AddDecimals(window, dialog, *form);
    QComboBox* const segs = MakeCombo("CmbDefaultSegs", QStringLiteral("Default number of fold lines"), true);
    form->addRow(MakeLabel(QStringLiteral("Default number of &fold lines:"), segs), segs);
    window.Bind(*segs, dialog.CmbDefaultSegs, [&](const std::string& text) { dialog.ChangeSegs(text); });
    return page;
}

QWidget* MakeDisplayTab(ModelDialog& window, OptionsDialog& dialog) {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    auto* size = new QFormLayout;
    size->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    column->addLayout(size);
    AddNumber(window, dialog, *size, dialog.txtDisplayTextSize, "&Text height:", "Display text height");
    QGroupBox* const frame = MakeFrame("fraColors", QStringLiteral("Colours"), QStringLiteral("Colours"));
    column->addWidget(frame);
    auto* form = new QFormLayout(frame);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    AddSwatch(window, dialog, *form, dialog.pboxDisplayCutColor, "&Cut lines:", "Colour of cut lines");
    AddSwatch(window, dialog, *form, dialog.pboxDisplayFoldColor, "&Fold lines:", "Colour of fold lines");
    AddSwatch(window, dialog, *form, dialog.pboxDisplayBackColor, "&Background:", "Colour of the background");
    AddSwatch(window, dialog, *form, dialog.pboxDisplayTextColor, "Te&xt:", "Colour of text");
    AddSwatch(window, dialog, *form, dialog.pboxDisplayDimensionColor,
              "Di&mensions:", "Colour of dimensions");
    column->addStretch();
    return page;
}

QWidget* MakeDxfTab(ModelDialog& window, OptionsDialog& dialog) {
    auto* page = new QWidget;
    auto* columns = new QHBoxLayout(page);
    QGroupBox* const layers =
        MakeFrame("fraLayers", QStringLiteral("Layer names"), QStringLiteral("Layer names"));
    columns->addWidget(layers, 1, Qt::AlignTop);
    auto* form = new QFormLayout(layers);
    AddLayer(window, *form, dialog.txtDXFCutLayer, "&Cut lines:", "Layer of cut lines");
    AddLayer(window, *form, dialog.txtDXFFoldLayer, "&Fold lines:", "Layer of fold lines");
    AddLayer(window, *form, dialog.txtDXFTextLayer, "&Text:", "Layer of text");
    AddLayer(window, *form, dialog.txtDXFBorderLayer, "&Border:", "Layer of the border");
    AddLayer(window, *form, dialog.txtDXFDimensionLayer, "Di&mensions:", "Layer of dimensions");
    auto* right = new QVBoxLayout;
    columns->addLayout(right, 1);
    auto* size = new QFormLayout;
    right->addLayout(size);
    AddNumber(window, dialog, *size, dialog.txtDXFTextSize, "Te&xt height:", "DXF text height");
    QGroupBox* const profiles =
        MakeFrame("fraPolyMode", QStringLiteral("Profiles"), QStringLiteral("Profiles"));
    right->addWidget(profiles);
    right->addStretch();
    auto* modes = new QVBoxLayout(profiles);
    AddOptions(*modes, MakeOptions(window, "optPolyMode", dialog.optPolyMode, "ay"));
    return page;
}

void RunDialog(const DialogHost& host, OptionsDialog& dialog) {
    ModelDialog window(host, "frmOptions", dialog.caption, OptionsDialogTwips, OptionsDialog::HelpContextID);
    AddTabs(window, dialog);
    AddOkAndCancel(window, dialog);
    window.AddButton(ModelDialog::Role::Other, "btnSave", QStringLiteral("&Save"), QStringLiteral("Save"),
                     [&] { dialog.ClickSave(); });
    window.AddHelpButton();
    RunUntilClosed(window, dialog, &dialog.focus);
}

}  // namespace korvet::desktop
