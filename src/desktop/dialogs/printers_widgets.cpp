#include "desktop/dialogs/printers_widgets.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/bindings.h"
#include "desktop/dialogs/parts.h"
#include "desktop/dialogs/print_parts.h"

namespace korvet::desktop {
namespace {

constexpr QSize PrintersSize = {5600, 0};  // twips
constexpr int PatienceMilliseconds = 400;

QGroupBox* MakePrinter(ModelDialog& window, PrintersDialog& dialog) {
    QGroupBox* const frame =
        MakeFrame("fraPrinter", QStringLiteral("Printer"), QStringLiteral("Printer and paper"));
    auto* form = new QFormLayout(frame);
    QComboBox* const printers = MakeCombo("cmbPrinters", QStringLiteral("Printer"), false);
    form->addRow(MakeLabel(QStringLiteral("&Name:"), printers), printers);
    window.Bind(*printers, dialog.cmbPrinters, [&](const std::string& name) { dialog.ChoosePrinter(name); });
    QComboBox* const papers = MakeCombo("cmbPapersize", QStringLiteral("Paper size"), false);
    form->addRow(MakeLabel(QStringLiteral("Pa&per:"), papers), papers);
    window.Bind(*papers, dialog.cmbPapersize, [&](const std::string& name) { dialog.ChoosePaper(name); });
    return frame;
}

/// What is to be printed; each button is grey unless there is something for it.
QGroupBox* MakeAction(ModelDialog& window, PrintersDialog& dialog) {
    QGroupBox* const frame =
        MakeFrame("fraAction", QStringLiteral("Print"), QStringLiteral("What is printed"));
    auto* column = new QVBoxLayout(frame);
    const auto buttons = MakeOptions(window, "optAction", dialog.optAction, "A SC", {},
                                     [&](std::size_t index) { dialog.ClickAction(index); });
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        column->addWidget(buttons[i]);
    }
    window.ShowBy([buttons, &dialog] {
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            buttons[i]->setVisible(!dialog.optAction.captions.at(i).empty());
            buttons[i]->setEnabled(dialog.optAction.enabled && dialog.actionEnabled.at(i));
        }
    });
    return frame;
}

}  // namespace

void RunDialog(const DialogHost& host, PrintersDialog& dialog) {
    ModelDialog window(host, "frmPrinters", dialog.caption, PrintersSize, PrintersDialog::HelpContextID);
    window.Body().addWidget(MakePrinter(window, dialog));
    auto* columns = new QHBoxLayout;
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    left->addWidget(MakeOrientation(window, dialog, "oL"));
    left->addWidget(MakeUnits(window, dialog, "MI"));
    left->addStretch();
    right->addWidget(MakeAction(window, dialog));
    right->addWidget(
        MakeScale(window, dialog, [&](const std::string& text) { dialog.ChangeUserScale(text); }));
    right->addStretch();
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    window.Body().addLayout(columns);
    const auto caption = [&](std::size_t index) { return Text(dialog.btnPrint.at(index).caption); };
    window.AddButton(ModelDialog::Role::Accept, "btnPrint_1", caption(PrintersDialog::OkButton),
                     caption(PrintersDialog::OkButton), [&] { dialog.ClickOK(); });
    window.AddButton(ModelDialog::Role::Reject, "btnPrint_2", caption(PrintersDialog::CancelButton),
                     caption(PrintersDialog::CancelButton), [&] { dialog.ClickCancel(); });
    window.AddHelpButton();
    RunUntilClosed(window, dialog, &dialog.focus);
}

std::unique_ptr<QProgressDialog> MakeProgressBox(QWidget* parent, int total) {
    auto box = std::make_unique<QProgressDialog>(QString(), QStringLiteral("Cancel"), 0, total, parent);
    NameWidget(*box, "frmProgress", QStringLiteral("Progress"));
    box->setWindowTitle(QStringLiteral("Progress"));
    box->setWindowModality(Qt::ApplicationModal);  // only Cancel takes input
    box->setMinimumDuration(PatienceMilliseconds);
    box->setAutoClose(false);
    box->setAutoReset(false);
    return box;
}

}  // namespace korvet::desktop
