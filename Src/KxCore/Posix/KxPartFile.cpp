#include <KxCore/KxPartFile.h>

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

std::error_code LastError()
{
    return {errno, std::generic_category()};
}

int OpenRetrying(const QByteArray& path, int flags, mode_t mode = 0)
{
    int file = -1;
    do {
        file = ::open(path.constData(), flags | O_CLOEXEC, mode);
    } while (file < 0 && errno == EINTR);
    return file;
}

bool Lock(int file, int operation)
{
    int result = -1;
    do {
        result = ::flock(file, operation);
    } while (result < 0 && errno == EINTR);
    return result == 0;
}

/// Whether `path` still names the open `file`, a regular one.
bool IsNamed(int file, const QByteArray& path)
{
    struct stat opened {
    };
    struct stat named {
    };
    return ::fstat(file, &opened) == 0 && ::lstat(path.constData(), &named) == 0 && S_ISREG(opened.st_mode) &&
           opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

} // namespace

struct KxPartFile::Handle {
    explicit Handle(int openFile)
        : file(openFile)
    {
    }
    ~Handle() { ::close(file); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    const int file;
};

std::unique_ptr<KxPartFile> KxPartFile::Create(const QString& folder, std::error_code& problem)
{
    constexpr int mostTries = 100;
    for (int i = 0; i < mostTries; ++i) {
        const QString path = RandomPath(folder);
        const QByteArray name = QFile::encodeName(path);
        const int file = OpenRetrying(name, O_RDWR | O_CREAT | O_EXCL, 0666);
        if (file < 0) {
            problem = LastError();
            if (problem == std::errc::file_exists) {
                continue;
            }
            return nullptr;
        }
        auto handle = std::make_unique<Handle>(file);
        // Not every file system has locks; where there are none, RemoveAbandoned() gets none either and removes
        // nothing. Before the lock, another writer may have taken the file for an abandoned one.
        Lock(file, LOCK_EX);
        if (IsNamed(file, name)) {
            return std::unique_ptr<KxPartFile>(new KxPartFile(path, std::move(handle)));
        }
    }
    return nullptr;
}

void KxPartFile::RemoveAbandoned(const QString& folder)
{
    const QStringList paths = PartsIn(folder);
    for (const QString& path : paths) {
        const QByteArray name = QFile::encodeName(path);
        const int file = OpenRetrying(name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
        if (file < 0) {
            continue;
        }
        const Handle handle(file);
        if (Lock(file, LOCK_EX | LOCK_NB) && IsNamed(file, name)) {
            ::unlink(name.constData());
        }
    }
}

void KxPartFile::SyncFolder(const QString& folder)
{
    const int file = OpenRetrying(QFile::encodeName(folder), O_RDONLY | O_DIRECTORY);
    if (file >= 0) {
        const Handle handle(file);
        ::fsync(file);
    }
}

std::error_code KxPartFile::Sync()
{
    if (::fsync(m_handle->file) == 0 || errno == EINVAL || errno == ENOTSUP) {
        return {};
    }
    return LastError();
}

KxPartFile::KxPartFile(QString path, std::unique_ptr<Handle> handle)
    : m_path(std::move(path))
    , m_handle(std::move(handle))
{
}

KxPartFile::~KxPartFile() = default;
