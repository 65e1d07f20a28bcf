#include <Apps/AutoReframe/Store/LibraryDatabase.h>

#include <QDateTime>
#include <QSqlQuery>

namespace
{

const QString FromVideo = QStringLiteral(" FROM videos WHERE path = ?");
const QString WithPath = QStringLiteral(" JOIN videos ON video = id");

/// Not null, which the database refuses.
QString TextOf(const QByteArray& text)
{
    return text.isEmpty() ? QStringLiteral("") : QString::fromUtf8(text);
}

QRectF RectOf(const QSqlQuery& row, int column)
{
    return {row.value(column).toDouble(), row.value(column + 1).toDouble(), row.value(column + 2).toDouble(),
            row.value(column + 3).toDouble()};
}

/// Runs the statements until one fails.
KxError InTurn(const QList<std::function<KxError()>>& statements)
{
    for (const std::function<KxError()>& statement : statements) {
        if (const KxError failure = statement()) {
            return failure;
        }
    }
    return std::nullopt;
}

} // namespace

KxError LibraryDatabase::SaveEdits(const QString& path, const VideoEdits& edits)
{
    const auto execute = [this](const QString& statement, const QVariantList& values) {
        return [this, statement, values] { return m_connection.Execute(statement, values); };
    };
    QList<std::function<KxError()>> statements{
        execute(QStringLiteral("INSERT INTO videos(path, position, file_bytes, content_hash, width, height, "
                               "rate_numerator, rate_denominator, frame_count, removed_at) "
                               "VALUES(?, 0, 0, '', 0, 0, 0, 1, 0, ?) "
                               "ON CONFLICT(path) DO UPDATE SET removed_at = excluded.removed_at "
                               "WHERE removed_at IS NOT NULL"),
                {path, QDateTime::currentSecsSinceEpoch()}),
        execute(QStringLiteral("INSERT OR REPLACE INTO settings(video, aspect_width, aspect_height, speed, "
                               "is_analyzed) SELECT id, ?, ?, ?, ?") +
                    FromVideo,
                {edits.aspect.width(), edits.aspect.height(), edits.speed, edits.isAnalyzed, path}),
    };
    for (const char* const table : {"unplaced_edits", "choices", "seen_shots"}) {
        statements += execute(
            QStringLiteral("DELETE FROM %1 WHERE video = (SELECT id%2)").arg(QLatin1String(table), FromVideo), {path});
    }
    if (!edits.choices.isEmpty()) {
        statements += execute(QStringLiteral("INSERT INTO choices(video, json) SELECT id, ?") + FromVideo,
                              {QString::fromUtf8(edits.choices), path});
    }
    statements += [this, path, edits] { return SaveEditPoints(path, edits); };
    for (int i = 0; i < edits.unplacedEdits.size(); ++i) {
        const KrUnplacedEdit& edit = edits.unplacedEdits.at(i);
        statements += execute(QStringLiteral("INSERT INTO unplaced_edits(video, position, frame, x, y, width, height, "
                                             "pictures) SELECT id, ?, ?, ?, ?, ?, ?, ?") +
                                  FromVideo,
                              {i, edit.frame, edit.crop.x(), edit.crop.y(), edit.crop.width(), edit.crop.height(),
                               TextOf(edit.pictures), path});
    }
    for (const uint frame : edits.seenShots) {
        statements +=
            execute(QStringLiteral("INSERT INTO seen_shots(video, frame) SELECT id, ?") + FromVideo, {frame, path});
    }
    return InTurn(statements);
}

KxError LibraryDatabase::SaveEditPoints(const QString& path, const VideoEdits& edits)
{
    QList<uint> gone;
    const QString ofVideo = QStringLiteral(" WHERE video = (SELECT id%1)").arg(FromVideo);
    if (const KxError failure = m_connection.Select(QStringLiteral("SELECT frame FROM edits") + ofVideo, {path},
                                                    [&gone, &edits](const QSqlQuery& row) {
                                                        const uint frame = row.value(0).toUInt();
                                                        if (!edits.editPoints.contains(frame)) {
                                                            gone += frame;
                                                        }
                                                    })) {
        return failure;
    }
    for (const uint frame : qAsConst(gone)) {
        const QString statement = QStringLiteral("DELETE FROM edits%1 AND frame = ?").arg(ofVideo);
        if (const KxError failure = m_connection.Execute(statement, {path, frame})) {
            return failure;
        }
    }
    const QString statement =
        QStringLiteral("INSERT INTO edits(video, frame, x, y, width, height, pictures) SELECT id, ?, ?, ?, ?, ?, ?") +
        FromVideo +
        QStringLiteral(" ON CONFLICT(video, frame) DO UPDATE SET x = excluded.x, y = excluded.y, "
                       "width = excluded.width, height = excluded.height, pictures = excluded.pictures "
                       "WHERE x <> excluded.x OR y <> excluded.y OR width <> excluded.width OR "
                       "height <> excluded.height OR pictures <> excluded.pictures");
    for (auto point = edits.editPoints.begin(); point != edits.editPoints.end(); ++point) {
        const KxError failure =
            m_connection.Execute(statement, {point.key(), point->x(), point->y(), point->width(), point->height(),
                                             TextOf(edits.editPictures.value(point.key())), path});
        if (failure) {
            return failure;
        }
    }
    return std::nullopt;
}

KxError LibraryDatabase::ReadEdits(StoredContents& contents)
{
    const auto read = [this, &contents](const char* columns,
                                        const std::function<void(VideoEdits&, const QSqlQuery&)>& take) {
        const QString statement = QLatin1String("SELECT path, ") + QLatin1String(columns) + WithPath;
        return [this, &contents, statement, take] {
            return m_connection.Select(
                statement, {}, [&](const QSqlQuery& row) { take(contents.edits[row.value(0).toString()], row); });
        };
    };
    return InTurn({
        read("aspect_width, aspect_height, speed, is_analyzed FROM settings",
             [](VideoEdits& edits, const QSqlQuery& row) {
                 edits.aspect = QSize(row.value(1).toInt(), row.value(2).toInt());
                 edits.speed = row.value(3).toInt();
                 edits.isAnalyzed = row.value(4).toBool();
             }),
        read("frame, x, y, edits.width, edits.height, pictures FROM edits",
             [](VideoEdits& edits, const QSqlQuery& row) {
                 const uint frame = row.value(1).toUInt();
                 edits.editPoints.insert(frame, RectOf(row, 2));
                 if (const QByteArray pictures = row.value(6).toString().toUtf8(); !pictures.isEmpty()) {
                     edits.editPictures.insert(frame, pictures);
                 }
             }),
        read("frame, x, y, unplaced_edits.width, unplaced_edits.height, pictures FROM unplaced_edits",
             [](VideoEdits& edits, const QSqlQuery& row) {
                 edits.unplacedEdits +=
                     KrUnplacedEdit{row.value(1).toLongLong(), RectOf(row, 2), row.value(6).toString().toUtf8()};
             }),
        read("json FROM choices",
             [](VideoEdits& edits, const QSqlQuery& row) { edits.choices = row.value(1).toString().toUtf8(); }),
        read("frame FROM seen_shots",
             [](VideoEdits& edits, const QSqlQuery& row) { edits.seenShots += row.value(1).toUInt(); }),
    });
}
