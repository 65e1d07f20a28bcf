#include <Apps/AutoReframe/AutoReframePlatform.h>
#include <Apps/AutoReframe/AutoReframeProgram.h>
#include <KxCore/KxInterrupt.h>
#include <KxCore/KxLanguage.h>
#include <KxCore/KxMemory.h>
#include <KxCore/KxPlatform.h>
#include <KxCore/KxSpdlog.h>
#include <KxCore/KxTerminal.h>
#include <KxCore/KxThread.h>

#include <QApplication>

#include <cstdio>

namespace
{

/// Before the display is opened: help, version and error messages need none.
AutoReframeOptions::Parsed Parse(int& argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    KxLanguage::Install(KxLanguage::OfCommandLine(arguments));
    return AutoReframeOptions::Parse(arguments);
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
    if (KxPlatform::ScalesByQuarters()) {
        QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    }
}

int Run(int argc, char** argv)
{
    KxTerminal::Attach();
    const AutoReframeOptions::Parsed parsed = Parse(argc, argv);
    if (!parsed.text.isEmpty()) {
        std::fputs(parsed.text.toLocal8Bit().constData(), parsed.exitStatus == 0 ? stdout : stderr);
        return parsed.exitStatus;
    }
    KxMemory::KeepNoPictures();
    PrepareQt();
    QApplication application(argc, argv);
    AutoReframePlatform::Restore();
    QCoreApplication::setApplicationName(QStringLiteral("Auto Reframe"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KR_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("auto-reframe"));
    KxLogSettings::RouteQtMessages();
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
