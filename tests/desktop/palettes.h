// A light and a dark desktop.
#pragma once

#include <QPalette>

namespace korvet::desktop {

inline QPalette LightPalette() {
    QPalette palette(QColor(239, 239, 239), QColor(246, 247, 249));
    palette.setColor(QPalette::ButtonText, QColor(20, 30, 40));
    return palette;
}

inline QPalette DarkPalette() {
    const QColor window(45, 45, 48);
    const QColor base(30, 30, 30);
    const QColor text(230, 230, 230);
    QPalette palette(text, window, window.lighter(), window.darker(), window.lighter(150), text, Qt::white,
                     base, window);
    palette.setColor(QPalette::AlternateBase, base.lighter(120));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
    }
    return palette;
}

}  // namespace korvet::desktop
