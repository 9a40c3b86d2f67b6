// The frame that a parameter page scrolls in.
#pragma once

#include <QScrollArea>

#include "desktop/sketch/sketch_page.h"

namespace korvet::desktop {

/// In a low window the page scrolls, so that the buttons below it stay in sight. It is never narrower than
/// its page and the bar beside it.
class SketchScroll final : public QScrollArea {
    Q_OBJECT

  public:
    /// Takes the page over.
    explicit SketchScroll(SketchPage* page);

    /// SketchPage::TakeWidth of its page.
    bool TakeWidth(double boxes);

    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    bool event(QEvent* event) override;

  private:
    SketchPage* page_;
};

}  // namespace korvet::desktop
