#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include "tests/desktop/desktop_test.h"
#include "tests/desktop/dialogs_fixture.h"

namespace korvet::desktop {

struct MessageStyle {
    BoxStyle style;
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
};

namespace {

const std::array Styles = {
    MessageStyle{PlainBox, QMessageBox::NoIcon, QMessageBox::Ok},
    MessageStyle{OkCancelBox, QMessageBox::NoIcon, QMessageBox::Ok | QMessageBox::Cancel},
    MessageStyle{CriticalBox, QMessageBox::Critical, QMessageBox::Ok},
    MessageStyle{QuestionBox, QMessageBox::Question, QMessageBox::Ok},
    MessageStyle{YesNoCancelBox, QMessageBox::Question,
                 QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel},
    MessageStyle{YesNoBox, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No},
    MessageStyle{YesNoWarningBox, QMessageBox::Warning, QMessageBox::Yes | QMessageBox::No},
    MessageStyle{ExclamationBox, QMessageBox::Warning, QMessageBox::Ok},
    MessageStyle{InformationBox, QMessageBox::Information, QMessageBox::Ok}};

void Activate(QDialog& window) {
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

/// Types a name into the toolkit's own file dialog and accepts it. Only a box with the focus makes the dialog
/// let go of the file that it opened with.
void ChooseName(QDialog& window, const QString& name) {
    Activate(window);
    auto& edit = Child<QLineEdit>(window, "fileNameEdit");
    edit.setFocus();
    edit.setText(name);
    emit edit.textEdited(name);  // keys would bring up the completer
    QTest::keyClick(&edit, Qt::Key_Return);
}

void Touch(const QString& path) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("x");
}

}  // namespace

class DialogBoxes : public QObject {
    Q_OBJECT
  private slots:
    void init() { QVERIFY(folder_.isValid()); }

    void EachStyleHasItsIconAndButtons() {
        for (const MessageStyle& style : Styles) {
            WhenShown([&](QDialog& window) {
                const auto& box = static_cast<QMessageBox&>(window);
                QCOMPARE(box.icon(), style.icon);
                QCOMPARE(box.standardButtons(), style.buttons);
                QCOMPARE(box.windowTitle(), QStringLiteral("A title"));
                QCOMPARE(box.text(), QStringLiteral("Some text"));
            });
            desk_.ui.Show({"Some text", style.style, "A title"});
        }
    }

    void LongWordsGoOnInTheNextLine() {
        const std::string name = "/jobs/" + std::string(250, 'x') + ".Kvt";
        WhenShown([&](QDialog& window) {
            auto& box = static_cast<QMessageBox&>(window);
            QCOMPARE(box.text().remove(QChar(0x200B)), QString::fromStdString("Saved to " + name));
            QCOMPARE(box.informativeText(), QStringLiteral("short words"));
            QVERIFY(box.width() < 800);
            for (const auto* label : box.findChildren<QLabel*>()) {
                QVERIFY(label->width() >= label->minimumSizeHint().width());
                QVERIFY(label->height() >= label->heightForWidth(label->width()));
            }
        });
        desk_.ui.Show({.text = "Saved to " + name, .style = PlainBox, .title = "t", .detail = "short words"});
    }

    void EachButtonIsItsAnswer() {
        QStringList texts;
        AnswerNextBox(texts, QMessageBox::Yes);
        QCOMPARE(desk_.ui.Show({"?", YesNoCancelBox, "t"}), Answer::Yes);
        AnswerNextBox(texts, QMessageBox::No);
        QCOMPARE(desk_.ui.Show({"?", YesNoCancelBox, "t"}), Answer::No);
        AnswerNextBox(texts, QMessageBox::Cancel);
        QCOMPARE(desk_.ui.Show({"?", YesNoCancelBox, "t"}), Answer::Cancel);
        AnswerNextBox(texts, QMessageBox::Ok);
        QCOMPARE(desk_.ui.Show({"?", OkCancelBox, "t"}), Answer::Ok);
    }

    void KeysAnswerABox() {
        const auto press = [](Qt::Key key) {
            WhenShown([key](QDialog& window) { QTest::keyClick(&window, key); });
        };
        press(Qt::Key_Escape);
        QCOMPARE(desk_.ui.Show({"?", YesNoCancelBox, "t"}), Answer::Cancel);
        press(Qt::Key_Escape);
        QCOMPARE(desk_.ui.Show({"?", OkCancelBox, "t"}), Answer::Cancel);
        press(Qt::Key_Escape);
        QCOMPARE(desk_.ui.Show({"?", ExclamationBox, "t"}), Answer::Ok);
        press(Qt::Key_Return);
        QCOMPARE(desk_.ui.Show({"?", YesNoCancelBox, "t"}), Answer::Yes);
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {  // what can be lost needs more than that
            press(key);
            QCOMPARE(desk_.ui.Show({"?", YesNoWarningBox, "t"}), Answer::No);
        }
    }

    void TextsAreShownAsTheyAre() {
        WhenShown([](QDialog& window) {
            const auto& box = static_cast<QMessageBox&>(window);
            QCOMPARE(box.text(), QStringLiteral("<b>one</b>\n two"));
            QCOMPARE(box.informativeText(), QStringLiteral("<i>/a&b</i>"));
            for (const QLabel* label : box.findChildren<QLabel*>()) {
                QCOMPARE(label->textFormat(), Qt::PlainText);
            }
        });
        desk_.ui.Show({"<b>one</b>\r\n two", PlainBox, "t", "<i>/a&b</i>"});
    }

    void AnEmptyTextIsShownToo() {
        bool shown = false;
        WhenShown([&](QDialog& window) { shown = window.isVisible() && window.width() > 0; });
        desk_.ui.Show({"", ExclamationBox, "User Error"});
        QVERIFY(shown);
    }

    void WindowsAreBroughtUpToDateBeforeABox() {
        int calls = 0;
        desk_.ui.beforeModal = [&] {
            ++calls;
            QCOMPARE(QApplication::activeModalWidget(), nullptr);
        };
        QStringList texts;
        AnswerNextBox(texts);
        desk_.ui.Show({"x", PlainBox, "t"});
        desk_.ui.beforeModal = {};
        QCOMPARE(calls, 1);
    }

    void TheOpenDialogShowsFilesOfItsKindInAnyCase() {
        Touch(folder_.filePath("Upper.KVT"));
        const FileChoice open = {"Open", "All Files (*.Kvt)|*.Kvt", false};
        WhenShown([&](QDialog& window) {
            const auto& dialog = static_cast<QFileDialog&>(window);
            QCOMPARE(dialog.objectName(), QStringLiteral("dlgCommonDialog"));
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Open"));
            QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
            QVERIFY(QDir::match("*.[Kk][Vv][Tt]", "Upper.KVT"));
            QCOMPARE(dialog.nameFilters(), QStringList("All Files (*.Kvt) (*.[Kk][Vv][Tt])"));
            ChooseName(window, folder_.filePath("Upper.KVT"));
        });
        QCOMPARE(desk_.ui.ChooseFile(open), folder_.filePath("Upper.KVT").toStdString());
        // The next dialog opens where that file was.
        WhenShown([&](QDialog& window) {
            QCOMPARE(static_cast<QFileDialog&>(window).directory().absolutePath(),
                     QDir(folder_.path()).absolutePath());
        });
        QVERIFY(!desk_.ui.ChooseFile(open).has_value());
    }

    void AFileThatIsNotThereCannotBeOpened() {
        WhenShown([&](QDialog& window) {
            QStringList texts;
            Activate(window);
            AnswerNextBox(texts);
            ChooseName(window, folder_.filePath("none.Kvt"));
            QCOMPARE(texts.size(), 1);
            QVERIFY(window.isVisible());
        });
        QVERIFY(!desk_.ui.ChooseFile({"Open", "All Files (*.Kvt)|*.Kvt", false}).has_value());
    }

    void ANameWithoutASuffixGetsIt() {
        WhenShown([&](QDialog& window) {
            QCOMPARE(window.objectName(), QStringLiteral("dlgCommonDialogDXF"));
            ChooseName(window, folder_.filePath("flat"));
        });
        QCOMPARE(desk_.ui.ChooseFile(Dxf), folder_.filePath("flat.DXF").toStdString());
        // A point in the folder's name is no suffix of the file's.
        QVERIFY(QDir(folder_.path()).mkdir("v1.2"));
        WhenShown([&](QDialog& window) { ChooseName(window, folder_.filePath("v1.2/flat")); });
        QCOMPARE(desk_.ui.ChooseFile(SaveAs), folder_.filePath("v1.2/flat.Kvt").toStdString());
        const std::pair<const char*, const char*> names[] = {{"cone 1.5mm", "cone 1.5mm.Kvt"},
                                                             {"flat.txt", "flat.txt.Kvt"},
                                                             {"flat.", "flat.Kvt"},
                                                             {"flat.KVT", "flat.KVT"},
                                                             {"flat.kvt", "flat.kvt"}};
        for (const auto& [typed, saved] : names) {
            const QString path = folder_.filePath(typed);
            WhenShown([&](QDialog& window) { ChooseName(window, path); });
            QCOMPARE(desk_.ui.ChooseFile(SaveAs), folder_.filePath(saved).toStdString());
        }
    }

    void TheOfferedNameIsTakenWithAKey() {
        DialogDesk desk;
        QVERIFY(QDir(folder_.path()).mkdir("orders"));
        FileChoice offered = Dxf;
        offered.name = "Branch Trunk.DXF";
        offered.folder = folder_.filePath("orders").toStdString();
        const auto take = [](QDialog& window) {
            Activate(window);
            auto& edit = Child<QLineEdit>(window, "fileNameEdit");
            QCOMPARE(edit.text(), QStringLiteral("Branch Trunk.DXF"));
            QTest::keyClick(&edit, Qt::Key_Return);
        };
        WhenShown(take);
        QCOMPARE(desk.ui.ChooseFile(offered), folder_.filePath("orders/Branch Trunk.DXF").toStdString());
        // From the first choice on a dialog opens where the last one was made.
        offered.folder = folder_.path().toStdString();
        WhenShown(take);
        QCOMPARE(desk.ui.ChooseFile(offered), folder_.filePath("orders/Branch Trunk.DXF").toStdString());
        QVERIFY(QDir(folder_.filePath("orders")).removeRecursively());
        WhenShown(take);
        QCOMPARE(desk.ui.ChooseFile(offered), folder_.filePath("Branch Trunk.DXF").toStdString());
    }

    void AFileIsReplacedOnlyAfterAQuestion() {
        Touch(folder_.filePath("old.Kvt"));
        for (const char* typed : {"old.Kvt", "old"}) {
            QStringList texts;
            WhenShown([&](QDialog& window) {
                ChooseName(window, folder_.filePath(typed));
                AnswerNextBox(texts, QMessageBox::Yes);
            });
            QCOMPARE(desk_.ui.ChooseFile(SaveAs), folder_.filePath("old.Kvt").toStdString());
            QCOMPARE(texts, QStringList("old.Kvt already exists.\nDo you want to replace it?"));
        }
    }

    void AFileThatIsToStayLeavesTheDialogOpen() {
        Touch(folder_.filePath("kept.DXF"));
        QStringList texts;
        WhenShown([&](QDialog& window) {
            ChooseName(window, folder_.filePath("kept"));
            WhenShown([&](QDialog& box) {
                texts.append(static_cast<QMessageBox&>(box).text());
                // The dialog comes back with the name that was refused, for another one.
                WhenShown([&](QDialog& again) {
                    QVERIFY(Child<QLineEdit>(again, "fileNameEdit").text().endsWith("kept.DXF"));
                    ChooseName(again, folder_.filePath("new"));
                });
                QTest::keyClick(&box, Qt::Key_Escape);
            });
        });
        QCOMPARE(desk_.ui.ChooseFile(Dxf), folder_.filePath("new.DXF").toStdString());
        QCOMPARE(texts.size(), 1);
    }

    void AFolderThatIsNotThereIsRefused() {
        QStringList texts;
        WhenShown([&](QDialog& window) {
            ChooseName(window, folder_.filePath("none/flat"));
            AnswerNextBox(texts);
            QTimer::singleShot(0, qApp, [&] { WhenShown([](QDialog&) {}); });
        });
        QVERIFY(!desk_.ui.ChooseFile(Dxf).has_value());
        QCOMPARE(texts.size(), 1);
        QVERIFY(texts[0].contains(folder_.filePath("none")));
    }

  private:
    static const inline FileChoice SaveAs = {"SaveAs", "Korvet Development Files (*.Kvt)|*.Kvt", true};
    static const inline FileChoice Dxf = {"Export DXF", "Drawing eXchange File (*.DXF)|*.DXF", true};

    DialogDesk desk_;
    QTemporaryDir folder_;
};

static const Registered<DialogBoxes> registeredDialogBoxes("DialogBoxes");

}  // namespace korvet::desktop

#include "dialogs_boxes_test.moc"
