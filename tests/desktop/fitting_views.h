// Fitting windows of tables made by hand, and how the tests look at their views.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

#include "desktop/fitting/fitting_view.h"
#include "fittings/windows.h"
#include "tests/support/test_context.h"

namespace korvet::desktop {

/// A window with its view, outside any frame.
struct ViewOfTable {
    explicit ViewOfTable(const WindowTable& shown)
        : table(shown),
          row{"Trial", "frmTrial", "CTrial", 0, AllLaps, &table},
          window(shell.context, row, nullptr),
          view(window, nullptr) {
        view.afterEvent = [this] {
            ++events;
            view.Project();
        };
        view.resize(1000, 900);
        view.show();
        view.activateWindow();
        if (!QTest::qWaitForWindowActive(&view)) {
            qFatal("the view does not become active");
        }
    }

    template <typename T = QAbstractButton>
    [[nodiscard]] T* Find(const char* name) const {
        return view.findChild<T*>(QString::fromLatin1(name));
    }

    /// The same, of a widget that must be there.
    template <typename T = QAbstractButton>
    [[nodiscard]] T& Get(const char* name) const {
        T* const found = Find<T>(name);
        if (found == nullptr) {
            qFatal("no control %s", name);
        }
        return *found;
    }

    TestShell shell;
    WindowTable table;
    CatalogueRow row;
    CFittingWindow window;
    FittingView view;
    int events = 0;
};

}  // namespace korvet::desktop
