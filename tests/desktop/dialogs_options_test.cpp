#include <QColorDialog>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "dialogs/options_dialog.h"
#include "dialogs/options_file.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/dialogs_fixture.h"

namespace korvet::desktop {
namespace {

void Fill(QDialog& window, const char* name, const char* text) {
    Child<QLineEdit>(window, name).setText(QString::fromLatin1(text));
}

int OpenTab(const QDialog& window) {
    return Child<QTabWidget>(window, "SSTab2").currentIndex() + 1;
}

}  // namespace

class OptionsWindow : public QObject {
    Q_OBJECT
  private slots:
    void init() {
        desk_.options = COptions();
        desk_.options.IniFileName = "/settings.ini";
        desk_.files.files.clear();
    }

    void ShowsTheOptionsOnFourTabs() {
        desk_.options.PrintScale = 0.5;
        desk_.options.PolyMode = 1;
        Run([](QDialog& window) {
            QCOMPARE(window.objectName(), QStringLiteral("frmOptions"));
            QCOMPARE(window.windowTitle(), QStringLiteral("Global Options"));
            QCOMPARE(Child<QTabWidget>(window, "SSTab2").count(), 4);
            QCOMPARE(OpenTab(window), 1);
            QCOMPARE(Child<QComboBox>(window, "cmbLanguage").currentText(), QStringLiteral("English"));
            QCOMPARE(Child<QComboBox>(window, "cmbDecimals").currentText(), QStringLiteral("0.0"));
            QCOMPARE(Child<QComboBox>(window, "CmbDefaultSegs").currentText(), QStringLiteral("24"));
            QCOMPARE(Child<QLineEdit>(window, "txtDXFFoldLayer").text(), QStringLiteral("FoldLayer"));
            QVERIFY(Child<QRadioButton>(window, "optPolyMode_1").isChecked());
            QVERIFY(Child<QRadioButton>(window, "optScale_2").isChecked());
            QCOMPARE(Child<QLineEdit>(window, "txtUserScale").text(), QStringLiteral("0.5"));
        });
    }

    void OkTakesTheValuesForThisRunOnly() {
        Run([](QDialog& window) {
            Fill(window, "txtDisplayTextSize", "3.5");
            Fill(window, "txtDXFCutLayer", "0");
            Child<QComboBox>(window, "cmbDecimals").setCurrentIndex(3);
            Child<QComboBox>(window, "CmbDefaultSegs").setEditText(QStringLiteral("30"));
            Press(window, "optUnits_1");
            Press(window, "btnOK");
            QVERIFY(!window.isVisible());
        });
        QCOMPARE(status_, std::string("OK"));
        QCOMPARE(desk_.options.DisplayTextSize, 3.5);
        QCOMPARE(desk_.options.DXFCutLayer, std::string("0"));
        QCOMPARE(desk_.options.Decimals, std::int16_t{3});
        QCOMPARE(desk_.options.DefaultSegs, 30);
        QCOMPARE(desk_.options.PrintUnits, std::int16_t{5});
        QVERIFY(desk_.files.files.empty());
    }

    void EveryOtherWayOutIsCancel() {
        const std::vector<std::function<void(QDialog&)>> ways = {
            [](QDialog& window) { Press(window, "btnCancel"); },
            [](QDialog& window) { QTest::keyClick(&window, Qt::Key_Escape); },
            [](QDialog& window) { window.close(); }};
        for (const auto& leave : ways) {
            Run([&](QDialog& window) {
                Fill(window, "txtDisplayTextSize", "9");
                leave(window);
                QVERIFY(!window.isVisible());
            });
            QCOMPARE(status_, std::string("Cancel"));
            QCOMPARE(desk_.options.DisplayTextSize, 2.0);
        }
    }

    void SaveWritesTheFileAndStays() {
        Run([this](QDialog& window) {
            Fill(window, "txtDXFTextSize", "4");
            QCOMPARE(PressToBox(window, "btnSave"), QStringLiteral("Current settings saved"));
            QVERIFY(window.isVisible());
            QVERIFY(desk_.files.files.contains("/settings.ini"));
        });
        QCOMPARE(desk_.options.DXFTextSize, 4.0);
    }

    void LayerNamesOfAnyLengthAreReadAgain() {
        const std::vector<const char*> boxes = {"txtDXFCutLayer", "txtDXFFoldLayer", "txtDXFTextLayer",
                                                "txtDXFBorderLayer", "txtDXFDimensionLayer"};
        Run([&](QDialog& window) {
            for (const char* box : boxes) {
                Child<QLineEdit>(window, box).setText(QString(30000, QLatin1Char('x')));
            }
            QCOMPARE(PressToBox(window, "btnSave"), QStringLiteral("Current settings saved"));
        });
        COptions read;
        read.IniFileName = desk_.options.IniFileName;
        ReadIniFile(read, desk_.files, desk_.ui, '.');
        QCOMPARE(read.DXFDimensionLayer, std::string(255, 'x'));
    }

    void ARefusalOpensTheTabOfItsBox() {
        struct Case {
            const char* box;
            const char* bad;
            const char* good;
            int tab;
            const char* message;
        };
        const std::array cases = {
            Case{"txtDisplayTextSize", "0", "2", 2, "Display Text size not valid"},
            Case{"txtCalibrate_1", "-1", "1", 3, "This dimension must be greater than 0"},
            Case{"txtDXFTextLayer", " ", "T", 4, "No layer name for Text"},
            Case{"txtDXFDimensionLayer", "", "D", 4, "No layer name for Border"},
            Case{"txtDXFTextSize", "-2", "1", 4, "DXF Text size not valid"}};
        Run([&](QDialog& window) {
            for (const Case& c : cases) {
                Child<QTabWidget>(window, "SSTab2").setCurrentIndex(0);
                Fill(window, c.box, c.bad);
                int tabUnderMessage = 0;
                WhenShown([&](QDialog& box) {
                    QCOMPARE(static_cast<QMessageBox&>(box).text(), QString::fromLatin1(c.message));
                    tabUnderMessage = OpenTab(window);
                    QTest::keyClick(&box, Qt::Key_Escape);
                });
                Press(window, "btnOK");
                QCOMPARE(tabUnderMessage, c.tab);
                QVERIFY(window.isVisible());
                QCOMPARE(OpenTab(window), c.tab);
                QCOMPARE(window.focusWidget(), &Child<QLineEdit>(window, c.box));
                Fill(window, c.box, c.good);
            }
            Child<QTabWidget>(window, "SSTab2").setCurrentIndex(3);
            auto& segs = Child<QComboBox>(window, "CmbDefaultSegs");
            segs.setEditText(QStringLiteral("0"));
            QCOMPARE(PressToBox(window, "btnOK"), QStringLiteral("This dimension must be greater than 0"));
            QCOMPARE(OpenTab(window), 1);
            QCOMPARE(window.focusWidget(), &segs);
        });
    }

    void NumbersAreTestedAsTheyAreTyped() {
        Run([](QDialog& window) {
            Child<QTabWidget>(window, "SSTab2").setCurrentIndex(2);
            auto& box = Child<QLineEdit>(window, "txtFrameSize_0");
            box.setFocus();
            box.selectAll();
            QStringList texts;
            AnswerNextBox(texts);
            QTest::keyClicks(&box, "x");
            QCOMPARE(texts, QStringList("Not a valid number"));
            QCOMPARE(box.selectedText(), QStringLiteral("x"));
        });
    }

    void OnlyTheUserScaleTakesAScale() {
        Run([](QDialog& window) {
            auto& scale = Child<QLineEdit>(window, "txtUserScale");
            QVERIFY(!scale.isEnabled());
            Press(window, "optScale_1");
            QCOMPARE(scale.text(), QStringLiteral("1"));
            QVERIFY(!scale.isEnabled());
            Press(window, "optScale_2");
            QVERIFY(scale.isEnabled());
            Press(window, "optScale_0");
            QCOMPARE(scale.text(), QStringLiteral("0"));
        });
    }

    void TheSheetTurnsWithTheOrientation() {
        Run([](QDialog& window) {
            const auto& sheet = Child<QWidget>(window, "pboxOrient");
            QCOMPARE(sheet.size(), QSize(100, 130));
            Press(window, "optOrientation_1");
            QCOMPARE(sheet.size(), QSize(130, 100));
            QCOMPARE(Child<QWidget>(window, "pboxOrientInner").geometry(), QRect(15, 0, 100, 100));
            Press(window, "btnOK");
        });
        QCOMPARE(desk_.options.PrintOrientation, std::int16_t{2});
    }

    void AColorIsStoredAtOnce() {
        Run([this](QDialog& window) {
            auto& patch = Child<QAbstractButton>(window, "pboxDisplayCutColor");
            QCOMPARE(patch.accessibleDescription(), QStringLiteral("#ff0000"));
            QVERIFY(patch.focusPolicy() & Qt::TabFocus);
            WhenShown([](QDialog& picker) {
                auto& colors = static_cast<QColorDialog&>(picker);
                QCOMPARE(colors.currentColor(), QColor(255, 0, 0));
                colors.setCurrentColor(QColor(1, 2, 3));
                colors.accept();
            });
            QTest::keyClick(&patch, Qt::Key_Space);
            QCOMPARE(desk_.options.Colors.DisplayCutColor, 1 + 2 * 256 + 3 * 65536);
            QCOMPARE(patch.accessibleDescription(), QStringLiteral("#010203"));
            WhenShown([](QDialog& picker) {
                static_cast<QColorDialog&>(picker).setCurrentColor(Qt::green);
                picker.reject();
            });
            patch.click();
            Press(window, "btnCancel");
        });
        QCOMPARE(desk_.options.Colors.DisplayCutColor, 1 + 2 * 256 + 3 * 65536);
    }

    void AnotherLanguageIsNotAvailableYet() {
        Run([](QDialog& window) {
            auto& language = Child<QComboBox>(window, "cmbLanguage");
            language.setCurrentIndex(3);
            QCOMPARE(PressToBox(window, "btnOK"), QStringLiteral("German is not yet available"));
            QCOMPARE(language.currentText(), QStringLiteral("English"));
            QVERIFY(window.isVisible());
        });
    }

    void ALanguageFromElsewhereIsShown() {
        desk_.options.Language = "Dutch";
        Run([](QDialog& window) {
            QCOMPARE(Child<QComboBox>(window, "cmbLanguage").currentIndex(), -1);
            QCOMPARE(Child<QComboBox>(window, "cmbLanguage").placeholderText(), QStringLiteral("Dutch"));
        });
    }

    void TheAssistantSaysThatItIsToCome() {
        Run([](QDialog& window) {
            Child<QTabWidget>(window, "SSTab2").setCurrentIndex(2);
            QVERIFY(PressToBox(window, "btnCalibAssist").contains("calibration factors"));
        });
    }

    void OpensOnTheTabThatIsAskedFor() {
        Run([](QDialog& window) { QCOMPARE(OpenTab(window), 4); }, OptionsDialog::DxfTab);
    }

    void HelpOpensItsTopic() {
        std::vector<int> topics;
        desk_.ui.showHelp = [&](int topic) { topics.push_back(topic); };
        Run([](QDialog& window) { Press(window, "btnHelp"); });
        desk_.ui.showHelp = {};
        QCOMPARE(topics, std::vector<int>{OptionsDialog::HelpContextID});
    }

  private:
    void Run(std::function<void(QDialog&)> user, int tab = OptionsDialog::GeneralTab) {
        OptionsDialog dialog(desk_.options, desk_.ui, desk_.files, '.', tab);
        WhenShown(std::move(user));
        desk_.ui.RunModal(dialog);
        status_ = dialog.lblStatus;
    }

    DialogDesk desk_;
    std::string status_;
};

static const Registered<OptionsWindow> registeredOptionsWindow("OptionsWindow");

}  // namespace korvet::desktop

#include "dialogs_options_test.moc"
