// Debian's Qt is not built for ThreadSanitizer, which therefore does not see that a queued call, a task of a pool or a
// QMutex passes data from one thread to another. These functions come before Qt's own and report what Qt synchronises;
// without them every transfer would have to be suppressed, and real races with it. Built only for ThreadSanitizer.
#include <Tests/Support/QtSynchronization.h>

#include <QCoreApplication>
#include <QFutureInterface>
#include <QFutureWatcher>
#include <QMetaObject>
#include <QMutex>
#include <QRunnable>
#include <QThreadPool>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <utility>

namespace
{

// Events have no address that sender and receiver both know, so all of them share this one.
char s_events;

template<typename Function>
Function Next(const char* symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

// Runs what a pool was given; the pool deletes it.
class HandedOver : public QRunnable
{
public:
    explicit HandedOver(QRunnable* task)
        : m_task(task)
    {
    }

    bool IsOf(const QRunnable* task) const { return m_task == task; }
    void Release() { __tsan_release(this); }

    void run() override
    {
        __tsan_acquire(this);
        m_task->run();
        if (m_task->autoDelete()) {
            delete m_task;
        }
    }

private:
    QRunnable* const m_task;
};

// Created for a future that this thread is about to start.
thread_local HandedOver* s_handedOver = nullptr;

} // namespace

void QtSynchronization::EventArrives()
{
    __tsan_acquire(&s_events);
}

void QBasicMutex::lockInternal() noexcept
{
    static const auto next = Next<void (*)(QBasicMutex*)>("_ZN11QBasicMutex12lockInternalEv");
    next(this);
    __tsan_acquire(this);
}

void QBasicMutex::unlockInternal() noexcept
{
    static const auto next = Next<void (*)(QBasicMutex*)>("_ZN11QBasicMutex14unlockInternalEv");
    __tsan_release(this);
    next(this);
}

void QMutex::lock() noexcept
{
    static const auto next = Next<void (*)(QMutex*)>("_ZN6QMutex4lockEv");
    next(this);
    __tsan_acquire(this);
}

void QMutex::unlock() noexcept
{
    static const auto next = Next<void (*)(QMutex*)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    next(this);
}

// A future takes back its task from the pool if it has not started yet, so the pool's original tasks are recorded.
void QFutureInterfaceBase::setRunnable(QRunnable* runnable)
{
    static const auto next =
        Next<void (*)(QFutureInterfaceBase*, QRunnable*)>("_ZN20QFutureInterfaceBase11setRunnableEP9QRunnable");
    s_handedOver = new HandedOver(runnable);
    next(this, s_handedOver);
}

void QThreadPool::start(QRunnable* runnable, int priority)
{
    static const auto next = Next<void (*)(QThreadPool*, QRunnable*, int)>("_ZN11QThreadPool5startEP9QRunnablei");
    HandedOver* task = std::exchange(s_handedOver, nullptr);
    if (task == nullptr || !task->IsOf(runnable)) {
        task = new HandedOver(runnable);
    }
    task->Release();
    next(this, task, priority);
}

// The watcher receives the end of a task as an event.
void QFutureInterfaceBase::reportFinished()
{
    static const auto next = Next<void (*)(QFutureInterfaceBase*)>("_ZN20QFutureInterfaceBase14reportFinishedEv");
    __tsan_release(&s_events);
    next(this);
}

void QFutureInterfaceBase::waitForFinished()
{
    static const auto next = Next<void (*)(QFutureInterfaceBase*)>("_ZN20QFutureInterfaceBase15waitForFinishedEv");
    next(this);
    __tsan_acquire(&s_events);
}

void QFutureWatcherBase::waitForFinished()
{
    static const auto next = Next<void (*)(QFutureWatcherBase*)>("_ZN18QFutureWatcherBase15waitForFinishedEv");
    next(this);
    __tsan_acquire(&s_events);
}

bool QFutureWatcherBase::isRunning() const
{
    static const auto next = Next<bool (*)(const QFutureWatcherBase*)>("_ZNK18QFutureWatcherBase9isRunningEv");
    const bool runs = next(this);
    if (!runs) {
        __tsan_acquire(&s_events);
    }
    return runs;
}

void QMetaObject::activate(QObject* sender, const QMetaObject* meta, int signal, void** arguments)
{
    static const auto next =
        Next<void (*)(QObject*, const QMetaObject*, int, void**)>("_ZN11QMetaObject8activateEP7QObjectPKS_iPPv");
    __tsan_release(&s_events);
    next(sender, meta, signal, arguments);
}

bool QMetaObject::invokeMethodImpl(QObject* object, QtPrivate::QSlotObjectBase* slot, Qt::ConnectionType type,
                                   void* result)
{
    static const auto next = Next<bool (*)(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*)>(
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
    __tsan_release(&s_events);
    return next(object, slot, type, result);
}

void QCoreApplication::postEvent(QObject* receiver, QEvent* event, int priority)
{
    static const auto next =
        Next<void (*)(QObject*, QEvent*, int)>("_ZN16QCoreApplication9postEventEP7QObjectP6QEventi");
    __tsan_release(&s_events);
    next(receiver, event, priority);
}
