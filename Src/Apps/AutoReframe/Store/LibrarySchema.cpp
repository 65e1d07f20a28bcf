#include <Apps/AutoReframe/Store/LibrarySchema.h>

#include <Apps/AutoReframe/Store/LibraryConnection.h>

#include <QStringList>

#include <vector>

namespace
{

// The statements of a version that was in use are never changed: files of that version exist.
QStringList FirstVersion()
{
    return {QStringLiteral("CREATE TABLE videos(id INTEGER PRIMARY KEY, path TEXT NOT NULL UNIQUE, "
                           "position INTEGER NOT NULL, file_bytes INTEGER NOT NULL, content_hash TEXT NOT NULL, "
                           "width INTEGER NOT NULL, height INTEGER NOT NULL, rate_numerator INTEGER NOT NULL, "
                           "rate_denominator INTEGER NOT NULL, frame_count INTEGER NOT NULL)"),
            QStringLiteral("CREATE TABLE settings(video INTEGER PRIMARY KEY REFERENCES videos(id) ON DELETE CASCADE, "
                           "aspect_width INTEGER NOT NULL, aspect_height INTEGER NOT NULL, speed INTEGER NOT NULL)"),
            QStringLiteral("CREATE TABLE edits(video INTEGER NOT NULL REFERENCES videos(id) ON DELETE CASCADE, "
                           "frame INTEGER NOT NULL, x REAL NOT NULL, y REAL NOT NULL, width REAL NOT NULL, "
                           "height REAL NOT NULL, PRIMARY KEY(video, frame)) WITHOUT ROWID"),
            QStringLiteral("CREATE TABLE exports(key INTEGER PRIMARY KEY, position INTEGER NOT NULL, "
                           "state TEXT NOT NULL, run TEXT NOT NULL, source_path TEXT NOT NULL, audio_stream INTEGER, "
                           "crops BLOB, output_path TEXT NOT NULL, adds_number INTEGER NOT NULL, "
                           "width INTEGER NOT NULL, height INTEGER NOT NULL, frame_rate REAL NOT NULL, "
                           "video_bit_rate INTEGER NOT NULL, audio_bit_rate INTEGER NOT NULL, "
                           "file_path TEXT NOT NULL, file_bytes INTEGER NOT NULL, message TEXT NOT NULL)"),
            QStringLiteral("CREATE TABLE state(name TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID")};
}

QStringList SecondVersion()
{
    return {QStringLiteral("ALTER TABLE videos ADD COLUMN last_used INTEGER NOT NULL DEFAULT 0"),
            QStringLiteral("ALTER TABLE videos ADD COLUMN removed_at INTEGER"),
            QStringLiteral("CREATE TABLE choices(video INTEGER PRIMARY KEY REFERENCES videos(id) ON DELETE CASCADE, "
                           "json TEXT NOT NULL)"),
            QStringLiteral("ALTER TABLE settings ADD COLUMN is_analyzed INTEGER NOT NULL DEFAULT 0"),
            QStringLiteral("CREATE TABLE seen_shots(video INTEGER NOT NULL REFERENCES videos(id) ON DELETE CASCADE, "
                           "frame INTEGER NOT NULL, PRIMARY KEY(video, frame)) WITHOUT ROWID"),
            QStringLiteral("CREATE TABLE thumbnails(video INTEGER PRIMARY KEY REFERENCES videos(id) "
                           "ON DELETE CASCADE, jpeg BLOB NOT NULL)")};
}

QStringList ThirdVersion()
{
    // A plan without an aspect ratio is none.
    QStringList statements;
    for (const char* const column : {"plan_width", "plan_height", "plan_speed", "plan_short_side", "frames"}) {
        statements +=
            QStringLiteral("ALTER TABLE exports ADD COLUMN %1 INTEGER NOT NULL DEFAULT 0").arg(QLatin1String(column));
    }
    statements += QStringLiteral("ALTER TABLE exports ADD COLUMN shots_to_look_at TEXT NOT NULL DEFAULT ''");
    return statements;
}

QStringList FourthVersion()
{
    return {QStringLiteral("ALTER TABLE exports ADD COLUMN plan_output_height INTEGER NOT NULL DEFAULT 0")};
}

QStringList FifthVersion()
{
    return {QStringLiteral("ALTER TABLE exports ADD COLUMN begun_at INTEGER NOT NULL DEFAULT 0")};
}

QStringList SixthVersion()
{
    return {QStringLiteral("ALTER TABLE edits ADD COLUMN pictures TEXT NOT NULL DEFAULT ''"),
            QStringLiteral("CREATE TABLE unplaced_edits(video INTEGER NOT NULL REFERENCES videos(id) "
                           "ON DELETE CASCADE, position INTEGER NOT NULL, frame INTEGER NOT NULL, x REAL NOT NULL, "
                           "y REAL NOT NULL, width REAL NOT NULL, height REAL NOT NULL, pictures TEXT NOT NULL, "
                           "PRIMARY KEY(video, position)) WITHOUT ROWID")};
}

QStringList SeventhVersion()
{
    // Earlier exports without a format were encoded as the empty text says.
    return {QStringLiteral("ALTER TABLE exports ADD COLUMN format TEXT NOT NULL DEFAULT ''")};
}

QStringList EighthVersion()
{
    return {QStringLiteral("ALTER TABLE exports ADD COLUMN missing_edits INTEGER NOT NULL DEFAULT 0")};
}

} // namespace

KxError LibrarySchema::Migrate(LibraryConnection& connection, int from)
{
    const std::vector<QStringList> versions{FirstVersion(), SecondVersion(), ThirdVersion(),   FourthVersion(),
                                            FifthVersion(), SixthVersion(),  SeventhVersion(), EighthVersion()};
    for (size_t version = static_cast<size_t>(from); version < versions.size(); ++version) {
        for (const QString& statement : versions[version]) {
            if (const KxError failure = connection.Execute(statement)) {
                return failure;
            }
        }
    }
    return connection.Execute(QStringLiteral("PRAGMA user_version = %1").arg(Version));
}
