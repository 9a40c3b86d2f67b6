#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "tests/desktop/desktop_test.h"
#include "tests/desktop/dialogs_fixture.h"

namespace korvet::desktop {
namespace {

void Retype(QLineEdit& edit, const char* text) {
    edit.selectAll();
    QTest::keyClicks(&edit, QString::fromLatin1(text));
}

QString BoxText(const QWidget& window, const char* name) {
    return Child<QLineEdit>(window, name).text();
}

CPatternSettings Lapped(std::int16_t mask) {
    CPatternSettings settings;
    settings.LapEnable = mask;
    settings.JoinType = 1;
    settings.LapSize0 = 11;
    settings.LapSize1 = 12;
    settings.LapSize2 = 13;
    return settings;
}

}  // namespace

class SettingsWindow : public QObject {
    Q_OBJECT
  private slots:
    void init() { desk_.settings = PatternSettingsDialog(); }

    void ShowsTheSettings() {
        CPatternSettings settings;
        settings.Thickness = 2.5;
        settings.InOutMean = 2;
        settings.segs = 60;
        settings.HalfPattern = true;
        settings.KerfEnabled = true;
        settings.KerfSpacing = 0.5;
        settings.JoinAngle = 45;
        Run(settings, [](QDialog& window) {
            QCOMPARE(window.objectName(), QStringLiteral("frmPatternSettings"));
            QCOMPARE(window.windowTitle(), QStringLiteral("Settings"));
            QCOMPARE(BoxText(window, "txtThickness"), QStringLiteral("2.5"));
            QCOMPARE(BoxText(window, "txtKerfSpacing"), QStringLiteral("0.5"));
            QVERIFY(Child<QRadioButton>(window, "optInOutMean_2").isChecked());
            QVERIFY(Child<QRadioButton>(window, "optFullHalf_1").isChecked());
            QCOMPARE(Child<QComboBox>(window, "cboSegs").currentText(), QStringLiteral("60"));
            QCOMPARE(Child<QComboBox>(window, "cboJoinAngle").currentText(), QStringLiteral("45"));
            QCOMPARE(Child<QComboBox>(window, "cboJoinAngle").count(), 12);
            QCOMPARE(Child<QGroupBox>(window, "fraJoinAngle").toolTip(), QStringLiteral("Angle of join"));
            QVERIFY(Child<QGroupBox>(window, "fraMaterial").isVisible());
            QVERIFY(!Child<QGroupBox>(window, "fraBranchMaterial").isVisible());
        });
    }

    void OkTakesWhatWasEntered() {
        CPatternSettings settings;
        settings.KerfEnabled = true;
        settings.TemplateTypeEnabled = true;
        const bool accepted = Run(settings, [](QDialog& window) {
            Retype(Child<QLineEdit>(window, "txtThickness"), "3.25");
            Retype(Child<QLineEdit>(window, "txtKerfSpacing"), "0.75");
            Press(window, "optInOutMean_1");
            Press(window, "optFullHalf_1");
            Press(window, "optTemplateType_1");
            Child<QComboBox>(window, "cboSegs").setCurrentIndex(5);
            Retype(*Child<QComboBox>(window, "cboJoinAngle").lineEdit(), "17.5");
            QTest::keyClick(&window, Qt::Key_Return);
            QVERIFY(!window.isVisible());
        });
        QVERIFY(accepted);
        QCOMPARE(settings.Thickness, 3.25);
        QCOMPARE(settings.KerfSpacing, 0.75);
        QCOMPARE(settings.InOutMean, std::int16_t{1});
        QCOMPARE(settings.PositionString, std::string("inside"));
        QVERIFY(settings.HalfPattern);
        QCOMPARE(settings.TemplateType, std::int16_t{1});
        QCOMPARE(settings.segs, 96);
        QCOMPARE(settings.JoinAngle, 17.5);
    }

    void EveryOtherWayOutIsCancel() {
        const std::vector<std::function<void(QDialog&)>> ways = {
            [](QDialog& window) { Press(window, "CancelButton"); },
            [](QDialog& window) { QTest::keyClick(&window, Qt::Key_Escape); },
            [](QDialog& window) { window.close(); }};
        for (const auto& leave : ways) {
            CPatternSettings settings;
            const bool accepted = Run(settings, [&](QDialog& window) {
                Retype(Child<QLineEdit>(window, "txtThickness"), "9");
                leave(window);
                QVERIFY(!window.isVisible());
            });
            QVERIFY(!accepted);
            QCOMPARE(settings.Thickness, 0.0);
            QCOMPARE(desk_.settings.lblStatus, std::string("  "));
        }
    }

    void AnEditIsTestedAtOnceAndTurnsRed() {
        CPatternSettings settings;
        Run(settings, [](QDialog& window) {
            auto& box = Child<QLineEdit>(window, "txtThickness");
            const QColor before = box.palette().color(QPalette::Text);
            Retype(box, "4");
            QVERIFY(box.palette().color(QPalette::Text) != before);
            QVERIFY(box.palette().color(QPalette::Text).red() > 150);
            QStringList texts;
            AnswerNextBox(texts);
            QTest::keyClicks(&box, "x");
            QCOMPARE(texts, QStringList("Not a valid number"));
            QCOMPARE(box.selectedText(), QStringLiteral("4x"));
            QTest::keyClicks(&box, "-5");
            QCOMPARE(box.text(), QStringLiteral("-5"));
        });
    }

    void OkRefusesWhatIsNoNumberAndGoesToTheBox() {
        CPatternSettings settings;
        const bool accepted = Run(settings, [](QDialog& window) {
            auto& box = Child<QLineEdit>(window, "txtThickness");
            Retype(box, "-");
            Child<QPushButton>(window, "btnOK").setFocus();
            QCOMPARE(PressToBox(window, "btnOK"), QStringLiteral("Not a valid number"));
            QVERIFY(window.isVisible());
            QCOMPARE(window.focusWidget(), &box);
            QCOMPARE(box.selectedText(), QStringLiteral("-"));
        });
        QVERIFY(!accepted);
    }

    void OkRefusesAThicknessBelowNothing() {
        CPatternSettings settings;
        Run(settings, [](QDialog& window) {
            auto& box = Child<QLineEdit>(window, "txtThickness");
            Retype(box, "-1");
            QCOMPARE(PressToBox(window, "btnOK"),
                     QStringLiteral("This dimension must be equal to or greater than 0"));
            QVERIFY(window.isVisible());
            QCOMPARE(window.focusWidget(), &box);
        });
        QCOMPARE(settings.Thickness, 0.0);
    }

    void ListsTakeFreeTextThatOkTests() {
        CPatternSettings settings;
        Run(settings, [](QDialog& window) {
            auto& segs = Child<QComboBox>(window, "cboSegs");
            QVERIFY(segs.isEditable());
            Retype(*segs.lineEdit(), "2.5");
            QCOMPARE(PressToBox(window, "btnOK"),
                     QStringLiteral("This dimension must be an integer (whole number)"));
            QCOMPARE(window.focusWidget(), &segs);
            Retype(*segs.lineEdit(), "abc");
            QCOMPARE(PressToBox(window, "btnOK"), QStringLiteral("Not a valid number"));
            QCOMPARE(segs.lineEdit()->selectedText(), QStringLiteral("abc"));
            Retype(*segs.lineEdit(), "1");
            QCOMPARE(segs.currentText(), QStringLiteral("1"));
            Retype(*Child<QComboBox>(window, "cboJoinAngle").lineEdit(), "?");
            QCOMPARE(PressToBox(window, "btnOK"), QStringLiteral("Not a valid number"));
            QCOMPARE(window.focusWidget(), &Child<QComboBox>(window, "cboJoinAngle"));
        });
    }

    void APolygonOffersHalfSidesAsJoinAngles() {
        CPatternSettings settings;
        settings.NoOfSides = 4;
        Run(settings, [](QDialog& window) {
            QStringList list;
            const auto& combo = Child<QComboBox>(window, "cboJoinAngle");
            for (int i = 0; i < combo.count(); ++i) {
                list.append(combo.itemText(i));
            }
            QCOMPARE(list, QStringList({"0", "45", "90", "135", "180", "225", "270", "315"}));
        });
    }

    void LapEnablesTheSizesThatTheFittingHas() {
        CPatternSettings settings = Lapped(SeamLapOnly);
        const bool accepted = Run(settings, [](QDialog& window) {
            QCOMPARE(BoxText(window, "txtLapSize_1"), QStringLiteral("12"));
            QVERIFY(Child<QLineEdit>(window, "txtLapSize_0").isEnabled());
            Press(window, "optJoinType_1");
            QVERIFY(!Child<QLineEdit>(window, "txtLapSize_0").isEnabled());
            QVERIFY(Child<QLineEdit>(window, "txtLapSize_1").isEnabled());
            QVERIFY(!Child<QLineEdit>(window, "txtLapSize_2").isEnabled());
            QVERIFY(Child<QLabel>(window, "lblLapSize").isEnabled());
            Press(window, "optJoinType_0");
            QVERIFY(!Child<QLineEdit>(window, "txtLapSize_1").isEnabled());
            QVERIFY(!Child<QLabel>(window, "lblLapSize").isEnabled());
            Press(window, "optJoinType_1");
            Press(window, "btnOK");
        });
        QVERIFY(accepted);
        QCOMPARE(settings.JoinType, std::int16_t{1});
    }

    void AJoinTypeOfLapShowsButtOnAFreshDialog() {
        CPatternSettings settings = Lapped(AllLaps);
        Run(settings, [](QDialog& window) {
            QVERIFY(Child<QRadioButton>(window, "optJoinType_0").isChecked());
            QVERIFY(!Child<QRadioButton>(window, "optJoinType_1").isChecked());
            Press(window, "optJoinType_1");
        });
        // The next window's dialog still has it selected.
        Run(settings,
            [](QDialog& window) { QVERIFY(Child<QRadioButton>(window, "optJoinType_1").isChecked()); });
    }

    void ALapNeedsASize() {
        CPatternSettings settings;
        settings.LapEnable = AllLaps;
        const bool accepted = Run(settings, [](QDialog& window) {
            Press(window, "optJoinType_1");
            QCOMPARE(PressToBox(window, "btnOK"),
                     QStringLiteral("A lap join has been requested but no 'Lap Size' is specified"));
            QVERIFY(window.isVisible());
            Retype(Child<QLineEdit>(window, "txtLapSize_2"), "6");
            Press(window, "btnOK");
        });
        QVERIFY(accepted);
        QCOMPARE(settings.LapSize2, 6.0);
    }

    void WhatAFittingHasNotIsGrey() {
        CPatternSettings settings;
        settings.HalfPatternDisable = true;
        settings.HalfPattern = true;
        settings.JoinAngleDisable = true;
        settings.MaterialDisable = true;
        Run(settings, [](QDialog& window) {
            for (const char* name :
                 {"optJoinType_0", "optJoinType_1", "txtLapSize_0", "txtLapSize_1", "txtLapSize_2",
                  "optFullHalf_0", "optFullHalf_1", "fraKerfSpacing", "txtKerfSpacing", "fraJoinAngle",
                  "cboJoinAngle", "fraTemplateType", "optTemplateType_0", "optTemplateType_1", "fraMaterial",
                  "txtThickness", "optInOutMean_0"}) {
                QVERIFY2(!Child<QWidget>(window, name).isEnabled(), name);
            }
            QVERIFY(Child<QRadioButton>(window, "optFullHalf_0").isChecked());
            QVERIFY(Child<QComboBox>(window, "cboSegs").isEnabled());
            Press(window, "btnOK");
        });
        QVERIFY(!settings.HalfPattern);
    }

    void BranchesHaveTwoThicknesses() {
        CPatternSettings settings;
        settings.BranchMaterialEnable = true;
        settings.MaterialDisable = true;
        Run(settings, [](QDialog& window) {
            QVERIFY(!Child<QGroupBox>(window, "fraMaterial").isVisible());
            QVERIFY(Child<QGroupBox>(window, "fraBranchMaterial").isVisible());
            Retype(Child<QLineEdit>(window, "txtThicknessA"), "2");
            Retype(Child<QLineEdit>(window, "txtThicknessB"), "3");
            Press(window, "optInOutMeanBranch_2");
            Press(window, "btnOK");
        });
        QCOMPARE(settings.ThicknessA, 2.0);
        QCOMPARE(settings.ThicknessB, 3.0);
        QCOMPARE(settings.InOutMean, std::int16_t{2});
    }

    void ABoxThatIsGoneToIsSelected() {
        CPatternSettings settings;
        settings.Thickness = 12.5;
        Run(settings, [this](QDialog& window) {
            auto& box = Child<QLineEdit>(window, "txtThickness");
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            QTest::mouseClick(&box, Qt::LeftButton);
            QApplication::processEvents();
            QCOMPARE(box.selectedText(), QStringLiteral("12.5"));
            QCOMPARE(desk_.settings.focus, std::string("txtThickness"));
        });
    }

    void OptionsOpenOnTop() {
        CPatternSettings settings;
        QString above;
        Run(settings, [&](QDialog& window) {
            WhenShown([&](QDialog& options) {
                above = options.objectName();
                QCOMPARE(options.parentWidget(), &window);
            });
            Press(window, "btnOptions");
            QVERIFY(window.isVisible());
        });
        QCOMPARE(above, QStringLiteral("frmOptions"));
    }

    void HelpOpensItsTopic() {
        std::vector<int> topics;
        desk_.ui.showHelp = [&](int topic) { topics.push_back(topic); };
        CPatternSettings settings;
        Run(settings, [](QDialog& window) { Press(window, "btnHelp"); });
        desk_.ui.showHelp = {};
        QCOMPARE(topics, std::vector<int>{2020});
    }

  private:
    bool Run(CPatternSettings& settings, std::function<void(QDialog&)> user) {
        WhenShown(std::move(user));
        return LoadDialog(desk_.settings, settings, desk_.ui, desk_.options, '.') == Passed;
    }

    DialogDesk desk_;
};

static const Registered<SettingsWindow> registeredSettingsWindow("SettingsWindow");

}  // namespace korvet::desktop

#include "dialogs_settings_test.moc"
