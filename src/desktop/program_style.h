// The style of the desktop with the program's own icons and order of buttons, and with tick boxes and radio
// buttons that can be seen.
#pragma once

#include <QProxyStyle>

namespace korvet::desktop {

/// The style of the desktop but for four things. The buttons of all dialogs stand in one order, OK, other
/// ones, Cancel and Help, and have words alone. Icons of message boxes, file dialogs and windows are of the
/// program's own drawing, so that all of it has one look, on dark desktops too. And the rim of tick boxes and
/// radio buttons, which is drawn a shade darker than the window, shows on a dark desktop, where it would
/// leave nothing to see of a box that is not ticked. So do the buttons of fitting windows.
class ProgramStyle final : public QProxyStyle {
    Q_OBJECT

  public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                                     const QWidget* widget) const override;
    [[nodiscard]] QPixmap standardPixmap(StandardPixmap standardPixmap, const QStyleOption* option,
                                         const QWidget* widget) const override;
};

}  // namespace korvet::desktop
