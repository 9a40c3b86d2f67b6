#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "desktop/dialogs/about_dialogs.h"
#include "dialogs/small_dialogs.h"
#include "frame/about.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/dialogs_fixture.h"

namespace korvet::desktop {
namespace {

constexpr double HalfRightAngle = 0.785398163397448;

CLabels Lines(int count) {
    CLabels labels;
    for (int i = 1; i <= count; ++i) {
        labels.Add({"line " + std::to_string(i)});
    }
    return labels;
}

bool Ticked(const QWidget& window, const char* name) {
    return Child<QCheckBox>(window, name).isChecked();
}

}  // namespace

class SmallDialogs : public QObject {
    Q_OBJECT
  private slots:
    void OkAndCancelAndEscOfEach() {
        CheckEnds<DimensionOptionsDialog>();
        CheckEnds<LabelDialog>();
        CheckEnds<DxfOptionsDialog>();
        CheckEnds(
            [this] {
                return RotateDialog(desk_.context.ui, desk_.context.options, desk_.context.decimalMark, 0);
            },
            [](QDialog& window) { Child<QLineEdit>(window, "txtAngle_1").setText("1"); });
    }

    void GridAndTableExcludeEachOther() {
        DimensionOptionsDialog dialog;
        dialog.chkDimensions[DimensionOptionsDialog::Diagonals].enabled = false;
        Run(dialog, [](QDialog& window) {
            QCOMPARE(window.objectName(), QStringLiteral("frmDimensionOptions"));
            QVERIFY(!Child<QCheckBox>(window, "chkDimensions_1").isEnabled());
            QVERIFY(!Child<QLineEdit>(window, "txtTextSize").isVisible());
            Press(window, "chkDimensions_2");
            Press(window, "chkDimensions_3");
            QVERIFY(!Ticked(window, "chkDimensions_2"));
            QVERIFY(Ticked(window, "chkDimensions_3"));
            Press(window, "chkDimensions_2");
            QVERIFY(!Ticked(window, "chkDimensions_3"));
            Press(window, "chkDimensions_0");
            Press(window, "btnOK");
        });
        QVERIFY(dialog.chkDimensions[DimensionOptionsDialog::CoordGrid].checked);
        QVERIFY(dialog.chkDimensions[DimensionOptionsDialog::TrueLengths].checked);
        QVERIFY(!dialog.chkDimensions[DimensionOptionsDialog::CoordTable].checked);
    }

    void OptionsOpenOnTheirFourthTab() {
        DimensionOptionsDialog dimensions;
        DxfOptionsDialog dxf;
        int tabs = 0;
        const auto open = [&](QDialog& window) {
            WhenShown(
                [&](QDialog& options) { tabs += Child<QTabWidget>(options, "SSTab2").currentIndex() + 1; });
            Press(window, "btnOptions");
            QVERIFY(window.isVisible());
        };
        Run(dimensions, open);
        QCOMPARE(tabs, 4);
        Run(dxf, open);
        QCOMPARE(tabs, 8);
    }

    void TheLabelShowsCommentsAndFixedLines() {
        LabelDialog dialog;
        dialog.Load(Lines(6), false, false);
        Run(dialog, [](QDialog& window) {
            QCOMPARE(window.windowTitle(), QStringLiteral("Label"));
            QVERIFY(Ticked(window, "chkDisplayLabel"));
            QVERIFY(Child<QLabel>(window, "lblInstruction").isVisible());
            QCOMPARE(Child<QLabel>(window, "lblLabelItem_3").text(), QStringLiteral("line 6"));
            QVERIFY(window.findChild<QLabel*>("lblLabelItem_4") == nullptr);
            Child<QLineEdit>(window, "txtLabelItem_1").setText("for the roof");
            Press(window, "chkDisplayLabel");
            Press(window, "btnOK");
        });
        QCOMPARE(dialog.txtLabelItem[0].text, std::string("line 1"));
        QCOMPARE(dialog.txtLabelItem[1].text, std::string("for the roof"));
        QVERIFY(!dialog.chkDisplayLabel.checked);
    }

    void ALabelThatWasPlacedIsOfferedForRemoval() {
        LabelDialog dialog;
        dialog.Load(Lines(2), true, true);
        Run(dialog, [](QDialog& window) {
            QVERIFY(!Ticked(window, "chkDisplayLabel"));
            QVERIFY(!Child<QLabel>(window, "lblInstruction").isVisible());
        });
    }

    void TheLabelGrowsWithItsLines() {
        int heights[2] = {};
        for (int i = 0; i < 2; ++i) {
            LabelDialog dialog;
            dialog.Load(Lines(i == 0 ? 3 : 12), false, false);
            Run(dialog, [&](QDialog& window) { heights[i] = window.height(); });
        }
        QVERIFY(heights[1] >= heights[0] + 9 * QFontMetrics(QApplication::font()).height());
    }

    void ExportOffersWhatTheModelSays() {
        DxfOptionsDialog dialog;
        dialog.caption = "Exporting /a.DXF";
        dialog.lblExportType = "Exporting unfolded pattern";
        dialog.Offer(DxfOptionsDialog::Dimensions, true);
        dialog.optPolyMode.enabled = false;
        dialog.chkSurfaceMesh.enabled = false;
        Run(dialog, [](QDialog& window) {
            QCOMPARE(window.windowTitle(), QStringLiteral("Exporting /a.DXF"));
            QCOMPARE(Child<QLabel>(window, "lblExportType").text(),
                     QStringLiteral("Exporting unfolded pattern"));
            QVERIFY(Ticked(window, "chkDXFOutput_0"));
            QVERIFY(Ticked(window, "chkDXFOutput_3"));
            QVERIFY(!Child<QCheckBox>(window, "chkDXFOutput_2").isEnabled());
            QVERIFY(!Child<QCheckBox>(window, "chkDXFOutput_4").isEnabled());
            QVERIFY(!Child<QRadioButton>(window, "optPolyMode_1").isEnabled());
            QVERIFY(!Child<QCheckBox>(window, "chkSurfaceMesh").isEnabled());
            Press(window, "chkDXFOutput_1");
            Press(window, "btnOK");
        });
        QVERIFY(!dialog.chkDXFOutput[DxfOptionsDialog::BendLines].checked);
        QVERIFY(dialog.chkDXFOutput[DxfOptionsDialog::Outlines].checked);
    }

    void ExportTakesPolylinesAndMesh() {
        DxfOptionsDialog dialog;
        Run(dialog, [](QDialog& window) {
            Press(window, "optPolyMode_1");
            Press(window, "chkSurfaceMesh");
            Press(window, "chkComplete");
            QVERIFY(!Child<QRadioButton>(window, "optPolyMode_0").isChecked());
            Press(window, "btnOK");
        });
        QVERIFY(dialog.optPolyMode.IsOn(1));
        QVERIFY(dialog.chkSurfaceMesh.checked);
        QVERIFY(dialog.chkComplete.checked);
    }

    void ADrawingFileHasNoPlotterPort() {
        DxfOptionsDialog dialog;
        Run(dialog, [](QDialog& window) {
            QVERIFY(window.findChild<QGroupBox*>("fraPlotterPort") == nullptr);
            QVERIFY(window.findChild<QComboBox*>("cmbPlotterPort") == nullptr);
        });
    }

    void ThePlotterPortIsPickedOrTyped() {
        for (const bool typed : {false, true}) {
            DxfOptionsDialog dialog;
            dialog.choosesPort = true;
            dialog.cmbPlotterPort.list = {"/dev/ttyS0", "/dev/ttyS1"};
            dialog.cmbPlotterPort.edit.text = "/dev/ttyUSB7";
            dialog.optHandshake.selected = 1;
            Run(dialog, [typed](QDialog& window) {
                auto& port = Child<QComboBox>(window, "cmbPlotterPort");
                QCOMPARE(port.currentText(), QStringLiteral("/dev/ttyUSB7"));
                QCOMPARE(port.count(), 2);
                QVERIFY(Child<QRadioButton>(window, "optHandshake_1").isChecked());
                if (typed) {
                    port.lineEdit()->selectAll();
                    QTest::keyClicks(port.lineEdit(), QStringLiteral("/dev/pts/3"));
                } else {
                    port.setFocus();
                    QTest::keyClick(&port, Qt::Key_Down);
                    QTest::keyClick(&port, Qt::Key_Down);
                }
                Press(window, "optHandshake_2");
                QVERIFY(!Child<QRadioButton>(window, "optHandshake_1").isChecked());
                Press(window, "btnOK");
            });
            QCOMPARE(dialog.cmbPlotterPort.edit.text, std::string(typed ? "/dev/pts/3" : "/dev/ttyS1"));
            QVERIFY(dialog.optHandshake.IsOn(2));
        }
    }

    void RotateRefusesWhatIsNoAngle() {
        RotateDialog dialog(desk_.context.ui, desk_.context.options, desk_.context.decimalMark,
                            HalfRightAngle);
        Run(dialog, [](QDialog& window) {
            auto& angle = Child<QLineEdit>(window, "txtAngle_1");
            QCOMPARE(window.focusWidget(), &angle);
            QVERIFY(Child<QLineEdit>(window, "txtAngle_0").isReadOnly());
            QVERIFY(Child<QLineEdit>(window, "txtAngle_0").text().toDouble() > 44.9);
            QVERIFY(Child<QRadioButton>(window, "optMove_0").isChecked());
            Press(window, "optMove_1");
            angle.setText("right");
            QCOMPARE(PressToBox(window, "btnOK"), QStringLiteral("Not a valid number"));
            QVERIFY(window.isVisible());
            QCOMPARE(window.focusWidget(), &angle);
            QCOMPARE(angle.selectedText(), QStringLiteral("right"));
            QTest::keyClicks(&angle, "30");
            QTest::keyClick(&angle, Qt::Key_Return);
            QVERIFY(!window.isVisible());
        });
        QCOMPARE(dialog.lblStatus, std::string("OK"));
        QVERIFY(dialog.optMove.IsOn(RotateDialog::ByAmount));
        QCOMPARE(dialog.txtAngle[1].text, std::string("30"));
    }

    void F1OpensTheTopicOfADialog() {
        std::vector<int> topics;
        desk_.ui.showHelp = [&](int topic) { topics.push_back(topic); };
        RotateDialog rotate(desk_.context.ui, desk_.context.options, desk_.context.decimalMark, 0);
        const auto press = [](QDialog& window) {
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            QTest::keyClick(&window, Qt::Key_F1);
        };
        Run(rotate, press);
        LabelDialog label;
        Run(label, press);
        desk_.ui.showHelp = {};
        QCOMPARE(topics, (std::vector<int>{2936, LabelDialog::HelpContextID}));
    }

    void HelpButtonsOpenTheTopicsOfTheirDialogs() {
        std::vector<int> topics;
        desk_.ui.showHelp = [&](int topic) { topics.push_back(topic); };
        const auto press = [](QDialog& window) { Press(window, "btnHelp"); };
        DimensionOptionsDialog dimensions;
        Run(dimensions, press);
        DxfOptionsDialog drawing;
        Run(drawing, press);
        desk_.ui.showHelp = {};
        QCOMPARE(topics,
                 (std::vector<int>{DimensionOptionsDialog::HelpContextID, DxfOptionsDialog::HelpContextID}));
    }

    void TheSplashGoesOnAndOpensAbout() {
        QString above;
        WhenShown([&](QDialog& window) {
            QCOMPARE(window.objectName(), QStringLiteral("frmSplash"));
            QCOMPARE(Child<QLabel>(window, "lblVersion").text(), QStringLiteral("Version 3.3.3"));
            QVERIFY(Child<QPushButton>(window, "btnContinue").isDefault());
            WhenShown([&](QDialog& about) { above = about.objectName(); });
            Press(window, "btnAbout");
            QVERIFY(window.isVisible());
            QTest::keyClick(&window, Qt::Key_Return);
            QVERIFY(!window.isVisible());
        });
        RunDialog(desk_.ui.Host(), SplashDialog());
        QCOMPARE(above, QStringLiteral("frmAbout"));
        WhenShown([](QDialog& window) {
            QTest::keyClick(&window, Qt::Key_Escape);
            QVERIFY(!window.isVisible());
        });
        RunDialog(desk_.ui.Host(), SplashDialog());
    }

    void AboutTellsTheVersionsThatRun() {
        WhenShown([](QDialog& window) {
            QString all;
            for (const QLabel* label : window.findChildren<QLabel*>()) {
                all += label->text() + QLatin1Char('\n');
            }
            QVERIFY(all.contains(QStringLiteral("Running on Qt ") + QString::fromLatin1(qVersion())));
            QVERIFY(all.contains(QStringLiteral("Version 3.3.3")));
            QVERIFY(all.contains(QStringLiteral("AutoCAD version 15")));
            QVERIFY(PressToBox(window, "cmdSysInfo").contains(QSysInfo::currentCpuArchitecture()));
            Press(window, "btnOK");
            QVERIFY(!window.isVisible());
        });
        RunDialog(desk_.ui.Host(), AboutDialog());
    }

    void TheDisclaimerIsReadAndClosed() {
        WhenShown([](QDialog& window) {
            QCOMPARE(window.windowTitle(), QStringLiteral("Disclaimer"));
            QCOMPARE(Child<QPushButton>(window, "btnClose").text(), QStringLiteral("Close"));
            QVERIFY(!Child<QLabel>(window, "lblDisclaimer").text().isEmpty());
            Press(window, "btnClose");
            QVERIFY(!window.isVisible());
        });
        RunDialog(desk_.ui.Host(), DisclaimerDialog());
    }

  private:
    template <typename Dialog>
    void Run(Dialog& dialog, std::function<void(QDialog&)> user) {
        WhenShown(std::move(user));
        desk_.ui.RunModal(dialog);
    }

    /// Leaves the dialog by every way out and looks at the word that stays.
    template <typename Make>
    void CheckEnds(Make make, const std::function<void(QDialog&)>& fill) {
        struct Way {
            std::function<void(QDialog&)> leave;
            std::string status;
        };
        const std::vector<Way> ways = {
            {[](QDialog& window) { Press(window, "btnOK"); }, "OK"},
            {[](QDialog& window) { QTest::keyClick(&window, Qt::Key_Return); }, "OK"},
            {[](QDialog& window) { Press(window, "btnCancel"); }, "Cancel"},
            {[](QDialog& window) { QTest::keyClick(&window, Qt::Key_Escape); }, "Cancel"},
            {[](QDialog& window) { window.close(); }, "Cancel"}};
        for (const Way& way : ways) {
            auto dialog = make();
            Run(dialog, [&](QDialog& window) {
                fill(window);
                way.leave(window);
                QVERIFY(!window.isVisible());
            });
            QCOMPARE(dialog.lblStatus, way.status);
        }
    }

    template <typename Dialog>
    void CheckEnds() {
        CheckEnds([] { return Dialog(); }, [](QDialog&) {});
    }

    DialogDesk desk_;
};

static const Registered<SmallDialogs> registeredSmallDialogs("SmallDialogs");

}  // namespace korvet::desktop

#include "dialogs_small_test.moc"
