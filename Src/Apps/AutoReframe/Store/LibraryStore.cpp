#include <Apps/AutoReframe/Store/LibraryStore.h>

#include <Apps/AutoReframe/Store/LibraryDatabase.h>
#include <KxCore/KxLog.h>

#include <QBuffer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>
#include <QTimer>

#include <future>

namespace
{

constexpr int RetryMs = 1000;

QByteArray Jpeg(const QImage& picture)
{
    constexpr int quality = 88;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return picture.save(&buffer, "JPG", quality) ? bytes : QByteArray();
}

bool IsTemporary(LibraryDatabase& database)
{
    return database.Connection().LastProblem() == LibraryConnection::Problem::Temporary;
}

} // namespace

LibraryStore::LibraryStore(QString filePath, QObject* parent)
    : QObject(parent)
    , m_filePath(std::move(filePath))
    , m_retry(new QTimer(this))
{
    m_retry->setSingleShot(true);
    m_retry->setInterval(RetryMs);
    connect(m_retry, &QTimer::timeout, this, &LibraryStore::ScheduleWriting);
}

LibraryStore::~LibraryStore()
{
    if (!m_worker) {
        return;
    }
    std::promise<void> written;
    m_worker->Add({[this, &written](const KxCancelToken&) {
                       KxCallGuarded([this] { Write(); });
                       m_database.reset();
                       written.set_value();
                   },
                   {}});
    written.get_future().wait();
}

QString LibraryStore::ChooseFile()
{
    QString folder = qEnvironmentVariable("KX_DATA");
    if (folder == QLatin1String("none")) {
        return {};
    }
    if (folder.isEmpty()) {
        folder =
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/auto-reframe");
    }
    return QDir(folder).absoluteFilePath(QStringLiteral("library.db"));
}

void LibraryStore::Open()
{
    if (m_isStarted) {
        return;
    }
    m_isStarted = true;
    if (m_filePath.isEmpty()) {
        FinishOpening({}, QString());
        return;
    }
    const auto deliver = [this](const StoredContents& contents, const QString& notice) {
        QMetaObject::invokeMethod(
            this, [this, contents, notice] { FinishOpening(contents, notice); }, Qt::QueuedConnection);
    };
    Worker().Add({[this, deliver](const KxCancelToken&) {
                      StoredContents contents;
                      const QString notice = OpenDatabase(contents);
                      deliver(contents, notice);
                  },
                  [deliver](const QString& message) { deliver({}, message); }});
}

QString LibraryStore::OpenDatabase(StoredContents& contents)
{
    KxResult<std::unique_ptr<LibraryDatabase>> opened = LibraryDatabase::Open(m_filePath);
    if (!opened) {
        return opened.Message();
    }
    const QString notice = (*opened)->Notice();
    const KxResult<StoredContents> read = (*opened)->ReadContents();
    if (!read) {
        return tr("Cannot read the library %1: %2. What you do now is not saved.")
            .arg(QDir::toNativeSeparators(m_filePath), read.Message());
    }
    contents = *read;
    m_database = std::move(*opened);
    return notice;
}

KxWorker& LibraryStore::Worker()
{
    if (!m_worker) {
        m_worker = std::make_unique<KxWorker>(KxWorker::Order::OldestFirst);
    }
    return *m_worker;
}

void LibraryStore::FinishOpening(const StoredContents& contents, const QString& notice)
{
    m_isOpen = true;
    Q_EMIT sigOpened(contents);
    if (!notice.isEmpty()) {
        KX_LOG_WARNING(notice);
        Q_EMIT sigNotice(notice);
    }
}

void LibraryStore::Save(Change change)
{
    if (m_filePath.isEmpty()) {
        return;
    }
    Open();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_changes.push_back(std::move(change));
    }
    ScheduleWriting();
}

void LibraryStore::ScheduleWriting()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_isWritingScheduled || m_changes.empty()) {
            return;
        }
        m_isWritingScheduled = true;
    }
    Worker().Add(
        {[this](const KxCancelToken&) { Write(); }, [this](const QString& message) { ReportWriting(message); }});
}

void LibraryStore::Write()
{
    std::vector<Change> changes;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isWritingScheduled = false;
        changes.swap(m_changes);
        m_isWriting = true;
    }
    // Without a file the person was told that nothing is saved.
    const bool writes = m_database != nullptr && !changes.empty();
    const KxError failure = writes ? WriteAll(changes) : std::nullopt;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isWriting = false;
        if (failure && IsTemporary(*m_database)) {
            m_changes.insert(m_changes.begin(), changes.begin(), changes.end());
        }
    }
    if (writes) {
        ReportWriting(failure);
    }
}

KxError LibraryStore::WriteAll(const std::vector<Change>& changes)
{
    KxError failure = m_database->Connection().InTransaction([&]() -> KxError {
        for (const Change& change : changes) {
            if (const KxError changeFailure = change(*m_database)) {
                return changeFailure;
            }
        }
        return std::nullopt;
    });
    if (!failure || changes.size() == 1 || IsTemporary(*m_database)) {
        return failure;
    }
    // One change that cannot be written must not take the others with it.
    failure.reset();
    for (const Change& change : changes) {
        const KxError changeFailure = m_database->Connection().InTransaction([&] { return change(*m_database); });
        failure = changeFailure ? changeFailure : failure;
    }
    return failure;
}

void LibraryStore::ReportWriting(const KxError& failure)
{
    QMetaObject::invokeMethod(
        this, [this, failure] { FinishWriting(failure); }, Qt::QueuedConnection);
}

void LibraryStore::FinishWriting(const KxError& failure)
{
    if (!failure) {
        m_isFailureReported = false;
        const bool isAllWritten = [this] {
            const std::lock_guard<std::mutex> lock(m_mutex);
            return m_changes.empty() && !m_isWriting;
        }();
        if (isAllWritten) {
            Q_EMIT sigWritten();
        }
        return;
    }
    m_retry->start();
    // Once, however often it is tried again.
    if (!m_isFailureReported) {
        m_isFailureReported = true;
        const QString message =
            tr("Cannot save the library %1: %2.").arg(QDir::toNativeSeparators(m_filePath), *failure);
        KX_LOG_WARNING(message);
        Q_EMIT sigNotice(message);
    }
}

void LibraryStore::ReadThumbnail(const QString& path, const std::function<void(const QImage& picture)>& ready)
{
    if (m_filePath.isEmpty()) {
        ready(QImage());
        return;
    }
    Open();
    const auto deliver = [this, ready](const QImage& picture) {
        QMetaObject::invokeMethod(
            this, [ready, picture] { ready(picture); }, Qt::QueuedConnection);
    };
    Worker().Add({[this, path, deliver](const KxCancelToken&) {
                      Write();
                      const KxResult<QByteArray> jpeg =
                          m_database != nullptr ? m_database->ReadThumbnail(path) : QByteArray();
                      deliver(jpeg ? QImage::fromData(*jpeg, "JPG") : QImage());
                  },
                  [deliver](const QString&) { deliver(QImage()); }});
}

void LibraryStore::SaveVideo(const StoredVideo& video)
{
    Save([video](LibraryDatabase& database) { return database.SaveVideo(video); });
}

void LibraryStore::RemoveVideo(const QString& path)
{
    Save([path](LibraryDatabase& database) { return database.RemoveVideo(path); });
}

void LibraryStore::MoveVideo(const QString& from, const QString& to)
{
    Save([from, to](LibraryDatabase& database) { return database.MoveVideo(from, to); });
}

void LibraryStore::MarkUsed(const QString& path)
{
    Save([path](LibraryDatabase& database) { return database.MarkUsed(path); });
}

void LibraryStore::ForgetUse(const QString& path)
{
    Save([path](LibraryDatabase& database) { return database.ForgetUse(path); });
}

void LibraryStore::SaveThumbnail(const QString& path, const QImage& picture)
{
    Save([path, picture](LibraryDatabase& database) { return database.SaveThumbnail(path, Jpeg(picture)); });
}

void LibraryStore::SaveEdits(const QString& path, const VideoEdits& edits)
{
    Save([path, edits](LibraryDatabase& database) { return database.SaveEdits(path, edits); });
}

void LibraryStore::SaveExport(const StoredExport& item)
{
    Save([item](LibraryDatabase& database) { return database.SaveExport(item); });
}

void LibraryStore::SaveExportState(const StoredExport& item)
{
    Save([item](LibraryDatabase& database) { return database.SaveExportState(item); });
}

void LibraryStore::RemoveExport(qint64 key)
{
    Save([key](LibraryDatabase& database) { return database.RemoveExport(key); });
}

void LibraryStore::SavePaths(const QString& name, const QStringList& paths)
{
    const QString text =
        QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(paths)).toJson(QJsonDocument::Compact));
    Save([name, text](LibraryDatabase& database) { return database.SaveState(name, text); });
}

void LibraryStore::SaveSelection(const QStringList& paths)
{
    SavePaths(QStringLiteral("selection"), paths);
}

void LibraryStore::SaveRecentFolders(const QStringList& paths)
{
    SavePaths(QStringLiteral("folders"), paths);
}

void LibraryStore::SaveScroll(int scrollPx)
{
    Save([scrollPx](LibraryDatabase& database) {
        return database.SaveState(QStringLiteral("scroll"), QString::number(scrollPx));
    });
}

void LibraryStore::SaveBatchSettings(const QByteArray& settings)
{
    Save([settings](LibraryDatabase& database) {
        return database.SaveState(QStringLiteral("batch"), QString::fromUtf8(settings));
    });
}
