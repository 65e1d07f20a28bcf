#include <Apps/AutoReframe/Desktop/DesktopSession.h>
#include <Apps/AutoReframe/Desktop/ExportManners.h>
#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Tests/AutoReframe/Backend/FakeMediaBackend.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTextStream>

#include <unistd.h>

// ExportDriver: exports that check_desktop.py runs, one command a line: "add NAME", "progress N", "end", "fail
// MESSAGE", "cancel", "pause", "continue", "look", "look away". Each is answered by a line once it is done.

namespace
{

struct Driver {
    FakeMediaBackend backend;
    bool isLookedAt = false;
    ExportQueue queue{{[this](const ExportRequest& request, const KxRenderJob::Callbacks& callbacks) {
                           return backend.Render(request, callbacks);
                       },
                       {}},
                      nullptr};
    std::unique_ptr<DesktopSession> desktop = DesktopSession::Make();
    ExportManners manners{queue, *desktop, [this] { return isLookedAt; }, nullptr};

    void WaitForTask(bool isRunning) const
    {
        while ((queue.UnfinishedCount() > 0) != isRunning) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    void Run(const QString& command, const QString& value)
    {
        if (command == QLatin1String("add")) {
            ExportRequest request;
            request.settings.outputPath = QStringLiteral("/exports/") + value;
            queue.Add(request);
        } else if (command == QLatin1String("progress")) {
            backend.task->callbacks.progress(value.toInt());
        } else if (command == QLatin1String("end")) {
            backend.task->EndWell();
            WaitForTask(false);
        } else if (command == QLatin1String("fail")) {
            backend.task->End({KxOutcome::Failed, value, QString(), QString()});
            WaitForTask(false);
        } else if (command == QLatin1String("cancel")) {
            queue.CancelAll();
            WaitForTask(false);
        } else if (command == QLatin1String("pause") || command == QLatin1String("continue")) {
            queue.SetPaused(command == QLatin1String("pause"));
        } else if (command == QLatin1String("look")) {
            isLookedAt = value.isEmpty();
        }
    }
};

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    Driver driver;
    QTextStream commands(stdin);
    QTextStream answers(stdout);
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        const QString line = commands.readLine();
        if (line.isNull()) {
            QCoreApplication::quit();
            return;
        }
        driver.Run(line.section(QLatin1Char(' '), 0, 0), line.section(QLatin1Char(' '), 1));
        answers << "done " << line << Qt::endl;
    });
    return QCoreApplication::exec();
}
