// A fabricator's hands on a fitting window: typing, dragging, and a look at the drawing.
#pragma once

#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

#include "tests/desktop/desk.h"

namespace korvet::desktop {

inline QLineEdit& Box(Desk& desk, int index) {
    return *desk.ActiveView().findChild<QLineEdit*>(QString("txtParameter_%1").arg(index));
}

/// Types over what stands in a box, as a click into it and the keys do.
inline void Type(QLineEdit& box, const char* text) {
    box.setFocus(Qt::TabFocusReason);
    box.selectAll();
    QTest::keyClicks(&box, text);
}

inline void TypeCone(Desk& desk) {
    Type(Box(desk, 3), "300");
    Type(Box(desk, 4), "120");
    Type(Box(desk, 5), "250");
}

inline bool IsRed(const QLineEdit& box) {
    const QColor text = box.palette().color(QPalette::Text);
    return text.red() > text.green() + 60;
}

inline QWidget& Drawing(Desk& desk) {
    return *desk.ActiveView().findChild<QWidget*>("pboxGraphicWindow");
}

inline void Drag(QWidget& area, QPoint from, QPoint to) {
    QTest::mousePress(&area, Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, area.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&area, &move);
    QTest::mouseRelease(&area, Qt::LeftButton, Qt::NoModifier, to);
}

/// Notches of the wheel at a place; forward above 0.
inline void TurnWheel(QWidget& area, QPoint at, int notches, quint64 milliseconds) {
    QWheelEvent turn(at, area.mapToGlobal(at), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    turn.setTimestamp(milliseconds);
    QCoreApplication::sendEvent(&area, &turn);
}

/// Pixels of the drawing that are not its ground.
inline int Ink(QWidget& area) {
    const QImage picture = area.grab().toImage();
    int ink = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ink += (picture.pixel(x, y) & 0xffffff) != 0 ? 1 : 0;
        }
    }
    return ink;
}

}  // namespace korvet::desktop
