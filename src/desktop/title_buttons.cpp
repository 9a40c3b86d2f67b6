#include "desktop/title_buttons.h"

#include <QPainter>
#include <QStyleOptionTitleBar>

#include "desktop/contrast.h"
#include "desktop/frame/icons.h"

namespace korvet::desktop {
namespace {

constexpr double LeastContrast = 3;  ///< that a control needs to be found

struct TitleButton {
    QStyle::SubControl control;
    const char* drawing;
};

constexpr TitleButton Drawings[] = {{QStyle::SC_TitleBarMinButton, "WindowMinimize"},
                                    {QStyle::SC_TitleBarMaxButton, "WindowMaximize"},
                                    {QStyle::SC_TitleBarNormalButton, "WindowRestore"},
                                    {QStyle::SC_TitleBarCloseButton, "WindowClose"}};

bool Has(const QStyleOptionTitleBar& bar, QStyle::SubControl control) {
    const auto state = static_cast<Qt::WindowStates>(bar.titleBarState);
    const bool mayShrink = bar.titleBarFlags.testFlag(Qt::WindowMinimizeButtonHint);
    const bool mayGrow = bar.titleBarFlags.testFlag(Qt::WindowMaximizeButtonHint);
    const bool small = state.testFlag(Qt::WindowMinimized);
    const bool large = state.testFlag(Qt::WindowMaximized);
    switch (control) {
        case QStyle::SC_TitleBarMinButton:
            return mayShrink && !small;
        case QStyle::SC_TitleBarMaxButton:
            return mayGrow && !large;
        case QStyle::SC_TitleBarNormalButton:
            return (mayShrink && small) || (mayGrow && large);
        default:
            return bar.titleBarFlags.testFlag(Qt::WindowSystemMenuHint);
    }
}

/// The drawing in one colour.
QPixmap Inked(const char* drawing, const QSize& size, qreal devicePixelRatio, const QColor& ink) {
    QPixmap picture = ToolIcon(drawing).pixmap(size, devicePixelRatio);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRect(QPoint(0, 0), size), ink);
    return picture;
}

}  // namespace

QColor TitleInk(const QStyleOptionTitleBar& bar) {
    const bool active = bar.titleBarState & Qt::WindowActive;
    const QColor ground = bar.palette.color(active ? QPalette::Highlight : QPalette::Window);
    const QColor own = bar.palette.color(active ? QPalette::HighlightedText : QPalette::WindowText);
    if (Contrast(own, ground) >= LeastContrast) {
        return own;
    }
    return Contrast(Qt::white, ground) > Contrast(Qt::black, ground) ? Qt::white : Qt::black;
}

void DrawTitleButtons(QPainter& painter, const QStyleOptionTitleBar& bar, const QStyle& style,
                      const QWidget* widget) {
    constexpr double Rounding = 3;
    const QColor ink = TitleInk(bar);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const TitleButton& button : Drawings) {
        const QRect place = style.subControlRect(QStyle::CC_TitleBar, &bar, button.control, widget);
        if (!bar.subControls.testFlag(button.control) || !Has(bar, button.control) || !place.isValid()) {
            continue;
        }
        if (bar.activeSubControls.testFlag(button.control)) {  // under the pointer, or pressed
            QColor touched = ink;
            touched.setAlphaF(bar.state.testFlag(QStyle::State_Sunken) ? 0.4F : 0.2F);
            painter.setBrush(touched);
            painter.drawRoundedRect(place, Rounding, Rounding);
        }
        painter.drawPixmap(place.topLeft(),
                           Inked(button.drawing, place.size(), painter.device()->devicePixelRatioF(), ink));
    }
    painter.restore();
}

}  // namespace korvet::desktop
