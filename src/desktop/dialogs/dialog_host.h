// What the windows of the dialogs need of the program around them.
#pragma once

#include <functional>

#include "dialogs/user_interface.h"

class QWidget;

namespace korvet {
struct WindowContext;
}

namespace korvet::desktop {

struct DialogHost {
    QWidget* parent = nullptr;  ///< the window to stand over; null: the middle of the screen
    UserInterface& ui;
    WindowContext* context = nullptr;             ///< null where there is none yet
    std::function<void(int)> showHelp = nullptr;  ///< by context number, 0 where there is no topic
};

/// The global options on top of another dialog, open on `tab`. Nothing without a context.
void RunOptionsOnTop(const DialogHost& host, int tab);

}  // namespace korvet::desktop
