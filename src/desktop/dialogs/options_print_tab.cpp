#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/bindings.h"
#include "desktop/dialogs/options_tabs.h"
#include "desktop/dialogs/parts.h"
#include "desktop/dialogs/print_parts.h"

namespace korvet::desktop {
namespace {

QGroupBox* MakeCalibration(ModelDialog& window, OptionsDialog& dialog) {
    QGroupBox* const frame =
        MakeFrame("fraCalibrate", QStringLiteral("Calibration"), QStringLiteral("Calibration"));
    auto* form = new QFormLayout(frame);
    AddNumber(window, dialog, *form, dialog.txtCalibrate[0], "&X factor:", "Calibration X");
    AddNumber(window, dialog, *form, dialog.txtCalibrate[1], "&Y factor:", "Calibration Y");
    auto* assistant = new QPushButton(QStringLiteral("&Assistant..."));
    assistant->setAutoDefault(false);
    NameWidget(*assistant, "btnCalibAssist", QStringLiteral("Calibration assistant"));
    QObject::connect(assistant, &QPushButton::clicked, &window,
                     [&] { window.Do([&] { dialog.ClickCalibAssist(); }); });
    form->addRow(assistant);
    return frame;
}

QGroupBox* MakeFrameSize(ModelDialog& window, OptionsDialog& dialog) {
    QGroupBox* const frame =
        MakeFrame("fraFrameSize", QStringLiteral("Frame dimensions"), QStringLiteral("Frame dimensions"));
    auto* form = new QFormLayout(frame);
    AddNumber(window, dialog, *form, dialog.txtFrameSize[0], "&Width:", "Frame width");
    AddNumber(window, dialog, *form, dialog.txtFrameSize[1], "Heigh&t:", "Frame height");
    return frame;
}

}  // namespace

QWidget* MakePrintTab(ModelDialog& window, OptionsDialog& dialog) {
    auto* page = new QWidget;
    auto* columns = new QHBoxLayout(page);
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    left->addWidget(MakeScale(
        window, dialog, [&](const std::string& text) { dialog.ChangeNumber(dialog.txtUserScale, text); }));
    left->addWidget(MakeOrientation(window, dialog, "oL"));
    left->addStretch();
    right->addWidget(MakeUnits(window, dialog, "MI"));
    right->addWidget(MakeCalibration(window, dialog));
    right->addWidget(MakeFrameSize(window, dialog));
    right->addStretch();
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    return page;
}

}  // namespace korvet::desktop
