#include <Tests/Support/ProgramRun.h>

#include <QProcess>

namespace
{

QString TextOf(QByteArray printed)
{
    return QString::fromUtf8(printed.replace("\r\n", "\n"));
}

} // namespace

ProgramRun::ProgramRun(const QString& program, const QStringList& arguments, const QProcessEnvironment& environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    constexpr int longestMs = 120000;
    ended = process.waitForFinished(longestMs);
    if (ended && process.exitStatus() == QProcess::NormalExit) {
        exitStatus = process.exitCode();
    }
    standardOutput = TextOf(process.readAllStandardOutput());
    standardError = TextOf(process.readAllStandardError());
}
