#include <Tests/AutoReframe/Store/LibraryDatabaseTest.h>

#include <Apps/AutoReframe/Store/LibrarySchema.h>

#include <Tests/Support/TestSystem.h>

#include <QDir>

TEST_F(TestLibraryDatabase, LockFilesOfKilledRunsAreRemoved)
{
    const auto database = Open();
    QFile dead(m_folder.filePath(QStringLiteral("run-dead.lock")));
    ASSERT_TRUE(dead.open(QIODevice::WriteOnly));
    // As QLockFile writes it: process, program, host; this one if it has no name. No process has that number.
    dead.write("2147483647\nauto-reframe\n\n");
    dead.close();
    ASSERT_EQ(Files("run-*.lock").size(), 2);
    Contents(*database);
    EXPECT_EQ(Files("run-*.lock").size(), 1);
}

TEST_F(TestLibraryDatabase, LockFilesThatAKilledProgramHadNotYetWrittenAreTaken)
{
    for (const char* const name : {"library.db.lock", "run-dead.lock"}) {
        QFile empty(m_folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
    }
    const auto database = Open();
    ASSERT_NE(database, nullptr);
    Contents(*database);
    EXPECT_FALSE(Files("run-*.lock").contains(QStringLiteral("run-dead.lock")));
    EXPECT_TRUE(Files("library.db.lock").isEmpty());
}

TEST_F(TestLibraryDatabase, AFileOfVersion1IsBackedUpAndMigrated)
{
    {
        // As the first version made it: these statements are never changed.
        LibraryConnection connection(m_path);
        for (const char* const statement :
             {"CREATE TABLE videos(id INTEGER PRIMARY KEY, path TEXT NOT NULL UNIQUE, position INTEGER NOT NULL, "
              "file_bytes INTEGER NOT NULL, content_hash TEXT NOT NULL, width INTEGER NOT NULL, height INTEGER NOT "
              "NULL, rate_numerator INTEGER NOT NULL, rate_denominator INTEGER NOT NULL, frame_count INTEGER NOT NULL)",
              "CREATE TABLE settings(video INTEGER PRIMARY KEY REFERENCES videos(id) ON DELETE CASCADE, aspect_width "
              "INTEGER NOT NULL, aspect_height INTEGER NOT NULL, speed INTEGER NOT NULL)",
              "CREATE TABLE edits(video INTEGER NOT NULL REFERENCES videos(id) ON DELETE CASCADE, frame INTEGER NOT "
              "NULL, x REAL NOT NULL, y REAL NOT NULL, width REAL NOT NULL, height REAL NOT NULL, PRIMARY KEY(video, "
              "frame)) WITHOUT ROWID",
              "CREATE TABLE exports(key INTEGER PRIMARY KEY, position INTEGER NOT NULL, state TEXT NOT NULL, run TEXT "
              "NOT NULL, source_path TEXT NOT NULL, audio_stream INTEGER, crops BLOB, output_path TEXT NOT NULL, "
              "adds_number INTEGER NOT NULL, width INTEGER NOT NULL, height INTEGER NOT NULL, frame_rate REAL NOT "
              "NULL, video_bit_rate INTEGER NOT NULL, audio_bit_rate INTEGER NOT NULL, file_path TEXT NOT NULL, "
              "file_bytes INTEGER NOT NULL, message TEXT NOT NULL)",
              "CREATE TABLE state(name TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID",
              "INSERT INTO videos VALUES(5, '/old.mp4', 1, 10, 'hash', 640, 360, 25, 1, 50)",
              "INSERT INTO exports VALUES(1, 1, 'done', 'run', '/old.mp4', NULL, NULL, '/out.mp4', 1, 606, 1080, 25, "
              "1000, 1000, '/out.mp4', 5, '')",
              "INSERT INTO settings VALUES(5, 1, 1, 24)", "INSERT INTO edits VALUES(5, 7, 0.25, 0, 0.5, 1)",
              "PRAGMA user_version = 1"}) {
            const KxError failure = connection.Execute(QLatin1String(statement));
            ASSERT_FALSE(failure) << failure->toStdString();
        }
    }
    const auto database = Open();
    EXPECT_TRUE(database->Notice().isEmpty());
    EXPECT_EQ(Value(*database, "PRAGMA user_version").toInt(), LibrarySchema::Version);
    EXPECT_EQ(Paths(*database), QStringList(QStringLiteral("/old.mp4")));
    const VideoEdits edits = Edits(*database, "/old.mp4");
    EXPECT_EQ(edits.aspect, QSize(1, 1));
    EXPECT_EQ(edits.editPoints.value(7), QRectF(0.25, 0.0, 0.5, 1.0));
    const QList<StoredExport> exports = Contents(*database).exports;
    ASSERT_EQ(exports.size(), 1);
    EXPECT_EQ(exports.first().request.settings.resolution, QSize(606, 1080));
    EXPECT_EQ(exports.first().request.settings.format.codec, KxOutputFormat::Codec::H264);
    EXPECT_EQ(exports.first().request.settings.format.sound, KxOutputFormat::Sound::Encoded);
    ASSERT_FALSE(database->MarkUsed(QStringLiteral("/old.mp4")));
    EXPECT_EQ(Contents(*database).recent, QStringList(QStringLiteral("/old.mp4")));

    LibraryConnection backup(m_folder.filePath(QStringLiteral("library-version-1.db")));
    EXPECT_EQ(backup.Value(QStringLiteral("PRAGMA user_version"))->toInt(), 1);
    EXPECT_EQ(backup.Value(QStringLiteral("SELECT path FROM videos"))->toString(), QStringLiteral("/old.mp4"));
    EXPECT_TRUE(Files("*.part").isEmpty());
}

TEST_F(TestLibraryDatabase, AFileOfANewerVersionIsLeftAlone)
{
    Open();
    {
        LibraryConnection connection(m_path);
        ASSERT_FALSE(connection.Execute(QStringLiteral("PRAGMA user_version = 99")));
    }
    const KxResult<std::unique_ptr<LibraryDatabase>> opened = LibraryDatabase::Open(m_path);
    ASSERT_FALSE(opened);
    EXPECT_EQ(opened.Message(),
              QStringLiteral("Cannot open the library %1: it was written by a newer version of this program. "
                             "What you do now is not saved.")
                  .arg(QDir::toNativeSeparators(m_path)));
    LibraryConnection connection(m_path);
    EXPECT_EQ(connection.Value(QStringLiteral("PRAGMA user_version"))->toInt(), 99);
}

TEST_F(TestLibraryDatabase, AFileThatIsNoDatabaseIsSetAsideAndANewOneCreated)
{
    const QByteArray content(10000, 'x');
    Write(content);
    const auto database = Open();
    const QStringList aside = Files("library-damaged-*.db");
    ASSERT_EQ(aside.size(), 1);
    EXPECT_EQ(database->Notice(),
              QStringLiteral("The library was damaged. It was renamed to %1, and a new one was begun.")
                  .arg(QDir::toNativeSeparators(m_folder.filePath(aside.first()))));
    QFile kept(m_folder.filePath(aside.first()));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), content);
    EXPECT_FALSE(database->SaveVideo(Video(QStringLiteral("/a.mp4"))));
}

TEST_F(TestLibraryDatabase, ADamagedPageIsFoundAndTheFileSetAside)
{
    {
        const auto database = Open();
        for (int i = 0; i < 500; ++i) {
            ASSERT_FALSE(database->SaveVideo(Video(QStringLiteral("/folder/video %1.mp4").arg(i))));
        }
    }
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_GT(file.size(), 4 * 4096);
        for (qint64 page = 1; page * 4096 < file.size(); ++page) {
            file.seek(page * 4096);
            file.write(QByteArray(64, '\xff'));
        }
    }
    const auto database = Open();
    EXPECT_TRUE(database->Notice().startsWith(QStringLiteral("The library was damaged.")));
    EXPECT_TRUE(Paths(*database).isEmpty());
    EXPECT_EQ(Files("library-damaged-*.db").size(), 1);
}

TEST_F(TestLibraryDatabase, WhatCannotBeOpenedIsReportedAndLeftAlone)
{
    if (!TestSystem::MakeNamedPipe(m_path)) {
        ASSERT_TRUE(QDir().mkpath(m_path));
    }
    EXPECT_EQ(LibraryDatabase::Open(m_path).Message(),
              QStringLiteral("Cannot open the library %1: it is not a regular file. What you do now is not saved.")
                  .arg(QDir::toNativeSeparators(m_path)));
    QFile file(m_folder.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const QString below = file.fileName() + QStringLiteral("/library.db");
    EXPECT_EQ(LibraryDatabase::Open(below).Message(),
              QStringLiteral("Cannot open the library %1: its folder cannot be made. What you do now is not saved.")
                  .arg(QDir::toNativeSeparators(below)));
}

TEST_F(TestLibraryDatabase, TwoProgramsWriteToOneFile)
{
    const auto first = Open();
    const auto second = Open();
    ASSERT_FALSE(first->SaveVideo(Video(QStringLiteral("/a.mp4"))));
    ASSERT_FALSE(second->SaveVideo(Video(QStringLiteral("/b.mp4"))));
    ASSERT_FALSE(second->SaveVideo(Video(QStringLiteral("/a.mp4"))));
    ASSERT_FALSE(first->SaveVideo(Video(QStringLiteral("/c.mp4"))));
    const QStringList all{QStringLiteral("/a.mp4"), QStringLiteral("/b.mp4"), QStringLiteral("/c.mp4")};
    EXPECT_EQ(Paths(*first), all);
    EXPECT_EQ(Paths(*second), all);
}
