#include <KxCore/KxPartFile.h>

#include <KxCore/KxSystemFile.h>

#include <QFile>

#include <windows.h>

namespace
{

std::error_code LastError()
{
    return {static_cast<int>(GetLastError()), std::system_category()};
}

} // namespace

// The system lets nobody remove a file that is open without the right to: the open file is the lock.
struct KxPartFile::Handle {
    explicit Handle(HANDLE openFile)
        : file(openFile)
    {
    }
    ~Handle() { Close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    void Close()
    {
        if (file != INVALID_HANDLE_VALUE) {
            CloseHandle(file);
            file = INVALID_HANDLE_VALUE;
        }
    }

    HANDLE file;
};

std::unique_ptr<KxPartFile> KxPartFile::Create(const QString& folder, std::error_code& problem)
{
    constexpr int mostTries = 100;
    for (int i = 0; i < mostTries; ++i) {
        const QString path = RandomPath(folder);
        // Not hidden: libav* could not open such a file to write.
        const HANDLE file =
            CreateFileW(KxSystemFile::NativePath(path).c_str(), GENERIC_READ | GENERIC_WRITE,
                        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file != INVALID_HANDLE_VALUE) {
            return std::unique_ptr<KxPartFile>(new KxPartFile(path, std::make_unique<Handle>(file)));
        }
        problem = LastError();
        if (problem.value() != ERROR_FILE_EXISTS) {
            return nullptr;
        }
    }
    return nullptr;
}

void KxPartFile::RemoveAbandoned(const QString& folder)
{
    const QStringList paths = PartsIn(folder);
    for (const QString& path : paths) {
        QFile::remove(path);
    }
}

void KxPartFile::SyncFolder(const QString&) {}

std::error_code KxPartFile::Sync()
{
    const bool isSynced = FlushFileBuffers(m_handle->file) != 0;
    const std::error_code problem = isSynced ? std::error_code() : LastError();
    // An open file cannot be renamed.
    m_handle->Close();
    return problem;
}

KxPartFile::KxPartFile(QString path, std::unique_ptr<Handle> handle)
    : m_path(std::move(path))
    , m_handle(std::move(handle))
{
}

KxPartFile::~KxPartFile() = default;
