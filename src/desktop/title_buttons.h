// The buttons in the title bar of a fitting window.
#pragma once

#include <QStyle>

class QColor;
class QPainter;
class QStyleOptionTitleBar;

namespace korvet::desktop {

/// The buttons that are drawn here, of those that a title bar can have.
inline constexpr QStyle::SubControls TitleButtons =
    QStyle::SC_TitleBarMinButton | QStyle::SC_TitleBarMaxButton | QStyle::SC_TitleBarNormalButton |
    QStyle::SC_TitleBarCloseButton;

/// The colour of what stands on a title bar: of the palette's own where that can be seen, else black or
/// white.
QColor TitleInk(const QStyleOptionTitleBar& bar);

/// Draws those of the buttons that the bar has, where the style puts them.
void DrawTitleButtons(QPainter& painter, const QStyleOptionTitleBar& bar, const QStyle& style,
                      const QWidget* widget);

}  // namespace korvet::desktop
