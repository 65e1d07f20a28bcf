#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>

namespace
{

QString CannotLoad(const QString& reason)
{
    return MediaBackendLoader::tr("Cannot load the video engine: %1.").arg(reason);
}

} // namespace

MediaBackendLoader::MediaBackendLoader(Maker maker, QObject* parent)
    : QObject(parent)
    , m_maker(std::move(maker))
{
}

MediaBackendLoader::~MediaBackendLoader() = default;

KxResult<std::shared_ptr<MediaBackend>> MediaBackendLoader::LoadLibrary()
{
    using Loaded = KxResult<std::shared_ptr<MediaBackend>>;
    const QString programFolder = QCoreApplication::applicationDirPath();
    QLibrary library;
    for (const QString& folder : {QStringLiteral(KR_LIBRARY_FOLDER), QStringLiteral("../lib"), QStringLiteral(".")}) {
        library.setFileName(QStringLiteral("%1/%2/%3").arg(programFolder, folder, QStringLiteral(KR_BACKEND_LIBRARY)));
        if (library.load()) {
            break;
        }
        // A library that exists but cannot be loaded is the error to report, not its absence from the other folders.
        if (QFileInfo::exists(library.fileName())) {
            break;
        }
    }
    const auto make =
        reinterpret_cast<MediaBackend* (*)()>(library.isLoaded() ? library.resolve("MakeMediaBackend") : nullptr);
    if (make == nullptr) {
        return Loaded::Failure(CannotLoad(library.errorString()));
    }
    return std::shared_ptr<MediaBackend>(make());
}

void MediaBackendLoader::Start()
{
    if (m_isStarted) {
        return;
    }
    m_isStarted = true;
    m_thread = KxThread([this] {
        const KxError thrown = KxCallGuarded([this] {
            const KxResult<std::shared_ptr<MediaBackend>> made = m_maker();
            m_made = made ? *made : nullptr;
            m_error = made.Message();
        });
        if (thrown) {
            m_error = CannotLoad(*thrown);
        }
        QMetaObject::invokeMethod(this, &MediaBackendLoader::Finish, Qt::QueuedConnection);
    });
}

void MediaBackendLoader::Finish()
{
    if (m_isFinished) {
        return;
    }
    m_thread.Join();
    m_isFinished = true;
    Q_EMIT sigFinished();
}

MediaBackend* MediaBackendLoader::Get()
{
    Start();
    Finish();
    return m_made.get();
}

MediaBackend* MediaBackendLoader::IfLoaded() const
{
    return m_isFinished ? m_made.get() : nullptr;
}

const QString& MediaBackendLoader::Error() const
{
    static const QString none;
    return m_isFinished ? m_error : none;
}
