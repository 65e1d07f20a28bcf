#include <Apps/AutoReframe/Backend/StudioLoader.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>

StudioLoader::StudioLoader(Maker maker, QObject* parent)
    : QObject(parent)
    , m_maker(std::move(maker))
{
}

StudioLoader::~StudioLoader()
{
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

KxResult<std::shared_ptr<Studio>> StudioLoader::LoadLibrary()
{
    using Loaded = KxResult<std::shared_ptr<Studio>>;
    const QString programFolder = QCoreApplication::applicationDirPath();
    QLibrary library;
    for (const QString& folder : {QStringLiteral(KR_LIBRARY_FOLDER), QStringLiteral("../lib"), QStringLiteral(".")}) {
        library.setFileName(QStringLiteral("%1/%2/%3").arg(programFolder, folder, QStringLiteral(KR_STUDIO_LIBRARY)));
        if (library.load()) {
            break;
        }
        // What is there and cannot be loaded is the fault to tell, not that it is nowhere else.
        if (QFileInfo::exists(library.fileName())) {
            break;
        }
    }
    const auto make = reinterpret_cast<Studio* (*)()>(library.isLoaded() ? library.resolve("MakeStudio") : nullptr);
    if (make == nullptr) {
        return Loaded::Failure(tr("Cannot load the video engine: %1.").arg(library.errorString()));
    }
    return std::shared_ptr<Studio>(make());
}

void StudioLoader::Start()
{
    if (m_isStarted) {
        return;
    }
    m_isStarted = true;
    m_thread = std::thread([this] {
        KxResult<std::shared_ptr<Studio>> made = m_maker();
        m_made = made ? *made : nullptr;
        m_message = made.Message();
        QMetaObject::invokeMethod(this, &StudioLoader::Finish, Qt::QueuedConnection);
    });
}

void StudioLoader::Finish()
{
    if (m_isFinished) {
        return;
    }
    m_thread.join();
    m_isFinished = true;
    Q_EMIT sigFinished();
}

Studio* StudioLoader::Get()
{
    Start();
    Finish();
    return m_made.get();
}

Studio* StudioLoader::IfThere() const
{
    return m_isFinished ? m_made.get() : nullptr;
}

const QString& StudioLoader::Message() const
{
    static const QString unknown;
    return m_isFinished ? m_message : unknown;
}
