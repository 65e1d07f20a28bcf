#include "KxInterrupt.h"
#include "KxSpdlog.h"
#include "ReframeProgram.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("reframe"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KR_VERSION));
    KxLogSettings::RouteQtMessages();

    const ReframeOptions::Parsed parsed = ReframeOptions::Parse(QCoreApplication::arguments());
    if (!parsed.options) {
        const QByteArray text = parsed.text.toLocal8Bit();
        std::fprintf(parsed.exitStatus == 0 ? stdout : stderr, "%s\n", text.constData());
        return parsed.exitStatus;
    }
    KxInterrupt::Install();
    return ReframeProgram::Run(*parsed.options);
}
