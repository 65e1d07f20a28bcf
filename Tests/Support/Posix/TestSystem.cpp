#include <Tests/Support/TestSystem.h>

#include <QDir>
#include <QFile>

#include <sys/stat.h>

bool TestSystem::MakeNamedPipe(const QString& path)
{
    constexpr mode_t mode = 0600;
    return ::mkfifo(QFile::encodeName(path).constData(), mode) == 0;
}

QString TestSystem::HostileName()
{
    return QStringLiteral("a<b> & \"c\" %1 %2 {{facts}}");
}

bool TestSystem::TakesLanguageFromEnvironment()
{
    return true;
}

bool TestSystem::RemovesOpenFiles()
{
    return true;
}

qint64 TestSystem::PeakMemoryBytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QByteArray content = status.readAll();
    const QByteArray peak = content.mid(content.indexOf("VmHWM:") + 6);
    return peak.left(peak.indexOf("kB")).trimmed().toLongLong() * 1024;
}

bool TestSystem::ResetPeakMemory()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    return file.open(QIODevice::WriteOnly) && file.write("5") == 1;
}

int TestSystem::Threads()
{
    return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}
