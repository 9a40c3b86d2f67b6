// The red frame round what a message is about.
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "desktop/qt_ui.h"
#include "dialogs/options_dialog.h"
#include "dialogs/small_dialogs.h"
#include "printing/printers_dialog.h"
#include "tests/desktop/desktop_test.h"
#include "tests/desktop/dialogs_fixture.h"
#include "tests/desktop/fitting_view_hands.h"

namespace korvet::desktop {

/// Something that a dialog refuses when it is left, told of one control of it.
struct BadEntry {
    std::function<void(DialogDesk&)> show;
    std::function<void(QDialog&)> spoil;
    const char* control;
    const char* leave = "btnOK";
};

namespace {

/// What is seen of the frame while a message is up.
struct Seen {
    bool framed = false;
    bool whole = false;
    QColor color;
    QRect about;
};

/// Shows a message about a control, looks, and answers it.
Seen ShowAbout(QWidget& over, const std::string& control) {
    QtUi ui(&over);
    Seen seen;
    QTimer::singleShot(0, [&] {
        for (QWidget* frame : over.findChildren<QWidget*>("refusalFrame")) {
            seen.framed = frame->isVisible();
            seen.whole = frame->visibleRegion().boundingRect() == frame->rect();
            seen.color = frame->grab().toImage().pixelColor(frame->width() / 2, 0);
            seen.about = frame->geometry();
        }
        QApplication::activeModalWidget()->findChild<QPushButton*>()->click();
    });
    (void)ui.Show({.text = "no", .style = ExclamationBox, .title = "User Error", .control = control});
    return seen;
}

QRect OnScreenOf(const QWidget& widget) {
    return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
}

/// Puts a text into a box or a list.
void Put(QDialog& window, const char* name, const char* text) {
    auto& control = Child<QWidget>(window, name);
    if (auto* const box = qobject_cast<QLineEdit*>(&control)) {
        box->setText(text);
    } else if (auto& list = Child<QComboBox>(window, name); list.isEditable()) {
        list.setEditText(text);
    } else {
        list.setCurrentText(text);
    }
}

void ShowSettings(DialogDesk& desk) {
    CPatternSettings settings;
    settings.LapEnable = AllLaps;
    (void)LoadDialog(desk.settings, settings, desk.ui, desk.options, '.');
}

void ShowOptions(DialogDesk& desk) {
    OptionsDialog dialog(desk.options, desk.ui, desk.files, '.');
    desk.ui.RunModal(dialog);
}

void ShowRotation(DialogDesk& desk) {
    RotateDialog dialog(desk.ui, desk.options, '.', 0.5);
    desk.ui.RunModal(dialog);
}

void ShowPrinters(DialogDesk& desk) {
    desk.printDialog.TakePdf();
    desk.printDialog.PrintScale = 0.5;
    PrintersDialog dialog(PrintersUse::Print, desk.printDialog, desk.ui, desk.options, '.');
    desk.ui.RunModal(dialog);
}

std::function<void(QDialog&)> Typed(const char* name, const char* text) {
    return [=](QDialog& window) { Put(window, name, text); };
}

std::vector<BadEntry> BadEntries() {
    std::vector<BadEntry> all;
    for (const char* const name : {"cboSegs", "cboJoinAngle", "txtKerfSpacing", "txtThickness"}) {
        all.push_back({ShowSettings, Typed(name, "1e"), name});
    }
    all.push_back({ShowSettings, [](QDialog& window) { Press(window, "optJoinType_1"); }, "txtLapSize_0"});
    for (const char* const name : {"CmbDefaultSegs", "txtUserScale", "txtDXFTextSize", "txtDisplayTextSize",
                                   "txtCalibrate_0", "txtCalibrate_1"}) {
        all.push_back({ShowOptions, Typed(name, "1e"), name});
    }
    for (const char* const name : {"txtDXFCutLayer", "txtDXFFoldLayer", "txtDXFTextLayer",
                                   "txtDXFBorderLayer", "txtDXFDimensionLayer"}) {
        all.push_back({ShowOptions, Typed(name, "a/b"), name});
    }
    all.push_back({ShowOptions, Typed("txtDisplayTextSize", "-1"), "txtDisplayTextSize", "btnSave"});
    all.push_back({ShowOptions, Typed("cmbLanguage", "French"), "cmbLanguage"});
    all.push_back({ShowRotation, Typed("txtAngle_1", "1e"), "txtAngle_1"});
    all.push_back({ShowPrinters, Typed("txtUserScale", "1e"), "txtUserScale", "btnPrint_1"});
    return all;
}

}  // namespace

class RefusalFrameTest : public QObject {
    Q_OBJECT
  private slots:
    void standsRoundTheBoxWhileTheMessageDoes() {
        Desk desk;
        desk.New(0);
        desk.New(0);  // of two windows with boxes of one name it is that which is worked in
        QLineEdit& box = Box(desk, 4);
        const Seen seen = ShowAbout(desk.window, "txtParameter_4");
        QVERIFY(seen.framed && seen.whole);
        QVERIFY(seen.color.red() > 180 && seen.color.green() < 130);
        QVERIFY(seen.about.contains(box.geometry()));
        QVERIFY(seen.about.width() <= box.width() + 10);
        QVERIFY(desk.window.findChildren<QWidget*>("refusalFrame").isEmpty());
    }

    void isScrolledIntoSight() {
        Desk desk;
        desk.New(8);
        desk.window.resize(1000, 420);
        QApplication::processEvents();
        int outOfSight = 0;
        for (const BoxEntry& entry : desk.window.Frame().ActiveChild()->Table().pages[0].boxes) {
            QLineEdit& box = Box(desk, entry.index);
            outOfSight += box.visibleRegion().boundingRect() == box.rect() ? 0 : 1;
            const Seen seen = ShowAbout(desk.window, box.objectName().toStdString());
            QVERIFY(seen.framed);
            QVERIFY(box.visibleRegion().boundingRect() == box.rect());
        }
        QVERIFY(outOfSight > 0);
    }

    void standsRoundOptionsAndTheTextSizeToo() {
        Desk desk;
        CFittingWindow* branch = nullptr;
        for (int tile = 0; branch == nullptr; ++tile) {
            CFittingWindow& window = desk.New(tile);
            branch = window.category == "Branch" ? &window : nullptr;
        }
        for (const auto& [name, widget] :
             {std::pair{"optPatternSelect", "fraPatternSelect"}, {"txtTextSize", "txtTextSize"}}) {
            const auto* const control = desk.ActiveView().findChild<QWidget*>(widget);
            const Seen seen = ShowAbout(desk.window, name);
            QVERIFY2(seen.framed && seen.whole, name);
            QVERIFY2(seen.about.width() >= control->width() && seen.about.width() <= control->width() + 10,
                     name);
        }
    }

    void standsRoundWhatADialogRefuses() {
        for (const BadEntry& bad : BadEntries()) {
            DialogDesk desk;
            int seen = 0;
            WhenShown([&](QDialog& window) {
                bad.spoil(window);
                WhenShown([&](QDialog& message) {
                    const auto* const frame = window.findChild<QWidget*>("refusalFrame");
                    QVERIFY2(frame != nullptr && frame->isVisible(), bad.control);
                    const auto& control = Child<QWidget>(window, bad.control);
                    QVERIFY2(OnScreenOf(*frame).contains(OnScreenOf(control)), bad.control);
                    QVERIFY2(OnScreenOf(*frame).height() <= control.height() + 10, bad.control);
                    QVERIFY2(frame->visibleRegion().boundingRect() == frame->rect(), bad.control);
                    ++seen;
                    message.accept();
                });
                Press(window, bad.leave);
                QVERIFY2(window.isVisible(), bad.control);
                QVERIFY2(window.findChildren<QWidget*>("refusalFrame").isEmpty(), bad.control);
            });
            bad.show(desk);
            QVERIFY2(seen == 1, bad.control);
        }
    }

    void aPasteIntoAnyNumberOfADialogIsTrimmed() {
        struct Numbers {
            void (*show)(DialogDesk&);
            std::vector<const char*> names;
        };
        const std::vector<Numbers> dialogs = {
            {ShowSettings, {"cboSegs", "cboJoinAngle", "txtKerfSpacing", "txtThickness", "txtLapSize_0"}},
            {ShowOptions,
             {"CmbDefaultSegs", "txtUserScale", "txtDXFTextSize", "txtDisplayTextSize", "txtCalibrate_0",
              "txtFrameSize_1"}},
            {ShowRotation, {"txtAngle_1"}},
            {ShowPrinters, {"txtUserScale"}}};
        for (const Numbers& dialog : dialogs) {
            DialogDesk desk;
            WhenShown([&](QDialog& window) {
                for (const char* const name : dialog.names) {
                    auto* const list = window.findChild<QComboBox*>(name);
                    QLineEdit& box = list != nullptr ? *list->lineEdit() : Child<QLineEdit>(window, name);
                    box.setText(" \t36\r\n");
                    QCOMPARE(box.text(), QString("36"));
                }
            });
            dialog.show(desk);
        }
    }

    void aMessageAboutNothingFramesNothing() {
        Desk desk;
        desk.New(0);
        QVERIFY(!ShowAbout(desk.window, "").framed);
        QVERIFY(!ShowAbout(desk.window, "txtNowhere").framed);
        QVERIFY(!ShowAbout(desk.window, "txtParameter_0").framed);  // on a page that is not shown
    }
};

static const Registered<RefusalFrameTest> registeredRefusalFrameTest("RefusalFrameTest");

}  // namespace korvet::desktop

#include "refusal_frame_test.moc"
