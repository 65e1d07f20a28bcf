#include <KxWidgets/Windows/KxWindowManagerCare.h>

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace
{

constexpr int SettledMs = 5000;

QWidget* WindowUnder(const QWidget& dialog)
{
    return dialog.parentWidget() != nullptr ? dialog.parentWidget()->window() : nullptr;
}

} // namespace

KxWindowManagerCare::KxWindowManagerCare(QWidget& dialog)
    : QObject(&dialog)
    , m_dialog(dialog)
{
    m_settled.setSingleShot(true);
    dialog.installEventFilter(this);
}

KxWindowManagerCare::~KxWindowManagerCare() = default;

bool KxWindowManagerCare::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (watched == &m_dialog && !event->spontaneous()) {
            HandleShow();
        }
        break;
    case QEvent::Move:
        if (watched == &m_dialog) {
            HandleMove();
        }
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::WindowActivate:
        PutInOrder();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void KxWindowManagerCare::HandleShow()
{
    // A press that a control takes does not come to the dialog itself.
    m_dialog.windowHandle()->installEventFilter(this);
    m_place = m_dialog.pos();
    m_settled.start(SettledMs);
}

void KxWindowManagerCare::HandleMove()
{
    if (!m_settled.isActive()) {
        return;
    }
    if (!m_dialog.pos().isNull()) {
        m_place = m_dialog.pos();
    } else if (!m_place.isNull()) {
        m_settled.stop();
        QTimer::singleShot(0, &m_dialog, [this] { m_dialog.move(m_place); });
    }
}

void KxWindowManagerCare::PutInOrder()
{
    QList<QWidget*> fromBelow;
    for (QWidget* window = &m_dialog; window != nullptr; window = WindowUnder(*window)) {
        fromBelow.prepend(window);
    }
    bool isAnyRaised = false;
    for (QWidget* window : qAsConst(fromBelow)) {
        if (isAnyRaised) {
            window->raise();
        }
        isAnyRaised = RaiseToolWindows(*window) || isAnyRaised;
    }
}

bool KxWindowManagerCare::RaiseToolWindows(const QWidget& owner)
{
    bool isAnyRaised = false;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->windowType() == Qt::Tool && window->isVisible() && WindowUnder(*window) == &owner) {
            window->raise();
            isAnyRaised = true;
        }
    }
    return isAnyRaised;
}
