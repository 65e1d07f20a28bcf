#include <KxCore/KxDir.h>

#include <QTemporaryFile>

bool KxDir::IsPathWriteAndReadable(const QString& path)
{
    // Asking for permissions tells nothing about read-only file systems and network shares; making a file does.
    QTemporaryFile probe(path + QStringLiteral("/.auto-reframe-XXXXXX.probe"));
    constexpr char content[] = "probe";
    return probe.open() && probe.write(content) == qint64(sizeof content) - 1 && probe.flush() && probe.seek(0) &&
           probe.readAll() == content;
}
