// What the global options and the dialog of printers have in common: scale, units and orientation.
#pragma once

#include <QBoxLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <functional>
#include <string>
#include <string_view>

#include "desktop/bindings.h"
#include "desktop/dialogs/model_dialog.h"
#include "desktop/dialogs/parts.h"

namespace korvet::desktop {

/// The sketch of a sheet in its frame, where the model places its parts.
QWidget* MakeSheet(ModelDialog& window, const Control& frame, const Control& sheet, const Control& print);

/// optScale, with the box of the user scale in its last row.
template <typename Dialog>
QGroupBox* MakeScale(ModelDialog& window, Dialog& dialog, std::function<void(const std::string&)> change) {
    QGroupBox* const frame = MakeFrame("fraScale", QStringLiteral("Scale"), QStringLiteral("Scale"));
    auto* column = new QVBoxLayout(frame);
    const auto buttons = MakeOptions(window, "optScale", dialog.optScale, "fue", {},
                                     [&](std::size_t index) { dialog.ClickScale(index); });
    QLineEdit* const scale = MakeEdit("txtUserScale", QStringLiteral("User scale factor"));
    window.Bind(*scale, dialog.txtUserScale, std::move(change));
    auto* row = new QHBoxLayout;
    column->addWidget(buttons[0]);
    column->addWidget(buttons[1]);
    row->addWidget(buttons[2]);
    row->addWidget(scale, 1);
    column->addLayout(row);
    return frame;
}

template <typename Dialog>
QGroupBox* MakeUnits(ModelDialog& window, Dialog& dialog, std::string_view letters) {
    QGroupBox* const frame = MakeFrame("fraUnits", QStringLiteral("Units"), QStringLiteral("Units"));
    auto* row = new QHBoxLayout(frame);
    AddOptions(*row, MakeOptions(window, "optUnits", dialog.optUnits, letters));
    return frame;
}

/// optOrientation beside the sketch of the sheet.
template <typename Dialog>
QGroupBox* MakeOrientation(ModelDialog& window, Dialog& dialog, std::string_view letters) {
    QGroupBox* const frame =
        MakeFrame("fraOrientation", QStringLiteral("Orientation"), QStringLiteral("Orientation"));
    auto* row = new QHBoxLayout(frame);
    row->addWidget(MakeSheet(window, dialog.fraOrientation, dialog.pboxOrient, dialog.pboxOrientInner));
    auto* column = new QVBoxLayout;
    AddOptions(*column, MakeOptions(window, "optOrientation", dialog.optOrientation, letters, {},
                                    [&](std::size_t index) { dialog.ClickOrientation(index); }));
    column->addStretch();
    row->addLayout(column);
    row->addStretch();
    return frame;
}

}  // namespace korvet::desktop
