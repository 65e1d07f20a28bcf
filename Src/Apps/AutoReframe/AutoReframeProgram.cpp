#include <Apps/AutoReframe/AutoReframeProgram.h>

#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Apps/AutoReframe/MainWindow.h>
#include <KxCore/KxInterrupt.h>

#include <KxWidgets/KxUIStyle.h>

#include <QApplication>
#include <QIcon>
#include <QTimer>

namespace
{

constexpr int Interrupted = 130;

/// Ends the program without a question, whatever is open.
void EndWhenInterrupted(QTimer& timer, MainWindow& window)
{
    constexpr int lookEveryMs = 100;
    QObject::connect(&timer, &QTimer::timeout, &window, [&timer, &window] {
        if (KxInterrupt::IsRequested()) {
            timer.stop();
            window.Exports().CancelAll();
            QCoreApplication::exit(Interrupted);
        }
    });
    timer.start(lookEveryMs);
}

} // namespace

int AutoReframeProgram::Run(QApplication& application, const AutoReframeOptions& options)
{
    KxUIStyle::Apply(application);
    KxUIStyle::InstallTranslation(application);
    MediaBackendLoader backend(&MediaBackendLoader::LoadLibrary, nullptr);
    MainWindow window(backend);
    QObject::connect(&window, &MainWindow::sigPainted, &backend, [&backend] {
        QApplication::setWindowIcon(QIcon(QStringLiteral(":/AutoReframe/auto-reframe.svg")));
        backend.Start();
    });
    window.show();
    window.Open(options.files);
    QTimer interrupt;
    EndWhenInterrupted(interrupt, window);
    return QApplication::exec();
}
