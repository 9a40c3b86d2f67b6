// The help window in a test.
#pragma once

#include <QString>
#include <QTextBrowser>

#include "desktop/help/help_window.h"

namespace korvet::desktop {

/// A part of the window by its name. The window must have been shown once.
template <typename T>
T& Part(const HelpWindow& help, const char* name) {
    T* const part = help.Window()->findChild<T*>(QString::fromLatin1(name));
    if (part == nullptr) {
        qFatal("no %s", name);
    }
    return *part;
}

/// The file name of the page that is shown.
inline QString ShownPage(const HelpWindow& help) {
    return Part<QTextBrowser>(help, "txtHelp").source().fileName();
}

}  // namespace korvet::desktop
