#include <Apps/AutoReframe/AutoReframePlatform.h>
#include <Apps/AutoReframe/AutoReframeProgram.h>
#include <KxCore/KxInterrupt.h>
#include <KxCore/KxMemory.h>
#include <KxCore/KxSpdlog.h>
#include <KxCore/KxThread.h>

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <optional>

namespace
{

/// Prints the text that was asked for and returns the exit status; nothing if the program is to run.
std::optional<int> PrintAndEnd(const AutoReframeOptions::Parsed& parsed)
{
    if (parsed.text.isEmpty()) {
        return std::nullopt;
    }
    std::fputs(parsed.text.toLocal8Bit().constData(), parsed.exitStatus == 0 ? stdout : stderr);
    return parsed.exitStatus;
}

/// Help and version need no display.
bool PrintsWithoutDisplay(int argc, char** argv)
{
    if (std::none_of(argv + 1, argv + argc, [](const char* argument) { return *argument == '-'; })) {
        return false;
    }
    const QCoreApplication application(argc, argv);
    const AutoReframeOptions::Parsed parsed = AutoReframeOptions::Parse(QCoreApplication::arguments());
    return parsed.exitStatus == 0 && PrintAndEnd(parsed);
}

void PrepareQt()
{
    // Nothing here is drawn with OpenGL, and loading its driver takes longer than all the rest of the start.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION")) {
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    }
    AutoReframePlatform::Apply();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#if defined(Q_OS_WIN)
    // Windows scales screens by quarters, all of them sharp; elsewhere factors such as 1.04 come from a monitor's size.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
}

int Run(int argc, char** argv)
{
    if (PrintsWithoutDisplay(argc, argv)) {
        return 0;
    }
    KxMemory::KeepNoPictures();
    PrepareQt();
    QApplication application(argc, argv);
    AutoReframePlatform::Restore();
    QCoreApplication::setApplicationName(QStringLiteral("Auto Reframe"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KR_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("auto-reframe"));
    KxLogSettings::RouteQtMessages();

    const AutoReframeOptions::Parsed parsed = AutoReframeOptions::Parse(QCoreApplication::arguments());
    if (const std::optional<int> status = PrintAndEnd(parsed)) {
        return *status;
    }
    KxInterrupt::Install();
    return AutoReframeProgram::Run(application, parsed.options);
}

} // namespace

int main(int argc, char** argv)
{
    int status = 1;
    if (const KxError failure = KxCallGuarded([&] { status = Run(argc, argv); })) {
        std::fprintf(stderr, "auto-reframe: %s.\n", failure->toLocal8Bit().constData());
    }
    return status;
}
