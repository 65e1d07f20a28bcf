#pragma once

#include <QCoreApplication>
#include <QEvent>

/// What ThreadSanitizer has to know of the synchronisation inside Qt.
namespace QtSynchronization
{

/// To be called in the receiver's thread before it handles an event. Only in builds with ThreadSanitizer.
void EventArrives();

/// A QCoreApplication or QApplication that reports the arrival of events.
template<typename Application>
class ApplicationFor : public Application
{
public:
    using Application::Application;

#ifdef __SANITIZE_THREAD__
    bool notify(QObject* receiver, QEvent* event) override
    {
        EventArrives();
        return Application::notify(receiver, event);
    }
#endif
};

} // namespace QtSynchronization
