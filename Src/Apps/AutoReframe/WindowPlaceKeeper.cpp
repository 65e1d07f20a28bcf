#include "WindowPlaceKeeper.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace
{

/// From then on a window in the corner was put there by the person.
constexpr int SettledMs = 2000;

} // namespace

WindowPlaceKeeper::WindowPlaceKeeper(QApplication& application)
    : QObject(&application)
{
    application.installEventFilter(this);
}

WindowPlaceKeeper::~WindowPlaceKeeper() = default;

bool WindowPlaceKeeper::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Move) {
        auto* const window = qobject_cast<QWidget*>(watched);
        if (window != nullptr && window->windowType() == Qt::Dialog) {
            event->type() == QEvent::Show ? Remember(*window) : PutBack(*window);
        }
    }
    return QObject::eventFilter(watched, event);
}

void WindowPlaceKeeper::Remember(QWidget& window)
{
    // The window may still choose its place while it deals with the event.
    QTimer::singleShot(0, &window, [this, &window] { m_places.insert(&window, window.pos()); });
    QTimer::singleShot(SettledMs, this, [this, key = &window] { m_places.remove(key); });
}

void WindowPlaceKeeper::PutBack(QWidget& window)
{
    const QPoint place = m_places.value(&window);
    if (!place.isNull() && window.pos().isNull()) {
        m_places.remove(&window);
        QTimer::singleShot(0, &window, [&window, place] { window.move(place); });
    }
}
