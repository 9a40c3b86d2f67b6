#include "desktop/indicator_style.h"

#include <QStyleOption>

namespace korvet::desktop {
namespace {

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

}  // namespace

void IndicatorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                   const QWidget* widget) const {
    const auto* const indicator = qstyleoption_cast<const QStyleOptionButton*>(option);
    const bool hasRim = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    if (indicator == nullptr || !hasRim || !IsDark(option->palette)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    QStyleOptionButton clear = *indicator;
    clear.palette.setColor(QPalette::Window, clear.palette.color(QPalette::WindowText));
    QProxyStyle::drawPrimitive(element, &clear, painter, widget);
}

}  // namespace korvet::desktop
