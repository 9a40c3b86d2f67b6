#include "desktop/dialogs/recovery_widgets.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/bindings.h"
#include "desktop/dialogs/model_dialog.h"
#include "desktop/dialogs/parts.h"
#include "frame/recovery.h"

namespace korvet::desktop {
namespace {

constexpr QSize RecoverySize = {6400, 0};  // twips

}  // namespace

void RunDialog(const DialogHost& host, RecoveryDialog& dialog) {
    using Choice = RecoveryDialog::Choice;
    bool open = true;
    ModelDialog window(host, "frmRecovery", dialog.caption, RecoverySize);
    QLabel* const text = MakeLabel(Text(dialog.lblText));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    NameWidget(*text, "lblText", Text(dialog.lblText));
    window.Body().addWidget(text);
    auto* const list = new QListWidget;
    NameWidget(*list, "lstWindows", QStringLiteral("What was not saved"));
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    for (const std::string& line : dialog.windows) {
        list->addItem(Text(line));
        list->item(list->count() - 1)->setToolTip(Text(line).toHtmlEscaped());
    }
    window.Body().addWidget(list, 1);
    const auto add = [&](ModelDialog::Role role, const char* name, const std::string& caption,
                         Choice choice) {
        QString spoken = Text(caption);
        spoken.remove(QLatin1Char('&'));
        return &window.AddButton(role, name, Text(caption), spoken, [&dialog, &open, choice] {
            dialog.choice = choice;
            open = false;
        });
    };
    QPushButton* const all = add(ModelDialog::Role::Accept, "btnOpenAll", dialog.btnOpenAll, Choice::OpenAll);
    add(ModelDialog::Role::Other, "btnDeleteAll", dialog.btnDeleteAll, Choice::DeleteAll);
    add(ModelDialog::Role::Reject, "btnLater", dialog.btnLater, Choice::Later);
    all->setDefault(true);
    all->setFocus();
    window.Run({[&open] { return open; }, [&open] { open = false; }});
}

}  // namespace korvet::desktop
