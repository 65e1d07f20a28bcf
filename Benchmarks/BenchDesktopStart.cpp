// The desktop program, which ends here as soon as its window is painted.

#include <Apps/AutoReframe/MainWindow.h>

#include <QApplication>

#include <cstdlib>

namespace
{

/// Waits for the window to be shown and ends the process when it is painted.
class Watch : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            if (const auto* const window = qobject_cast<MainWindow*>(watched)) {
                connect(window, &MainWindow::sigPainted, this, [] { std::_Exit(0); });
                qApp->removeEventFilter(this);
            }
        }
        return QObject::eventFilter(watched, event);
    }
};

void EndWhenPainted()
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) {
        qApp->installEventFilter(new Watch(qApp));
    }
}
Q_COREAPP_STARTUP_FUNCTION(EndWhenPainted)

} // namespace
