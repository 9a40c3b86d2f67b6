// All dialogs of the program, each with something in it.
#pragma once

#include <QDialog>
#include <QString>
#include <functional>
#include <map>

#include "desktop/dialogs/about_dialogs.h"
#include "desktop/dialogs/recovery_widgets.h"
#include "dialogs/branch_additional_dialog.h"
#include "dialogs/options_dialog.h"
#include "dialogs/small_dialogs.h"
#include "frame/about.h"
#include "frame/recovery.h"
#include "printing/printers_dialog.h"
#include "tests/desktop/dialogs_fixture.h"

namespace korvet::desktop {

inline CPatternSettings AllOffered() {
    CPatternSettings settings;
    settings.LapEnable = AllLaps;
    settings.JoinType = 1;
    settings.LapSize0 = settings.LapSize1 = settings.LapSize2 = 12.5;
    settings.KerfEnabled = settings.TemplateTypeEnabled = true;
    return settings;
}

inline CLabels LongBlock() {
    CLabels labels;
    for (int i = 1; i <= 9; ++i) {
        labels.Add({"Diameter at the base of the cone = " + std::to_string(100 * i)});
    }
    return labels;
}

/// A way to show each dialog, under the name of its picture.
inline std::map<QString, std::function<void(DialogDesk&)>> AllDialogs() {
    std::map<QString, std::function<void(DialogDesk&)>> all;
    all["settings"] = [](DialogDesk& desk) {
        CPatternSettings settings = AllOffered();
        (void)LoadDialog(desk.settings, settings, desk.ui, desk.options, '.');
    };
    all["settings-grey"] = [](DialogDesk& desk) {
        CPatternSettings settings;
        settings.HalfPatternDisable = settings.JoinAngleDisable = settings.MaterialDisable = true;
        (void)LoadDialog(desk.settings, settings, desk.ui, desk.options, '.');
    };
    all["settings-branch"] = [](DialogDesk& desk) {
        CPatternSettings settings = AllOffered();
        settings.BranchMaterialEnable = true;
        (void)LoadDialog(desk.settings, settings, desk.ui, desk.options, '.');
    };
    for (int tab = OptionsDialog::GeneralTab; tab <= OptionsDialog::DxfTab; ++tab) {
        all[QStringLiteral("options-%1").arg(tab)] = [tab](DialogDesk& desk) {
            OptionsDialog dialog(desk.options, desk.ui, desk.files, '.', tab);
            desk.ui.RunModal(dialog);
        };
    }
    all["dimension-options"] = [](DialogDesk& desk) {
        DimensionOptionsDialog dialog;
        desk.ui.RunModal(dialog);
    };
    all["label"] = [](DialogDesk& desk) {
        LabelDialog dialog;
        dialog.Load(LongBlock(), false, false);
        desk.ui.RunModal(dialog);
    };
    all["export"] = [](DialogDesk& desk) {
        DxfOptionsDialog dialog;
        dialog.caption = "Exporting /home/user/flat.DXF";
        dialog.lblExportType = "Exporting unfolded pattern";
        desk.ui.RunModal(dialog);
    };
    all["export-plotter"] = [](DialogDesk& desk) {
        DxfOptionsDialog dialog;
        dialog.caption = "Exporting /home/user/.local/share/Korvet Development/Transfer.plt";
        dialog.lblExportType = "Exporting unfolded pattern";
        dialog.toPlotter = dialog.choosesPort = true;
        dialog.optPolyMode.enabled = false;
        dialog.cmbPlotterPort.list = {"/dev/ttyS0", "/dev/ttyS1"};
        dialog.cmbPlotterPort.edit.text = "/dev/serial/by-id/usb-1a86_USB2.0-Serial-if00-port0";
        desk.ui.RunModal(dialog);
    };
    all["rotate"] = [](DialogDesk& desk) {
        RotateDialog dialog(desk.context.ui, desk.context.options, desk.context.decimalMark, 0.5);
        desk.ui.RunModal(dialog);
    };
    for (std::size_t join = 0; join < 3; ++join) {
        all[QStringLiteral("branch-%1").arg(join)] = [join](DialogDesk& desk) {
            BranchAdditionalDialog dialog({static_cast<BranchJoin>(join), true});
            desk.ui.RunModal(dialog);
        };
    }
    for (const auto& [name, use] :
         {std::pair{"print-setup", PrintersUse::Setup}, {"print", PrintersUse::Print}}) {
        all[QString::fromLatin1(name)] = [use = use](DialogDesk& desk) {
            desk.printDialog.TakePdf();
            desk.printDialog.PrintScale = 1;
            PrintersDialog dialog(use, desk.printDialog, desk.ui, desk.options, '.');
            desk.ui.RunModal(dialog);
        };
    }
    all["splash"] = [](DialogDesk& desk) { RunDialog(desk.ui.Host(), SplashDialog()); };
    all["about"] = [](DialogDesk& desk) { RunDialog(desk.ui.Host(), AboutDialog()); };
    all["disclaimer"] = [](DialogDesk& desk) { RunDialog(desk.ui.Host(), DisclaimerDialog()); };
    all["recovery"] = [](DialogDesk& desk) {
        RecoveryDialog dialog;
        dialog.caption = "Korvet Development";
        dialog.windows = {"Right Cone", "/home/user/jobs/hood.Kvt"};
        RunDialog(desk.ui.Host(), dialog);
    };
    all["message"] = [](DialogDesk& desk) {
        desk.ui.Show({"This dimension must be greater than 0", ExclamationBox, "User Error"});
    };
    return all;
}

/// Looks at each of them in turn.
inline void ForEachDialog(const std::function<void(const QString&, QDialog&)>& look) {
    DialogDesk desk;
    for (const auto& [name, show] : AllDialogs()) {
        bool seen = false;
        const QString dialog = name;
        WhenShown([&](QDialog& window) {
            seen = true;
            look(dialog, window);
        });
        show(desk);
        QVERIFY2(seen, qPrintable(dialog));
    }
}

}  // namespace korvet::desktop
