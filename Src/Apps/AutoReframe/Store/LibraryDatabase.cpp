#include <Apps/AutoReframe/Store/LibraryDatabase.h>

#include <Apps/AutoReframe/Store/LibraryOpening.h>

#include <QDateTime>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSqlQuery>

namespace
{

using Opened = KxResult<std::unique_ptr<LibraryDatabase>>;

/// How long what was decided about a removed video is kept.
constexpr qint64 KeepRemovedSeconds = 90LL * 24 * 60 * 60;

qint64 NowSeconds()
{
    return QDateTime::currentSecsSinceEpoch();
}

StoredVideo VideoOf(const QSqlQuery& row)
{
    StoredVideo video;
    video.path = row.value(0).toString();
    video.fileBytes = row.value(1).toLongLong();
    video.contentHash = row.value(2).toString().toLatin1();
    video.resolution = QSize(row.value(3).toInt(), row.value(4).toInt());
    video.frameRate = {row.value(5).toInt(), row.value(6).toInt()};
    video.frameCount = row.value(7).toLongLong();
    return video;
}

QStringList PathsOf(const QString& json)
{
    QStringList paths;
    const QJsonArray array = QJsonDocument::fromJson(json.toUtf8()).array();
    for (const QJsonValue path : array) {
        paths += path.toString();
    }
    return paths;
}

} // namespace

Opened LibraryDatabase::Open(const QString& filePath)
{
    const KxResult<QString> prepared = LibraryOpening::Prepare(filePath);
    if (!prepared) {
        return Opened::Failure(prepared.Message());
    }
    return std::unique_ptr<LibraryDatabase>(new LibraryDatabase(filePath, *prepared));
}

LibraryDatabase::LibraryDatabase(const QString& filePath, const QString& notice)
    : m_folder(QFileInfo(filePath).absolutePath())
    , m_notice(notice)
    , m_connection(filePath)
    , m_run(m_folder)
{
    m_connection.Execute(QStringLiteral("PRAGMA foreign_keys = ON"));
    // A saved change also survives a power cut.
    m_connection.Execute(QStringLiteral("PRAGMA synchronous = FULL"));
}

LibraryDatabase::~LibraryDatabase() = default;

KxResult<StoredContents> LibraryDatabase::ReadContents()
{
    StoredContents contents;
    const KxError failure = m_connection.InTransaction([&]() -> KxError {
        for (const auto& step : {&LibraryDatabase::ForgetRemovedVideos, &LibraryDatabase::ClaimInterruptedExports}) {
            if (const KxError stepFailure = (this->*step)()) {
                return stepFailure;
            }
        }
        for (const auto& step :
             {&LibraryDatabase::ReadVideos, &LibraryDatabase::ReadEdits, &LibraryDatabase::ReadRecent,
              &LibraryDatabase::ReadState, &LibraryDatabase::ReadExports}) {
            if (const KxError stepFailure = (this->*step)(contents)) {
                return stepFailure;
            }
        }
        return std::nullopt;
    });
    return failure ? KxResult<StoredContents>::Failure(*failure) : KxResult<StoredContents>(contents);
}

KxError LibraryDatabase::ForgetRemovedVideos()
{
    return m_connection.Execute(QStringLiteral("DELETE FROM videos WHERE removed_at < ?"),
                                {NowSeconds() - KeepRemovedSeconds});
}

KxError LibraryDatabase::ReadVideos(StoredContents& contents)
{
    return m_connection.Select(
        QStringLiteral("SELECT path, file_bytes, content_hash, width, height, rate_numerator, rate_denominator, "
                       "frame_count FROM videos WHERE removed_at IS NULL ORDER BY position, id"),
        {}, [&contents](const QSqlQuery& row) { contents.videos += VideoOf(row); });
}

KxError LibraryDatabase::ReadRecent(StoredContents& contents)
{
    return m_connection.Select(
        QStringLiteral("SELECT path FROM videos WHERE last_used > 0 ORDER BY last_used DESC, id DESC LIMIT ?"),
        {MostRecent}, [&contents](const QSqlQuery& row) { contents.recent += row.value(0).toString(); });
}

KxError LibraryDatabase::ReadState(StoredContents& contents)
{
    return m_connection.Select(QStringLiteral("SELECT name, value FROM state"), {}, [&contents](const QSqlQuery& row) {
        const QString name = row.value(0).toString();
        if (name == QLatin1String("selection")) {
            contents.selection = PathsOf(row.value(1).toString());
        } else if (name == QLatin1String("folders")) {
            contents.recentFolders = PathsOf(row.value(1).toString());
        } else if (name == QLatin1String("scroll")) {
            contents.scrollPx = row.value(1).toInt();
        } else if (name == QLatin1String("batch")) {
            contents.batchSettings = row.value(1).toString().toUtf8();
        }
    });
}

KxError LibraryDatabase::SaveVideo(const StoredVideo& video)
{
    return m_connection.Execute(
        QStringLiteral(
            "INSERT INTO videos(path, position, file_bytes, content_hash, width, height, rate_numerator, "
            "rate_denominator, frame_count) "
            "VALUES(?, (SELECT coalesce(max(position), 0) + 1 FROM videos), ?, ?, ?, ?, ?, ?, ?) "
            "ON CONFLICT(path) DO UPDATE SET file_bytes = excluded.file_bytes, content_hash = excluded.content_hash, "
            "width = excluded.width, height = excluded.height, rate_numerator = excluded.rate_numerator, "
            "rate_denominator = excluded.rate_denominator, frame_count = excluded.frame_count, "
            "position = CASE WHEN removed_at IS NULL THEN position ELSE excluded.position END, removed_at = NULL"),
        {video.path, video.fileBytes, QString::fromLatin1(video.contentHash), video.resolution.width(),
         video.resolution.height(), video.frameRate.numerator, video.frameRate.denominator, video.frameCount});
}

KxError LibraryDatabase::RemoveVideo(const QString& path)
{
    return m_connection.Execute(QStringLiteral("UPDATE videos SET removed_at = ? WHERE path = ?"),
                                {NowSeconds(), path});
}

KxError LibraryDatabase::MoveVideo(const QString& from, const QString& to)
{
    if (const KxError failure =
            m_connection.Execute(QStringLiteral("DELETE FROM videos WHERE path = ? AND path <> ?"), {to, from})) {
        return failure;
    }
    return m_connection.Execute(QStringLiteral("UPDATE videos SET path = ? WHERE path = ?"), {to, from});
}

KxError LibraryDatabase::MarkUsed(const QString& path)
{
    // Two uses in one millisecond keep their order.
    return m_connection.Execute(
        QStringLiteral("UPDATE videos SET last_used = max(?, (SELECT max(last_used) FROM videos) + 1) WHERE path = ?"),
        {QDateTime::currentMSecsSinceEpoch(), path});
}

KxError LibraryDatabase::ForgetUse(const QString& path)
{
    return m_connection.Execute(QStringLiteral("UPDATE videos SET last_used = 0 WHERE path = ?"), {path});
}

KxError LibraryDatabase::SaveThumbnail(const QString& path, const QByteArray& jpeg)
{
    return m_connection.Execute(
        QStringLiteral("INSERT OR REPLACE INTO thumbnails(video, jpeg) SELECT id, ? FROM videos WHERE path = ?"),
        {jpeg, path});
}

KxResult<QByteArray> LibraryDatabase::ReadThumbnail(const QString& path)
{
    const KxResult<QVariant> jpeg = m_connection.Value(
        QStringLiteral("SELECT jpeg FROM thumbnails JOIN videos ON video = id WHERE path = ?"), {path});
    return jpeg ? KxResult<QByteArray>(jpeg->toByteArray()) : KxResult<QByteArray>::Failure(jpeg.Message());
}

KxError LibraryDatabase::SaveState(const QString& name, const QString& value)
{
    return m_connection.Execute(QStringLiteral("INSERT OR REPLACE INTO state(name, value) VALUES(?, ?)"),
                                {name, value});
}
