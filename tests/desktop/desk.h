// The main window on a desktop without a screen, with the recording user interface behind it.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <string>
#include <vector>

#include "desktop/frame/main_window.h"
#include "tests/support/recording_desktop.h"
#include "tests/support/test_context.h"
#include "window/views.h"

namespace korvet::desktop {

/// Does something in the next modal window, and closes those that are still open afterwards.
class ModalVisitor : public QObject {
  public:
    std::vector<std::string> seen;        ///< object names of the modal windows, in order
    std::function<void(QWidget&)> visit;  ///< for the first one; may be empty

    ModalVisitor() {
        timer_.setInterval(5);
        connect(&timer_, &QTimer::timeout, this, [this] { Look(); });
        timer_.start();
    }

  private:
    void Look() {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal == nullptr) {
            modal = QApplication::activePopupWidget();
        }
        if (modal == nullptr || modal == last_) {
            if (modal != nullptr) {
                modal->close();
            }
            return;
        }
        last_ = modal;
        seen.push_back(modal->objectName().toStdString());
        if (visit) {
            const auto now = std::exchange(visit, nullptr);
            now(*modal);
        } else {
            modal->close();
        }
        last_ = nullptr;
    }

    QTimer timer_;
    QWidget* last_ = nullptr;
};

/// Clicks a button of a window by its control name.
inline void Click(QWidget& window, const char* name) {
    auto* button = window.findChild<QAbstractButton*>(QString::fromLatin1(name));
    if (button == nullptr) {
        qFatal("no button %s", name);
    }
    button->click();
}

struct Desk {
    TestShell shell;
    RecordingHelp help;
    MemorySettings settings;
    MainWindow window{shell.context, help, settings};
    std::vector<std::string> seenAtStart;  ///< modal windows over the frame as it came up

    Desk() {
        ModalVisitor visitor;
        window.resize(1180, 860);
        window.show();
        window.Frame().Activate();
        window.activateWindow();
        QApplication::processEvents();
        seenAtStart = visitor.seen;
    }

    /// File > New with a click on a tile of the menu.
    CFittingWindow& New(int tile = 0) {
        ModalVisitor visitor;
        visitor.visit = [tile](QWidget& menu) { Click(menu, ("Picture1_" + std::to_string(tile)).c_str()); };
        window.Frame().RunMenu("mnuFileNew");
        window.Project();
        QApplication::processEvents();
        return *window.Frame().ActiveChild();
    }

    [[nodiscard]] ChildWindow& ActiveView() {
        return *static_cast<ChildWindow*>(window.Area().currentSubWindow());
    }
};

/// Types the sample sizes of the type that a window shows.
inline void TypeSamples(CFittingWindow& window) {
    for (const BoxEntry& box : window.Table().pages[static_cast<std::size_t>(window.dtype)].boxes) {
        window.ChangeBox(static_cast<std::size_t>(box.index), std::string(box.sample));
    }
    if (window.Table().sampleMesh != nullptr) {
        window.mesh = window.Table().sampleMesh();
    }
}

enum class State { NoChild, NoView, Refused, Model, Pattern };

/// Brings a new window of a cone into a state.
inline void Bring(CFittingWindow& window, State state) {
    if (state == State::NoView) {
        return;
    }
    TypeSamples(window);
    window.ClickView(state == State::Pattern ? PatternButton : 0);
    if (state == State::Refused) {
        window.ChangeBox(4, "-1");
        window.Redraw();
    }
}

}  // namespace korvet::desktop
