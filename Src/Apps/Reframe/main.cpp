#include <Apps/Reframe/ReframeExit.h>
#include <Apps/Reframe/ReframeProgram.h>
#include <KxCore/KxInterrupt.h>
#include <KxCore/KxLanguage.h>
#include <KxCore/KxMemory.h>
#include <KxCore/KxPlatform.h>
#include <KxCore/KxSpdlog.h>
#include <KxCore/KxTerminal.h>
#include <KxCore/KxThread.h>
#include <KxMedia/Container/KxAvLog.h>

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QRegularExpression>

#include <cstdio>
#include <memory>

namespace
{

// JSON is read by programs, so its messages do not depend on the person's language.
QString LanguageOf(const QStringList& arguments)
{
    const bool writesJson = arguments.contains(QStringLiteral("--json")) ||
                            !arguments.filter(QRegularExpression(QStringLiteral("^--?status(=|$)"))).isEmpty();
    return writesJson ? KxLanguage::Codes().first() : KxLanguage::OfCommandLine(arguments);
}

ReframeOptions::Parsed Parse(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    KxLanguage::Install(LanguageOf(arguments));
    return ReframeOptions::Parse(arguments);
}

// Only a preview video needs fonts, which come with the larger kind of application; neither kind needs a display.
std::unique_ptr<QCoreApplication> MakeApplication(const ReframeOptions& options, int& argc, char** argv)
{
    if (!options.PreviewIsVideo()) {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    const QByteArray plugin = KxPlatform::PluginWithoutWindows();
    if (!plugin.isEmpty()) {
        qputenv("QT_QPA_PLATFORM", plugin);
    }
    // Qt warns about the missing desktop session, which a person without one does not need to read.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    QLoggingCategory::setFilterRules(QString());
    return application;
}

int Run(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("reframe"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KR_VERSION));
    KxLogSettings::RouteQtMessages();
    KxRouteAvLog();
    // The encoder for AV1 would report what it does on standard error.
    qputenv("SVT_LOG", "1");
    KxMemory::KeepNoPictures();
    KxTerminal::Prepare();

    const ReframeOptions::Parsed parsed = Parse(argc, argv);
    if (!parsed.options) {
        const QByteArray text = parsed.text.toLocal8Bit();
        std::FILE* const stream = parsed.exitStatus == 0 ? stdout : stderr;
        const bool isShown = std::fprintf(stream, "%s\n", text.constData()) >= 0 && std::fflush(stream) == 0;
        return isShown ? parsed.exitStatus : ReframeExit::SomeFailed;
    }
    const std::unique_ptr<QCoreApplication> application = MakeApplication(*parsed.options, argc, argv);
    KxLanguage::Install(KxLanguage::Current());
    KxInterrupt::Install();
    return ReframeProgram::Run(*parsed.options);
}

} // namespace

int main(int argc, char** argv)
{
    int status = ReframeExit::SomeFailed;
    if (const KxError failure = KxCallGuarded([&] { status = Run(argc, argv); })) {
        std::fprintf(stderr, "reframe: %s.\n", failure->toLocal8Bit().constData());
    }
    return status;
}
