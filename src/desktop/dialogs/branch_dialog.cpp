#include "desktop/dialogs/branch_dialog.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QVBoxLayout>

#include "desktop/bindings.h"
#include "desktop/dialogs/parts.h"

namespace korvet::desktop {

void RunDialog(const DialogHost& host, BranchAdditionalDialog& dialog) {
    ModelDialog window(host, "frmBranchAdditional", dialog.caption, {6000, 4000});
    QGroupBox* const types =
        MakeFrame("fraBranchTypes", Text(dialog.fraBranchTypes), Text(dialog.fraBranchTypes));
    auto* column = new QVBoxLayout(types);
    AddOptions(*column, MakeOptions(window, "optInOrOn", dialog.optInOrOn, "iom", {},
                                    [&](std::size_t join) { dialog.SelectJoin(join); }));
    window.Body().addWidget(types);
    window.Body().addWidget(MakeCheck(window, "chkHeelCompensation", dialog.chkHeelCompensation, 'H'));
    window.Body().addStretch();
    AddOkAndCancel(window, dialog);
    RunUntilClosed(window, dialog);
}

}  // namespace korvet::desktop
