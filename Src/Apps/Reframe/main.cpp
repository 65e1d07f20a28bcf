#include <Apps/Reframe/ReframeProgram.h>
#include <KxCore/KxInterrupt.h>
#include <KxCore/KxSpdlog.h>
#include <KxMedia/Container/KxAvLog.h>

#include <QGuiApplication>
#include <QLoggingCategory>

#include <cstdio>
#include <memory>

namespace
{

ReframeOptions::Parsed Parse(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    return ReframeOptions::Parse(QCoreApplication::arguments());
}

// Only what writes on pictures needs fonts, and those come with the larger kind of program; neither needs a display.
std::unique_ptr<QCoreApplication> MakeApplication(const ReframeOptions& options, int& argc, char** argv)
{
    if (!options.PreviewIsVideo()) {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt misses what a desktop's session sets up, which is no news to a person who has none.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    QLoggingCategory::setFilterRules(QString());
    return application;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("reframe"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KR_VERSION));
    KxLogSettings::RouteQtMessages();
    KxRouteAvLog();

    const ReframeOptions::Parsed parsed = Parse(argc, argv);
    if (!parsed.options) {
        const QByteArray text = parsed.text.toLocal8Bit();
        std::fprintf(parsed.exitStatus == 0 ? stdout : stderr, "%s\n", text.constData());
        return parsed.exitStatus;
    }
    const std::unique_ptr<QCoreApplication> application = MakeApplication(*parsed.options, argc, argv);
    KxInterrupt::Install();
    return ReframeProgram::Run(*parsed.options);
}
