// The dialogs on the desktop in the hands of a test.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>
#include <utility>

#include "desktop/qt_ui.h"
#include "tests/support/memory_file_store.h"
#include "tests/support/recording_printers.h"
#include "window/context.h"

namespace korvet::desktop {

class StoppedClock final : public Clock {
  public:
    [[nodiscard]] std::string ShortDate() const override { return "1/2/03"; }
};

/// The program around a dialog.
struct DialogDesk {
    COptions options;
    MemoryFileStore files;
    StoppedClock clock;
    FrameModel frame;
    PatternSettingsDialog settings;
    QtUi ui{nullptr};
    RecordingPrinters printers;
    CPrintDialog printDialog{printers};
    WindowContext context{options, ui, files, clock, frame, settings, printDialog, '.'};

    DialogDesk() { ui.context = &context; }
};

/// A control of a dialog; the run ends when there is none of that name and kind.
template <typename T>
T& Child(const QWidget& window, const char* name) {
    T* const child = window.findChild<T*>(QString::fromLatin1(name));
    if (child == nullptr) {
        qFatal("no control %s", name);
    }
    return *child;
}

/// Lets `user` work on the window that is shown next. What is still open afterwards is closed, so that a
/// failed check ends the test.
inline void WhenShown(std::function<void(QDialog&)> user) {
    QTimer::singleShot(0, qApp, [user = std::move(user)] {
        auto* const window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (window == nullptr) {
            qFatal("no dialog is shown");
        }
        user(*window);
        if (window->isVisible()) {
            window->reject();
        }
    });
}

/// Answers the message box that is shown next, and keeps its text in `texts`.
inline void AnswerNextBox(QStringList& texts, QMessageBox::StandardButton answer = QMessageBox::Ok) {
    WhenShown([&texts, answer](QDialog& window) {
        auto* const box = qobject_cast<QMessageBox*>(&window);
        if (box == nullptr) {
            qFatal("another window than a message box is shown");
        }
        texts.append(box->text());
        QTest::mouseClick(box->button(answer), Qt::LeftButton);
    });
}

/// A press of a button, option or tick box that answers at once.
inline void Press(const QWidget& window, const char* name) {
    Child<QAbstractButton>(window, name).click();
}

/// A press that brings up a message box, which is answered; its text.
inline QString PressToBox(const QWidget& window, const char* name) {
    QStringList texts;
    AnswerNextBox(texts);
    Press(window, name);
    return texts.join(QLatin1Char('|'));
}

}  // namespace korvet::desktop
