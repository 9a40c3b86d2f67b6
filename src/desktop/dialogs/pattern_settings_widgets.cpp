#include "desktop/dialogs/pattern_settings_widgets.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/bindings.h"
#include "desktop/dialogs/model_dialog.h"
#include "desktop/dialogs/painted_widget.h"
#include "desktop/dialogs/parts.h"
#include "desktop/dialogs/sketches.h"
#include "window/context.h"

namespace korvet::desktop {
namespace {

constexpr QSize SettingsDialogTwips = {7125, 0};
constexpr int HelpContextID = 2020;

/// A box whose text is tested as it is typed, and selected when the user goes to it.
QLineEdit* BoxOf(ModelDialog& window, PatternSettingsDialog& dialog, TextBox& box, const QString& name) {
    QLineEdit* const edit = MakeEdit(box.name, name);
    window.Bind(*edit, box, [&](const std::string& text) { dialog.Change(box, text); });
    window.OnFocus(*edit, [&] { dialog.Focus(box); });
    return edit;
}

/// The three options of where the dimensions are measured, each with a picture of it.
void AddPositions(ModelDialog& window, QGridLayout& grid, int row, const std::string& controlName,
                  OptionGroup& group, const QString& prefix) {
    const auto buttons = MakeOptions(window, controlName, group, "MIO", prefix);
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        auto* picture = new PaintedWidget(
            {Pixels(900), Pixels(300)}, {Pixels(1300), Pixels(480)},
            [i](QPainter& painter, const QWidget& widget) { PaintMeasuredWall(painter, widget, i); });
        NameWidget(*picture, "pbox" + controlName.substr(3) + "_" + std::to_string(i),
                   QStringLiteral("Picture: ") + prefix + Text(group.captions.at(i)));
        grid.addWidget(buttons[i], row + static_cast<int>(i), 0);
        grid.addWidget(picture, row + static_cast<int>(i), 1, Qt::AlignLeft | Qt::AlignVCenter);
    }
}

QGroupBox* MakeMaterial(ModelDialog& window, PatternSettingsDialog& dialog) {
    QGroupBox* const frame = MakeFrame("fraMaterial", QStringLiteral("Material"), QStringLiteral("Material"));
    auto* grid = new QGridLayout(frame);
    QLineEdit* const edit = BoxOf(window, dialog, dialog.txtThickness, QStringLiteral("Thickness"));
    grid->addWidget(MakeLabel(QStringLiteral("&Thickness:"), edit), 0, 0);
    grid->addWidget(edit, 0, 1);
    grid->addWidget(MakeLabel(QStringLiteral("Dimensions are measured on the:")), 1, 0, 1, 2);
    AddPositions(window, *grid, 2, "optInOutMean", dialog.optInOutMean, QStringLiteral("Dimensions "));
    grid->setRowStretch(5, 1);
    window.Bind(*frame, dialog.fraMaterial);
    return frame;
}

QGroupBox* MakeBranchMaterial(ModelDialog& window, PatternSettingsDialog& dialog) {
    QGroupBox* const frame = MakeFrame("fraBranchMaterial", QStringLiteral("Material of branch and trunk"),
                                       QStringLiteral("Material of branch and trunk"));
    auto* grid = new QGridLayout(frame);
    QLineEdit* const branch =
        BoxOf(window, dialog, dialog.txtThicknessA, QStringLiteral("Thickness of branch pipe"));
    grid->addWidget(MakeLabel(QStringLiteral("Thickness of &branch pipe:"), branch), 0, 0);
    grid->addWidget(branch, 0, 1);
    QLineEdit* const trunk =
        BoxOf(window, dialog, dialog.txtThicknessB, QStringLiteral("Thickness of trunk pipe"));
    grid->addWidget(MakeLabel(QStringLiteral("Thickness of t&runk pipe:"), trunk), 1, 0);
    grid->addWidget(trunk, 1, 1);
    grid->addWidget(MakeLabel(QStringLiteral("Dimensions are measured on the: ")), 2, 0, 1, 2);
    AddPositions(window, *grid, 3, "optInOutMeanBranch", dialog.optInOutMeanBranch,
                 QStringLiteral("Branch dimensions "));
    grid->setRowStretch(6, 1);
    window.Bind(*frame, dialog.fraBranchMaterial);
    return frame;
}

QGroupBox* MakeBendLines(ModelDialog& window, PatternSettingsDialog& dialog) {
    QGroupBox* const frame =
        MakeFrame("Frame2", Text(dialog.Frame2.caption), QStringLiteral("Bend lines frame"));
    auto* column = new QVBoxLayout(frame);
    AddOptions(*column, MakeOptions(window, "optFullHalf", dialog.optFullHalf, "Fa"));

    auto* number = new QWidget;
    NameWidget(*number, "pboxSegs", QStringLiteral("Fold lines panel"));
    auto* row = new QHBoxLayout(number);
    row->setContentsMargins(0, 0, 0, 0);
    QComboBox* const combo = MakeCombo("cboSegs", QStringLiteral("Number of fold lines"), true);
    row->addWidget(MakeLabel(QStringLiteral("&Number of fold lines:"), combo));
    row->addWidget(combo, 1);
    column->addWidget(number);
    window.Bind(*combo, dialog.cboSegs,
                [&](const std::string& text) { dialog.Change(dialog.cboSegs.edit, text); });
    return frame;
}

QGroupBox* MakeJoinAngle(ModelDialog& window, PatternSettingsDialog& dialog) {
    QGroupBox* const frame = MakeFrame("fraJoinAngle", WithMnemonic(dialog.fraJoinAngle.caption, 'g'),
                                       QStringLiteral("Join angle frame"));
    auto* column = new QVBoxLayout(frame);
    QComboBox* const combo = MakeCombo("cboJoinAngle", QStringLiteral("Join angle"), true);
    column->addWidget(combo);
    window.Bind(*frame, dialog.fraJoinAngle);
    window.Bind(*combo, dialog.cboJoinAngle,
                [&](const std::string& text) { dialog.Change(dialog.cboJoinAngle.edit, text); });
    return frame;
}

/// One lap size under the name of its edge.
QVBoxLayout* MakeLapSize(ModelDialog& window, PatternSettingsDialog& dialog, std::size_t index,
                         const char* label, const char* name) {
    auto* column = new QVBoxLayout;
    QLineEdit* const edit = BoxOf(window, dialog, dialog.txtLapSize.at(index), QString::fromLatin1(name));
    edit->setMaximumWidth(Pixels(1500));
    column->addWidget(MakeLabel(QString::fromLatin1(label), edit));
    column->addWidget(edit);
    return column;
}

/// The three lap sizes around their sketch, each beside its edge.
void AddLapSizes(ModelDialog& window, PatternSettingsDialog& dialog, QGridLayout& grid) {
    auto* sketch = new PaintedWidget(
        {Pixels(1800), Pixels(1000)}, {Pixels(2200), Pixels(1400)},
        [&](QPainter& painter, const QWidget& widget) {
            PaintLaps(
                painter, widget,
                {dialog.txtLapSize[0].enabled, dialog.txtLapSize[1].enabled, dialog.txtLapSize[2].enabled});
        });
    sketch->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    NameWidget(*sketch, "pboxLapPosition", QStringLiteral("Sketch of the laps"));
    window.ShowBy([sketch] { sketch->update(); });
    grid.addLayout(MakeLapSize(window, dialog, 0, "&1 Top edge:", "Lap size, top edge"), 0, 0,
                   Qt::AlignHCenter);
    grid.addWidget(sketch, 1, 0);
    grid.addLayout(MakeLapSize(window, dialog, 1, "&2 Seam:", "Lap size, seam"), 1, 1, Qt::AlignVCenter);
    grid.addLayout(MakeLapSize(window, dialog, 2, "&3 Base edge:", "Lap size, base edge"), 2, 0,
                   Qt::AlignHCenter);
    grid.setRowStretch(3, 1);
    grid.setColumnStretch(0, 1);
}

QGroupBox* MakeJoinType(ModelDialog& window, PatternSettingsDialog& dialog) {
    QGroupBox* const frame =
        MakeFrame("fraJoinType", QStringLiteral("Join type"), QStringLiteral("Join type"));
    auto* column = new QVBoxLayout(frame);
    auto* row = new QHBoxLayout;
    AddOptions(*row, MakeOptions(window, "optJoinType", dialog.optJoinType, "uL", {},
                                 [&](std::size_t index) { dialog.ClickJoinType(index); }));
    row->addStretch();
    column->addLayout(row);
    QLabel* const label = MakeLabel(QStringLiteral("Lap sizes"));
    NameWidget(*label, "lblLapSize", QStringLiteral("Lap sizes"));
    window.Bind(*label, dialog.lblLapSize);
    column->addWidget(label);
    auto* grid = new QGridLayout;
    column->addLayout(grid, 1);
    AddLapSizes(window, dialog, *grid);
    return frame;
}

QGroupBox* MakeTemplateType(ModelDialog& window, PatternSettingsDialog& dialog) {
    QGroupBox* const frame =
        MakeFrame("fraTemplateType", QStringLiteral("Template type"), QStringLiteral("Template type"));
    auto* column = new QVBoxLayout(frame);
    AddOptions(*column, MakeOptions(window, "optTemplateType", dialog.optTemplateType, "eW"));
    window.Bind(*frame, dialog.fraTemplateType);
    return frame;
}

QGroupBox* MakeKerf(ModelDialog& window, PatternSettingsDialog& dialog) {
    QGroupBox* const frame = MakeFrame("fraKerfSpacing", WithMnemonic(dialog.fraKerfSpacing.caption, 'K'),
                                       QStringLiteral("Kerf spacing frame"));
    auto* column = new QVBoxLayout(frame);
    QLineEdit* const edit = MakeEdit("txtKerfSpacing", QStringLiteral("Kerf spacing"));
    column->addWidget(edit);
    window.Bind(*frame, dialog.fraKerfSpacing);
    window.Bind(*edit, dialog.txtKerfSpacing,
                [&](const std::string& text) { dialog.Change(dialog.txtKerfSpacing, text); });
    return frame;
}

void AddButtons(ModelDialog& window, PatternSettingsDialog& dialog) {
    AddOkAndCancel(window, dialog, "CancelButton");
    window.AddHelpButton();
    window.AddButton(ModelDialog::Role::Other, "btnOptions", QStringLiteral("O&ptions..."),
                     QStringLiteral("Global options"), [&] {
                         if (window.Host().context != nullptr) {
                             dialog.ClickOptions(window.Host().context->files);
                         }
                     });
}

}  // namespace

void RunDialog(const DialogHost& host, PatternSettingsDialog& dialog) {
    ModelDialog window(host, "frmPatternSettings", dialog.caption, SettingsDialogTwips, HelpContextID);
    auto* columns = new QHBoxLayout;
    window.Body().addLayout(columns);
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    left->addWidget(MakeBendLines(window, dialog));
    left->addWidget(MakeJoinAngle(window, dialog));
    left->addWidget(MakeMaterial(window, dialog), 1);
    left->addWidget(MakeBranchMaterial(window, dialog), 1);
    right->addWidget(MakeJoinType(window, dialog), 1);
    right->addWidget(MakeTemplateType(window, dialog));
    right->addWidget(MakeKerf(window, dialog));
    AddButtons(window, dialog);
    RunUntilClosed(window, dialog, &dialog.focus);
}

}  // namespace korvet::desktop
