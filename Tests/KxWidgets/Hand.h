#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

/// Mouse events as a window delivers them, in the widget's coordinates.
namespace Hand
{
inline void Send(QWidget& widget, QEvent::Type type, const QPoint& position, Qt::MouseButton button,
                 Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, widget.mapTo(widget.window(), position), widget.mapToGlobal(position), button,
                      buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

inline void Press(QWidget& widget, const QPoint& position)
{
    Send(widget, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
}

inline void Drag(QWidget& widget, const QPoint& position)
{
    Send(widget, QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton);
}

inline void Release(QWidget& widget, const QPoint& position)
{
    Send(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}

inline void Wheel(QWidget& widget, int eighthsOfDegree)
{
    const QPointF middle = QRectF(widget.rect()).center();
    QWheelEvent event(middle, widget.mapToGlobal(middle.toPoint()), QPoint(), QPoint(0, eighthsOfDegree), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

/// Shows the window and gives it the focus.
inline bool ShowActive(QWidget& window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    return QTest::qWaitForWindowActive(&window);
}
} // namespace Hand
