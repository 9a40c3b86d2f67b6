// The offer of what a run that ended badly has left, and the clock of the copies.
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "desktop/dialogs/recovery_widgets.h"
#include "frame/recovery.h"
#include "tests/desktop/desk.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/dialogs_fixture.h"
#include "tests/support/memory_recovery.h"

namespace korvet::desktop {

class RecoveryOffer : public QObject {
    Q_OBJECT
  private slots:
    void eachButtonIsItsChoice() {
        using Choice = RecoveryDialog::Choice;
        const std::pair<const char*, Choice> buttons[] = {{"btnOpenAll", Choice::OpenAll},
                                                          {"btnDeleteAll", Choice::DeleteAll},
                                                          {"btnLater", Choice::Later}};
        for (const auto& [name, choice] : buttons) {
            RecoveryDialog dialog = TwoWindows();
            WhenShown([name = name](QDialog& window) {
                const auto& list = Child<QListWidget>(window, "lstWindows");
                QCOMPARE(list.count(), 2);
                QCOMPARE(list.item(1)->text(), QString("/jobs/<b>cone.Kvt"));
                Press(window, name);
            });
            RunDialog(desk_.ui.Host(), dialog);
            QVERIFY(dialog.choice == choice);
        }
    }

    void keysOpenAllOrLeaveAll() {
        for (const auto& [key, choice] : {std::pair{Qt::Key_Return, RecoveryDialog::Choice::OpenAll},
                                          {Qt::Key_Escape, RecoveryDialog::Choice::Later}}) {
            RecoveryDialog dialog = TwoWindows();
            WhenShown([key = key](QDialog& window) { QTest::keyClick(&window, key); });
            RunDialog(desk_.ui.Host(), dialog);
            QVERIFY(dialog.choice == choice);
        }
    }

    void whatIsTypedIsKeptWithinTheIntervalAlsoUnderADialog() {
        TestShell shell;
        RecordingHelp help;
        MemorySettings settings;
        MemoryRecovery store;
        MainWindow window(shell.context, help, settings, &store);
        window.KeepCopiesEvery(std::chrono::milliseconds(20));
        ModalVisitor visitor;
        visitor.visit = [](QWidget& menu) { Click(menu, "Picture1_0"); };
        window.Frame().RunMenu("mnuFileNew");
        QTest::qWait(100);
        QCOMPARE(store.writes, 0);
        window.Frame().ActiveChild()->ChangeBox(3, "300");
        visitor.visit = [&](QWidget&) { QTRY_COMPARE(store.writes, 1); };
        window.Frame().RunMenu("mnuDisclaimer");
        QCOMPARE(store.writes, 1);
    }

  private:
    static RecoveryDialog TwoWindows() {
        RecoveryDialog dialog;
        dialog.caption = "Korvet Development";
        dialog.windows = {"Right Cone (without a file)", "/jobs/<b>cone.Kvt"};
        return dialog;
    }

    DialogDesk desk_;
};

static const Registered<RecoveryOffer> registeredRecoveryOffer("RecoveryOffer");

}  // namespace korvet::desktop

#include "recovery_test.moc"
