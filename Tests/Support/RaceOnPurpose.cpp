// Races that ThreadSanitizer must report although Qt's functions are in the stacks. The argument chooses one.
#include <Tests/Support/QtSynchronization.h>

#include <QCoreApplication>
#include <QObject>
#include <QString>
#include <QtConcurrent>

#include <thread>

namespace
{

int s_count = 0;

void CountInPool()
{
    ++s_count;
}

void RaceWithPool()
{
    QFuture<void> counted = QtConcurrent::run(&CountInPool);
    ++s_count;
    counted.waitForFinished();
}

// The call is queued before the thread counts on, so nothing orders the two.
void RaceWithQueuedCall(QCoreApplication& application)
{
    QObject receiver;
    std::thread caller([&] {
        QMetaObject::invokeMethod(
            &receiver,
            [&application] {
                ++s_count;
                application.quit();
            },
            Qt::QueuedConnection);
        ++s_count;
    });
    application.exec();
    caller.join();
}

} // namespace

int main(int argc, char** argv)
{
    QtSynchronization::ApplicationFor<QCoreApplication> application(argc, argv);
    if (argc > 1 && QLatin1String(argv[1]) == QLatin1String("pool")) {
        RaceWithPool();
    } else {
        RaceWithQueuedCall(application);
    }
    return s_count == 2 ? 0 : 1;
}
