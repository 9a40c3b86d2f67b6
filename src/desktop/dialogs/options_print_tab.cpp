#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/bindings.h"
#include "desktop/dialogs/options_tabs.h"
#include "desktop/dialogs/painted_widget.h"
#include "desktop/dialogs/parts.h"
#include "desktop/dialogs/sketches.h"

namespace korvet::desktop {
namespace {

QGroupBox* MakeScale(ModelDialog& window, OptionsDialog& dialog) {
    QGroupBox* const frame = MakeFrame("fraScale", QStringLiteral("Scale"), QStringLiteral("Scale"));
    auto* column = new QVBoxLayout(frame);
    const auto buttons = MakeOptions(window, "optScale", dialog.optScale, "fue", {},
                                     [&](std::size_t index) { dialog.ClickScale(index); });
    QLineEdit* const scale = NumberBox(window, dialog, dialog.txtUserScale, "User scale factor");
    auto* row = new QHBoxLayout;
    column->addWidget(buttons[0]);
    column->addWidget(buttons[1]);
    row->addWidget(buttons[2]);
    row->addWidget(scale, 1);
    column->addLayout(row);
    return frame;
}

QGroupBox* MakeUnits(ModelDialog& window, OptionsDialog& dialog) {
    QGroupBox* const frame = MakeFrame("fraUnits", QStringLiteral("Units"), QStringLiteral("Units"));
    auto* row = new QHBoxLayout(frame);
    AddOptions(*row, MakeOptions(window, "optUnits", dialog.optUnits, "MI"));
    return frame;
}

/// The sketch of the sheet, where the model places it.
QWidget* MakeSheet(ModelDialog& window, OptionsDialog& dialog) {
    auto* area = new QWidget;
    const Place& room = dialog.fraOrientation.place;
    area->setFixedSize(Pixels(room.width), Pixels(room.height));
    auto* sheet = new PaintedWidget({0, 0}, {0, 0}, PaintSheet);
    sheet->setParent(area);
    NameWidget(*sheet, "pboxOrient", QStringLiteral("Sketch of the sheet"));
    auto* printed = new PaintedWidget({0, 0}, {0, 0}, PaintPrinted);
    printed->setParent(sheet);
    NameWidget(*printed, "pboxOrientInner", QStringLiteral("Sketch of the print"));
    const auto put = [](QWidget& widget, const Place& place) { widget.setGeometry(PixelsOf(place)); };
    window.ShowBy([=, &dialog] {
        put(*sheet, dialog.pboxOrient.place);
        put(*printed, dialog.pboxOrientInner.place);
    });
    return area;
}

QGroupBox* MakeOrientation(ModelDialog& window, OptionsDialog& dialog) {
    QGroupBox* const frame =
        MakeFrame("fraOrientation", QStringLiteral("Orientation"), QStringLiteral("Orientation"));
    auto* row = new QHBoxLayout(frame);
    row->addWidget(MakeSheet(window, dialog));
    auto* column = new QVBoxLayout;
    AddOptions(*column, MakeOptions(window, "optOrientation", dialog.optOrientation, "oL", {},
                                    [&](std::size_t index) { dialog.ClickOrientation(index); }));
    column->addStretch();
    row->addLayout(column);
    row->addStretch();
    return frame;
}

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
    left->addWidget(MakeScale(window, dialog));
    left->addWidget(MakeOrientation(window, dialog));
    left->addStretch();
    right->addWidget(MakeUnits(window, dialog));
    right->addWidget(MakeCalibration(window, dialog));
    right->addWidget(MakeFrameSize(window, dialog));
    right->addStretch();
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    return page;
}

}  // namespace korvet::desktop
