// Choosing a printer, and waiting for it.
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>

#include "printing/printers_dialog.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/dialogs_fixture.h"

namespace korvet::desktop {
namespace {

QStringList Listed(const QComboBox& box) {
    QStringList entries;
    for (int i = 0; i < box.count(); ++i) {
        entries << box.itemText(i);
    }
    return entries;
}

/// Picks an entry as the user does.
void Pick(const QDialog& window, const char* name, const char* entry) {
    auto& box = Child<QComboBox>(window, name);
    const int index = box.findText(QString::fromLatin1(entry));
    QVERIFY(index >= 0);
    box.setCurrentIndex(index);
    emit box.activated(index);
    emit box.textActivated(box.currentText());
}

}  // namespace

class PrintersBox : public QObject {
    Q_OBJECT
  private slots:
    void init() {
        desk_.printers.queues = {{.name = "Laser"},
                                 {.name = "Plotter", .papers = {{300, "Roll", 914, 3000}}}};
        desk_.printDialog.SetDefaultPapersize(desk_.options, desk_.ui);
    }

    void ItShowsThePrinterAsItIs() {
        Run(PrintersUse::Print, [](QDialog& window) {
            QCOMPARE(window.objectName(), QString("frmPrinters"));
            QCOMPARE(window.windowTitle(), QString("Print"));
            const auto& printers = Child<QComboBox>(window, "cmbPrinters");
            QCOMPARE(Listed(printers), QStringList({"Laser", "Plotter", "PDF file"}));
            QCOMPARE(printers.currentText(), QString("Laser"));
            QVERIFY(!printers.isEditable());
            QCOMPARE(Listed(Child<QComboBox>(window, "cmbPapersize")), QStringList({"A4", "A3"}));
            QVERIFY(Child<QRadioButton>(window, "optOrientation_0").isChecked());
            QVERIFY(Child<QRadioButton>(window, "optUnits_0").isChecked());
            QVERIFY(Child<QRadioButton>(window, "optScale_0").isChecked());
            QVERIFY(!Child<QLineEdit>(window, "txtUserScale").isEnabled());
            QVERIFY(Child<QRadioButton>(window, "optAction_0").isChecked());
            QVERIFY(!Child<QRadioButton>(window, "optAction_1").isVisible());
            QVERIFY(Child<QRadioButton>(window, "optAction_2").isVisible());
            QVERIFY(!Child<QRadioButton>(window, "optAction_2").isEnabled());
            QVERIFY(!Child<QRadioButton>(window, "optAction_3").isEnabled());
            QCOMPARE(Child<QPushButton>(window, "btnPrint_1").text(), QString("Print"));
            QCOMPARE(Child<QPushButton>(window, "btnPrint_2").text(), QString("Cancel"));
        });
    }

    void SetUpHasItsScaleAndActionsGrey() {
        Run(PrintersUse::Setup, [](QDialog& window) {
            QCOMPARE(window.windowTitle(), QString("Print Setup"));
            QCOMPARE(Child<QPushButton>(window, "btnPrint_1").text(), QString("Continue"));
            for (const char* name :
                 {"optScale_0", "optScale_1", "optScale_2", "optAction_0", "optAction_2"}) {
                QVERIFY2(!Child<QRadioButton>(window, name).isEnabled(), name);
            }
            QVERIFY(Child<QRadioButton>(window, "optOrientation_1").isEnabled());
            QVERIFY(Child<QRadioButton>(window, "optUnits_1").isEnabled());
        });
    }

    void AnotherPrinterHasItsOwnPapers() {
        Run(PrintersUse::Print, [](QDialog& window) {
            Pick(window, "cmbPrinters", "Plotter");
            QCOMPARE(Listed(Child<QComboBox>(window, "cmbPapersize")), QStringList({"Roll"}));
            Pick(window, "cmbPrinters", "PDF file");
            QVERIFY(Listed(Child<QComboBox>(window, "cmbPapersize")).contains("A0"));
        });
    }

    void TheSheetTurnsWithItsOrientation() {
        Run(PrintersUse::Print, [](QDialog& window) {
            const auto& sheet = Child<QWidget>(window, "pboxOrient");
            QCOMPARE(sheet.size(), QSize(100, 130));
            Press(window, "optOrientation_1");
            QCOMPARE(sheet.size(), QSize(130, 100));
            QCOMPARE(Child<QWidget>(window, "pboxOrientInner").size(), QSize(100, 100));
        });
    }

    void OkHandsTheChoiceOver() {
        Run(PrintersUse::Print, [](QDialog& window) {
            Pick(window, "cmbPapersize", "A3");
            Press(window, "optOrientation_1");
            Press(window, "optUnits_1");
            Press(window, "optScale_2");
            auto& scale = Child<QLineEdit>(window, "txtUserScale");
            QVERIFY(scale.isEnabled());
            scale.selectAll();
            QTest::keyClicks(&scale, "0.5");
            Press(window, "btnPrint_1");
            QVERIFY(!window.isVisible());
        });
        QCOMPARE(status_, std::string("OK"));
        QCOMPARE(desk_.printDialog.CurrentPaperSize, 8);
        QCOMPARE(desk_.printDialog.CurrentOrientation, Landscape);
        QCOMPARE(desk_.printDialog.PrintUnits, Inches);
        QCOMPARE(desk_.printDialog.PrintScale, 0.5);
    }

    void APrinterThatIsGoneLeavesTheDialogOpen() {
        Run(PrintersUse::Print, [this](QDialog& window) {
            desk_.printers.queues.clear();
            QCOMPARE(PressToBox(window, "btnPrint_1"),
                     QString("Printer Error There is no printer \"Laser\"."));
            QVERIFY(window.isVisible());
        });
        QCOMPARE(status_, std::string("Cancel"));
    }

    void ShortWorkHasNoBox() {
        for (std::size_t done = 0; done <= 5; ++done) {
            QVERIFY(desk_.ui.GoesOn({"Sheet A1", done, 5}));
        }
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void LongWorkTellsHowFarItIsAndCanBeCancelled() {
        constexpr std::size_t Total = 1000;
        QElapsedTimer time;
        time.start();
        std::size_t done = 0;
        bool pressed = false;
        QString told;
        while (time.elapsed() < 20000 && desk_.ui.GoesOn({"Sheet B7", done, Total})) {
            ++done;
            QTest::qWait(20);
            auto* const box = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
            if (box != nullptr && box->isVisible() && !pressed) {
                told = box->labelText();
                QVERIFY(box->value() > 0);
                QTest::mouseClick(box->findChild<QPushButton*>(), Qt::LeftButton);
                pressed = true;
            }
        }
        QVERIFY(pressed);
        QVERIFY(done < Total);
        QCOMPARE(told, QString("Sheet B7"));
        QVERIFY(desk_.ui.GoesOn({"", Total, Total}));
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

  private:
    void Run(PrintersUse use, std::function<void(QDialog&)> user) {
        PrintersDialog dialog(use, desk_.printDialog, desk_.ui, desk_.options, '.');
        WhenShown(std::move(user));
        desk_.ui.RunModal(dialog);
        status_ = dialog.lblStatus;
    }

    DialogDesk desk_;
    std::string status_;
};

static const Registered<PrintersBox> registeredPrintersBox("PrintersBox");

}  // namespace korvet::desktop

#include "dialogs_printers_test.moc"
