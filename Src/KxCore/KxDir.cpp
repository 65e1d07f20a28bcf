#include <KxCore/KxDir.h>

#include <KxCore/KxPartFile.h>
#include <KxCore/KxSystemError.h>
#include <KxCore/KxSystemFile.h>

#include <QFile>

#include <cerrno>

bool KxDir::IsPathWriteAndReadable(const QString& path)
{
    // Permission bits say nothing about read-only file systems and network shares; a new file does.
    std::error_code problem;
    std::unique_ptr<KxPartFile> part = KxPartFile::Create(path, problem);
    if (!part) {
        return KxIsDiskFull(problem);
    }
    QFile file(part->Path());
    const QByteArray content("probe");
    errno = 0;
    const bool isWritten =
        file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) && file.write(content) == content.size();
    const bool isFull = !isWritten && KxIsDiskFull(KxSystemFile::ErrorOf(file));
    const bool isRead = isWritten && file.seek(0) && file.readAll() == content;
    // Some systems let nobody remove a file that is locked.
    part.reset();
    file.remove();
    return isRead || isFull;
}
