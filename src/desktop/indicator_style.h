// Tick boxes and radio buttons that can be seen on a dark desktop.
#pragma once

#include <QProxyStyle>

namespace korvet::desktop {

/// The style of the desktop, but for the rim of tick boxes and radio buttons. That rim is drawn a shade
/// darker than the window, which on a dark desktop leaves nothing to see of a box that is not ticked.
class IndicatorStyle final : public QProxyStyle {
    Q_OBJECT

  public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

}  // namespace korvet::desktop
