#include <KxWidgets/Windows/KxWindowManagerCare.h>

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace
{

constexpr int SettlingMs = 5000;

QWidget* WindowUnder(const QWidget& dialog)
{
    return dialog.parentWidget() != nullptr ? dialog.parentWidget()->window() : nullptr;
}

} // namespace

bool KxWindowManagerCare::IsNeededOn(const QString& platform)
{
    return platform == QLatin1String("xcb");
}

KxWindowManagerCare::KxWindowManagerCare(QWidget& dialog)
    : QObject(&dialog)
    , m_dialog(dialog)
{
    m_settling.setSingleShot(true);
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
        RestoreOrder();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void KxWindowManagerCare::HandleShow()
{
    // A press that a control accepts does not reach the dialog itself.
    m_dialog.windowHandle()->installEventFilter(this);
    m_position = m_dialog.pos();
    m_settling.start(SettlingMs);
}

void KxWindowManagerCare::HandleMove()
{
    if (!m_settling.isActive()) {
        return;
    }
    if (!m_dialog.pos().isNull()) {
        m_position = m_dialog.pos();
    } else if (!m_position.isNull()) {
        m_settling.stop();
        QTimer::singleShot(0, &m_dialog, [this] { m_dialog.move(m_position); });
    }
}

void KxWindowManagerCare::RestoreOrder()
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
