#include "WindowManagerCare.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace
{

/// From then on a window in the corner was put there by the person.
constexpr int SettledMs = 2000;

} // namespace

WindowManagerCare::WindowManagerCare(QApplication& application)
    : QObject(&application)
{
    application.installEventFilter(this);
}

WindowManagerCare::~WindowManagerCare() = default;

bool WindowManagerCare::eventFilter(QObject* watched, QEvent* event)
{
    const auto dialog = [watched] {
        auto* const window = qobject_cast<QWidget*>(watched);
        return window != nullptr && window->windowType() == Qt::Dialog ? window : nullptr;
    };
    switch (event->type()) {
    case QEvent::Show:
        if (QWidget* const window = dialog()) {
            Remember(*window);
        }
        break;
    case QEvent::Move:
        if (QWidget* const window = dialog()) {
            PutBack(*window);
        }
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::WindowActivate:
        if (auto* const widget = qobject_cast<QWidget*>(watched); widget != nullptr) {
            PutInOrder(*widget->window());
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void WindowManagerCare::Remember(QWidget& window)
{
    // The window may still choose its place while it deals with the event.
    QTimer::singleShot(0, &window, [this, &window] { m_places.insert(&window, window.pos()); });
    QTimer::singleShot(SettledMs, this, [this, key = &window] { m_places.remove(key); });
}

void WindowManagerCare::PutBack(QWidget& window)
{
    const QPoint place = m_places.value(&window);
    if (!place.isNull() && window.pos().isNull()) {
        m_places.remove(&window);
        QTimer::singleShot(0, &window, [&window, place] { window.move(place); });
    }
}

void WindowManagerCare::PutInOrder(QWidget& dialog)
{
    if (dialog.windowType() != Qt::Dialog) {
        return;
    }
    RaiseToolWindows(dialog);
    // A box over the dialog raises the dialog with it, yet stays above the dialog's tool windows.
    if (dialog.parentWidget() != nullptr && RaiseToolWindows(*dialog.parentWidget()->window())) {
        dialog.raise();
    }
}

bool WindowManagerCare::RaiseToolWindows(const QWidget& owner)
{
    bool isAnyRaised = false;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        const QWidget* const parent = window->parentWidget();
        if (window->windowType() == Qt::Tool && window->isVisible() && parent != nullptr &&
            parent->window() == &owner) {
            window->raise();
            isAnyRaised = true;
        }
    }
    return isAnyRaised;
}
