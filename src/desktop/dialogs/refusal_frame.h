// Where a message points to.
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

namespace korvet::desktop {

/// A red frame round the control that a message is about, which it brings into sight, for as long as it
/// lives.
class RefusalFrame {
  public:
    /// Looks for a control of that name that can be seen: in the dialog on top, or else in the window that is
    /// worked in. Nothing is framed where there is none.
    RefusalFrame(QWidget* over, const QString& control);
    ~RefusalFrame();
    RefusalFrame(const RefusalFrame&) = delete;
    RefusalFrame& operator=(const RefusalFrame&) = delete;

  private:
    QPointer<QWidget> frame_;
};

}  // namespace korvet::desktop
