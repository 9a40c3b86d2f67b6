#include "desktop/dialogs/small_dialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/bindings.h"
#include "desktop/dialogs/parts.h"
#include "dialogs/small_dialogs.h"

namespace korvet::desktop {
namespace {

// Sizes in twips.
constexpr QSize DimensionOptionsSize = {3900, 0};
constexpr QSize LabelSize = {5200, 0};
constexpr QSize DxfOptionsSize = {4600, 0};
constexpr QSize RotateSize = {5340, 0};

QString Indexed(const char* text, std::size_t number) {
    return QString::fromLatin1(text).arg(number);
}

/// The comment lines, which can be edited, and the fixed lines behind them.
QGroupBox* MakeLines(ModelDialog& window, LabelDialog& dialog) {
    QGroupBox* const frame = MakeFrame("Frame3", QStringLiteral("Text"), QStringLiteral("Label text"));
    auto* grid = new QGridLayout(frame);
    int row = 0;
    for (std::size_t i = 0; i < dialog.txtLabelItem.size(); ++i, ++row) {
        TextBox& box = dialog.txtLabelItem.at(i);
        QLineEdit* const edit = MakeEdit("txtLabelItem_" + std::to_string(i), Indexed("Comment %1", i + 1));
        grid->addWidget(MakeLabel(Indexed("Comment &%1:", i + 1), edit), row, 0);
        grid->addWidget(edit, row, 1);
        window.Bind(*edit, box, [&box](const std::string& text) { box.text = text; });
    }
    for (std::size_t j = 0; j < dialog.lblLabelItem.size(); ++j, ++row) {
        QLabel* const label = MakeLabel(Text(dialog.lblLabelItem.at(j)));
        label->setTextFormat(Qt::PlainText);
        NameWidget(*label, "lblLabelItem_" + std::to_string(j), Indexed("Line %1", j + 3));
        label->setAccessibleDescription(label->text());
        grid->addWidget(label, row, 0, 1, 2);
    }
    return frame;
}

/// Where the plotter is: a port of the machine, or the path of another one.
QGroupBox* MakePlotterPort(ModelDialog& window, DxfOptionsDialog& dialog) {
    QGroupBox* const frame =
        MakeFrame("fraPlotterPort", QStringLiteral("Plotter"), QStringLiteral("Plotter"));
    auto* column = new QVBoxLayout(frame);
    auto* row = new QHBoxLayout;
    QComboBox* const port = MakeCombo("cmbPlotterPort", QStringLiteral("Plotter port"), true);
    window.Bind(*port, dialog.cmbPlotterPort,
                [&dialog](const std::string& text) { dialog.cmbPlotterPort.edit.text = text; });
    row->addWidget(MakeLabel(QStringLiteral("Plotter por&t:"), port));
    row->addWidget(port, 1);
    column->addLayout(row);
    auto* options = new QHBoxLayout;
    AddOptions(*options, MakeOptions(window, "optHandshake", dialog.optHandshake, "NXR"));
    column->addLayout(options);
    return frame;
}

}  // namespace

void RunDialog(const DialogHost& host, DimensionOptionsDialog& dialog) {
    constexpr std::array Letters = {'l', 'D', 'g', 't', 'F'};
    ModelDialog window(host, "frmDimensionOptions", "Dimension Options", DimensionOptionsSize,
                       DimensionOptionsDialog::HelpContextID);
    for (std::size_t i = 0; i < dialog.chkDimensions.size(); ++i) {
        window.Body().addWidget(MakeCheck(window, "chkDimensions_" + std::to_string(i),
                                          dialog.chkDimensions.at(i), Letters.at(i),
                                          [&dialog, i](bool checked) { dialog.Click(i, checked); }));
    }
    // Drawn dimensions follow the window's text size: nothing would read a size of their own.
    QLineEdit* const size = MakeEdit("txtTextSize", QStringLiteral("Text size"));
    window.Body().addWidget(size);
    size->hide();
    AddOkAndCancel(window, dialog);
    window.AddHelpButton();
    window.AddOptionsButton();
    RunUntilClosed(window, dialog);
}

void RunDialog(const DialogHost& host, LabelDialog& dialog) {
    ModelDialog window(host, "frmLabelDialog", dialog.caption, LabelSize, LabelDialog::HelpContextID);
    if (dialog.chkDisplayLabel.caption.empty()) {
        dialog.chkDisplayLabel.caption = "Display the label";
    }
    window.Body().addWidget(MakeCheck(window, "chkDisplayLabel", dialog.chkDisplayLabel, 'D'));
    QLabel* const instruction =
        MakeLabel(QStringLiteral("After OK, click in the drawing where the label is to stand."));
    instruction->setWordWrap(true);
    NameWidget(*instruction, "lblInstruction", QStringLiteral("Instruction"));
    instruction->setAccessibleDescription(instruction->text());
    window.ShowBy([instruction, &dialog] { instruction->setVisible(dialog.lblInstructionVisible); });
    window.Body().addWidget(instruction);
    window.Body().addWidget(MakeLines(window, dialog));
    AddOkAndCancel(window, dialog);
    RunUntilClosed(window, dialog);
}

void RunDialog(const DialogHost& host, DxfOptionsDialog& dialog) {
    constexpr std::array Letters = {'u', 'B', 'D', 'm', 'L'};
    ModelDialog window(host, "frmDXFOptions", dialog.caption, DxfOptionsSize,
                       DxfOptionsDialog::HelpContextID);
    QLabel* const type = MakeLabel(Text(dialog.lblExportType));
    NameWidget(*type, "lblExportType", QStringLiteral("Export type"));
    type->setAccessibleDescription(type->text());
    window.Body().addWidget(type);

    QGroupBox* const profiles =
        MakeFrame("fraPolyMode", QStringLiteral("Profiles"), QStringLiteral("Profiles"));
    auto* modes = new QHBoxLayout(profiles);
    AddOptions(*modes, MakeOptions(window, "optPolyMode", dialog.optPolyMode, "ay"));
    window.Body().addWidget(profiles);

    QGroupBox* const output = MakeFrame("fraDXFOutput", QStringLiteral("Output"), QStringLiteral("Output"));
    auto* column = new QVBoxLayout(output);
    for (std::size_t i = 0; i < dialog.chkDXFOutput.size(); ++i) {
        column->addWidget(
            MakeCheck(window, "chkDXFOutput_" + std::to_string(i), dialog.chkDXFOutput.at(i), Letters.at(i)));
    }
    column->addWidget(MakeCheck(window, "chkSurfaceMesh", dialog.chkSurfaceMesh, 's'));
    column->addWidget(MakeCheck(window, "chkComplete", dialog.chkComplete, 'e'));
    window.Body().addWidget(output);
    if (dialog.choosesPort) {
        window.Body().addWidget(MakePlotterPort(window, dialog));
    }
    AddOkAndCancel(window, dialog);
    window.AddHelpButton();
    window.AddOptionsButton();
    RunUntilClosed(window, dialog);
}

void RunDialog(const DialogHost& host, RotateDialog& dialog) {
    ModelDialog window(host, "frmRotate", dialog.caption, RotateSize, RotateDialog::HelpContextID);
    auto* grid = new QGridLayout;
    window.Body().addLayout(grid);
    QLineEdit* const current = MakeEdit("txtAngle_0", QStringLiteral("Current angle"));
    current->setFocusPolicy(Qt::NoFocus);
    QLabel* const label = MakeLabel(Text(dialog.lblAngle));
    NameWidget(*label, "lblAngle", Text(dialog.lblAngle));
    grid->addWidget(label, 0, 0);
    grid->addWidget(current, 0, 1);
    current->setReadOnly(true);  // told, not asked, and so as easy to read as the rest
    current->setText(Text(dialog.txtAngle[0].text));
    const auto moves = MakeOptions(window, "optMove", dialog.optMove, "gm");
    grid->addWidget(moves[RotateDialog::ToAngle], 1, 0, 1, 2);
    grid->addWidget(moves[RotateDialog::ByAmount], 2, 0, 1, 2);
    QLineEdit* const angle = MakeEdit("txtAngle_1", QStringLiteral("Angle"));
    grid->addWidget(MakeLabel(QStringLiteral("&Angle:"), angle), 3, 0);
    grid->addWidget(angle, 3, 1);
    window.Bind(*angle, dialog.txtAngle[1], [&](const std::string& text) { dialog.Change(text); });
    AddOkAndCancel(window, dialog);
    RunUntilClosed(window, dialog, &dialog.focus);
}

}  // namespace korvet::desktop
