// The desktop program, which in this build ends as soon as its window is painted.

#include <Apps/AutoReframe/MainWindow.h>

#include <QApplication>

#include <cstdlib>

namespace
{

/// Ends the process when the window is painted, before the program continues.
class Watch : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && qobject_cast<MainWindow*>(watched) != nullptr) {
            // Queued: the window and its children have not painted yet.
            QMetaObject::invokeMethod(
                this, [] { std::_Exit(0); }, Qt::QueuedConnection);
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
