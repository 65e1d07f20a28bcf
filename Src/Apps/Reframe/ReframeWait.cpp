#include <Apps/Reframe/ReframeWait.h>

#include <KxCore/KxInterrupt.h>

#include <QEventLoop>
#include <QTimer>

bool ReframeWait::Run(QEventLoop& loop)
{
    constexpr int lookEveryMs = 50;
    bool interrupted = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        interrupted = KxInterrupt::IsRequested();
        if (interrupted) {
            loop.quit();
        }
    });
    timer.start(lookEveryMs);
    loop.exec();
    return !interrupted;
}
