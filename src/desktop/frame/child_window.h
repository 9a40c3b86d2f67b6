// The frame of one fitting window within the main window.
#pragma once

#include <QMdiSubWindow>
#include <functional>
#include <string>

#include "desktop/fitting/fitting_view.h"

namespace korvet::desktop {

/// A caption is shown as it stands: the toolkit's mark for unsaved windows is no part of it.
QString Title(const std::string& caption);

/// Whether a dialog is open: a window may be waiting for it and must not go under it.
bool IsBusy();

/// The frame of one fitting window. Closing it asks the main frame.
class ChildWindow : public QMdiSubWindow {
    Q_OBJECT
  public:
    ChildWindow(CFittingWindow& window, QWidget* parent);
    ~ChildWindow() override;

    [[nodiscard]] FittingView& View() const { return *view_; }

    /// Caption and contents as the model has them.
    void Project();

    /// Two thirds of the area of windows each way, where it is not maximised.
    [[nodiscard]] QSize sizeHint() const override;

    std::function<bool(CFittingWindow&)> mayClose;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void TakeShape();

    FittingView* view_;
};

}  // namespace korvet::desktop
