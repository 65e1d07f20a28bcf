#include <Apps/AutoReframe/AutoReframeProgram.h>
#include <KxCore/KxInterrupt.h>
#include <KxCore/KxMemory.h>
#include <KxCore/KxSpdlog.h>

#include <QApplication>

#include <cstdio>
#include <optional>

namespace
{

/// Prints what there is to print; nothing when the program is to run.
std::optional<int> PrintAndEnd(const AutoReframeOptions::Parsed& parsed)
{
    if (parsed.text.isEmpty()) {
        return std::nullopt;
    }
    std::fputs(parsed.text.toLocal8Bit().constData(), parsed.exitStatus == 0 ? stdout : stderr);
    return parsed.exitStatus;
}

} // namespace

int main(int argc, char** argv)
{
    // Help and version need no display.
    QStringList given;
    for (int i = 1; i < argc; ++i) {
        given += QString::fromLocal8Bit(argv[i]);
    }
    const AutoReframeOptions::Parsed early = AutoReframeOptions::Parse(given);
    if (!early.text.isEmpty() && early.exitStatus == 0) {
        return *PrintAndEnd(early);
    }

    KxMemory::KeepNoPictures();
    // Nothing here is drawn with OpenGL, and loading its driver takes longer than all the rest of the start.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION")) {
        qputenv("QT_XCB_GL_INTEGRATION", "none");
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#if defined(Q_OS_WIN)
    // Screens there are scaled by quarters, all of them sharp; elsewhere factors such as 1.04 come from a monitor's
    // size.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Auto Reframe"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KR_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("auto-reframe"));
    KxLogSettings::RouteQtMessages();

    const AutoReframeOptions::Parsed parsed = AutoReframeOptions::Parse(QCoreApplication::arguments().mid(1));
    if (const std::optional<int> status = PrintAndEnd(parsed)) {
        return *status;
    }
    KxInterrupt::Install();
    return AutoReframeProgram::Run(application, parsed.options);
}
