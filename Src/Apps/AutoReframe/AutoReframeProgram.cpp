#include <Apps/AutoReframe/AutoReframeProgram.h>

#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Desktop/DesktopSession.h>
#include <Apps/AutoReframe/Desktop/ExportManners.h>
#include <Apps/AutoReframe/LanguageChoice.h>
#include <Apps/AutoReframe/MainWindow.h>
#include <Apps/AutoReframe/Store/LibraryStore.h>
#include <Apps/AutoReframe/Theme/ProgramTheme.h>
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
            window.Interrupt();
            QCoreApplication::exit(Interrupted);
        }
    });
    timer.start(lookEveryMs);
}

} // namespace

int AutoReframeProgram::Run(QApplication& application, const AutoReframeOptions& options)
{
    ProgramTheme theme(application);
    KxUIStyle::Apply(application);
    KxUIStyle::InstallTranslation(application, LanguageChoice::Of(options.language));
    MediaBackendLoader backend(&MediaBackendLoader::LoadLibrary, nullptr);
    LibraryStore store(LibraryStore::ChooseFile(), nullptr);
    MainWindow window(backend, store);
    QObject::connect(&window, &MainWindow::sigPainted, &backend, [&backend, &store, &theme] {
        QApplication::setWindowIcon(QIcon(QStringLiteral(":/AutoReframe/auto-reframe.svg")));
        store.Open();
        backend.Start();
        theme.FollowSystem();
    });
    const std::unique_ptr<DesktopSession> desktop = DesktopSession::Make();
    const auto isLookedAt = [] { return QApplication::activeWindow() != nullptr; };
    const ExportManners manners(window.Exports(), *desktop, isLookedAt, nullptr);
    window.show();
    window.Open(options.files);
    QTimer interrupt;
    EndWhenInterrupted(interrupt, window);
    return QApplication::exec();
}
