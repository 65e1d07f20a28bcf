#pragma once

#include <QApplication>
#include <QImage>
#include <QList>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QObject>
#include <QPainter>
#include <QStringList>
#include <QWidget>

/// Functions to inspect and operate the module's widgets.
namespace WidgetProbe
{

/// The picture of `widget` itself, without its children and background.
inline QImage Paint(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// Paints the window's pending areas at once and delivers no other event.
inline void PaintPending(QWidget& window)
{
    QEvent request(QEvent::UpdateRequest);
    QApplication::sendEvent(&window, &request);
}

/// Counts the events of one kind that a widget gets.
class EventCounter : public QObject
{
public:
    EventCounter(QObject* watched, QEvent::Type type)
        : m_type(type)
    {
        watched->installEventFilter(this);
    }

    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type m_type;
};

/// Sends a mouse event straight to `widget`, as the system would while the button is held.
inline void SendMouse(QWidget& widget, QEvent::Type type, const QPoint& position, Qt::MouseButton button,
                      Qt::MouseButtons held)
{
    QMouseEvent event(type, position, widget.mapToGlobal(position), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

inline void Press(QWidget& widget, const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
{
    SendMouse(widget, QEvent::MouseButtonPress, position, button, button);
}

inline void MoveHeld(QWidget& widget, const QPoint& position)
{
    SendMouse(widget, QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton);
}

inline void Hover(QWidget& widget, const QPoint& position)
{
    SendMouse(widget, QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton);
}

inline void Release(QWidget& widget, const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
{
    SendMouse(widget, QEvent::MouseButtonRelease, position, button, Qt::NoButton);
}

/// The class's own methods of one kind, as the meta-object lists them.
inline QStringList MethodsOf(const QMetaObject& metaObject, QMetaMethod::MethodType type)
{
    QStringList methods;
    for (int index = metaObject.methodOffset(); index < metaObject.methodCount(); ++index) {
        const QMetaMethod method = metaObject.method(index);
        if (method.methodType() == type) {
            methods.append(QString::fromLatin1(method.methodSignature()));
        }
    }
    return methods;
}

} // namespace WidgetProbe
