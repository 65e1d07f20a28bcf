#include <Apps/AutoReframe/Store/LibraryDatabase.h>
#include <Apps/AutoReframe/Store/LibrarySchema.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

using State = StoredExport::State;

StoredVideo Video(const QString& path)
{
    StoredVideo video;
    video.path = path;
    video.fileBytes = 1234567890123;
    video.contentHash = "0123456789abcdef";
    video.resolution = QSize(1920, 1080);
    video.frameRate = {30000, 1001};
    video.frameCount = 4242;
    return video;
}

StoredExport Export(qint64 key, State state)
{
    StoredExport item;
    item.key = key;
    item.state = state;
    item.request.source.path = QStringLiteral("/clips/a.mp4");
    item.request.source.audioStream = 1;
    item.request.source.crops = std::make_shared<std::vector<QRectF>>(
        std::vector<QRectF>{{0.1, 0.0, 0.31640625, 1.0}, {1.0 / 3.0, 0.0, 0.31640625, 1.0}});
    item.request.settings.outputPath = QStringLiteral("/exports/a.mp4");
    item.request.settings.resolution = QSize(608, 1080);
    item.request.settings.frameRate = 29.97;
    item.request.settings.videoBitRate = 5000000;
    item.request.settings.audioBitRate = 128000;
    item.filePath = item.request.settings.outputPath;
    return item;
}

class TestLibraryDatabase : public testing::Test
{
protected:
    std::unique_ptr<LibraryDatabase> Open() const
    {
        KxResult<std::unique_ptr<LibraryDatabase>> opened = LibraryDatabase::Open(m_path);
        EXPECT_TRUE(opened) << opened.Message().toStdString();
        return opened ? std::move(*opened) : nullptr;
    }
    static StoredContents Contents(LibraryDatabase& database)
    {
        const KxResult<StoredContents> contents = database.ReadContents();
        EXPECT_TRUE(contents) << contents.Message().toStdString();
        return contents ? *contents : StoredContents();
    }
    static QStringList Paths(LibraryDatabase& database)
    {
        QStringList paths;
        for (const StoredVideo& video : Contents(database).videos) {
            paths += video.path;
        }
        return paths;
    }
    static VideoEdits Edits(LibraryDatabase& database, const char* path)
    {
        return Contents(database).edits.value(QLatin1String(path));
    }
    static QVariant Value(LibraryDatabase& database, const char* statement)
    {
        const KxResult<QVariant> value = database.Connection().Value(QLatin1String(statement));
        EXPECT_TRUE(value) << value.Message().toStdString();
        return value ? *value : QVariant();
    }
    QStringList Files(const char* pattern) const
    {
        return QDir(m_folder.path()).entryList({QLatin1String(pattern)}, QDir::Files);
    }
    void Write(const QByteArray& content) const
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("library.db"));
};

} // namespace

TEST_F(TestLibraryDatabase, ANewOneIsEmptyAndOfTheCurrentVersion)
{
    const auto database = Open();
    const StoredContents contents = Contents(*database);
    EXPECT_TRUE(contents.videos.isEmpty());
    EXPECT_TRUE(contents.exports.isEmpty());
    EXPECT_TRUE(database->Notice().isEmpty());
    EXPECT_EQ(Value(*database, "PRAGMA user_version").toInt(), LibrarySchema::Version);
    EXPECT_EQ(Value(*database, "PRAGMA journal_mode").toString(), QStringLiteral("wal"));
    EXPECT_EQ(Value(*database, "PRAGMA foreign_keys").toInt(), 1);
}

TEST_F(TestLibraryDatabase, VideosComeBackInTheirOrderWithAllFacts)
{
    {
        const auto database = Open();
        for (const char* const path : {"/b.mp4", "/a.mp4", "/Вечер ☂ 100%1.mp4"}) {
            ASSERT_FALSE(database->SaveVideo(Video(QString::fromUtf8(path))));
        }
        StoredVideo changed = Video(QStringLiteral("/b.mp4"));
        changed.frameCount = 7;
        ASSERT_FALSE(database->SaveVideo(changed));
    }
    const auto database = Open();
    const QList<StoredVideo> videos = Contents(*database).videos;
    ASSERT_EQ(videos.size(), 3);
    EXPECT_EQ(videos[0].path, QStringLiteral("/b.mp4"));
    EXPECT_EQ(videos[0].frameCount, 7);
    EXPECT_EQ(videos[2].path, QString::fromUtf8("/Вечер ☂ 100%1.mp4"));
    EXPECT_EQ(videos[1].fileBytes, 1234567890123);
    EXPECT_EQ(videos[1].contentHash, QByteArray("0123456789abcdef"));
    EXPECT_EQ(videos[1].resolution, QSize(1920, 1080));
    EXPECT_EQ(videos[1].frameRate.numerator, 30000);
    EXPECT_EQ(videos[1].frameRate.denominator, 1001);
}

TEST_F(TestLibraryDatabase, EditsComeBackAndAreReplaced)
{
    VideoEdits edits;
    edits.aspect = QSize(9, 16);
    edits.speed = 8;
    edits.isAnalyzed = true;
    edits.seenShots = {0, 40};
    edits.editPoints = {{12, QRectF(0.1, 0.0, 1.0 / 3.0, 1.0)}, {99, QRectF(0.5, 0.25, 0.25, 0.5)}};
    edits.choices = "{\"version\":1}";
    const auto database = Open();
    ASSERT_FALSE(database->SaveVideo(Video(QStringLiteral("/a.mp4"))));
    ASSERT_FALSE(database->SaveVideo(Video(QStringLiteral("/b.mp4"))));
    ASSERT_FALSE(database->SaveEdits(QStringLiteral("/a.mp4"), edits));
    EXPECT_TRUE(Edits(*database, "/a.mp4") == edits);
    EXPECT_TRUE(Edits(*database, "/b.mp4") == VideoEdits());
    edits.editPoints.remove(12);
    edits.choices.clear();
    ASSERT_FALSE(database->SaveEdits(QStringLiteral("/a.mp4"), edits));
    EXPECT_TRUE(Edits(*database, "/a.mp4") == edits);
}

TEST_F(TestLibraryDatabase, EditsOfAVideoThatIsNotInTheLibraryAreKept)
{
    VideoEdits edits;
    edits.editPoints = {{3, QRectF(0.0, 0.0, 0.5, 1.0)}};
    const auto database = Open();
    ASSERT_FALSE(database->SaveEdits(QStringLiteral("/other.mp4"), edits));
    EXPECT_TRUE(Paths(*database).isEmpty());
    EXPECT_TRUE(Edits(*database, "/other.mp4") == edits);
    ASSERT_FALSE(database->SaveVideo(Video(QStringLiteral("/other.mp4"))));
    EXPECT_EQ(Paths(*database), QStringList(QStringLiteral("/other.mp4")));
    EXPECT_TRUE(Edits(*database, "/other.mp4") == edits);
}

TEST_F(TestLibraryDatabase, ARemovedVideoThatIsImportedAgainHasItsEditsAndComesLast)
{
    VideoEdits edits;
    edits.editPoints = {{3, QRectF(0.0, 0.0, 0.5, 1.0)}};
    const auto database = Open();
    for (const char* const path : {"/a.mp4", "/b.mp4"}) {
        ASSERT_FALSE(database->SaveVideo(Video(QLatin1String(path))));
    }
    ASSERT_FALSE(database->SaveEdits(QStringLiteral("/a.mp4"), edits));
    ASSERT_FALSE(database->RemoveVideo(QStringLiteral("/a.mp4")));
    EXPECT_EQ(Paths(*database), QStringList(QStringLiteral("/b.mp4")));
    ASSERT_FALSE(database->SaveVideo(Video(QStringLiteral("/a.mp4"))));
    EXPECT_EQ(Paths(*database), (QStringList{QStringLiteral("/b.mp4"), QStringLiteral("/a.mp4")}));
    EXPECT_TRUE(Edits(*database, "/a.mp4").editPoints == edits.editPoints);
}

TEST_F(TestLibraryDatabase, WhatWasRemovedLongAgoIsForgotten)
{
    const auto database = Open();
    for (const char* const path : {"/a.mp4", "/b.mp4"}) {
        ASSERT_FALSE(database->SaveVideo(Video(QLatin1String(path))));
        ASSERT_FALSE(database->SaveThumbnail(QLatin1String(path), "jpeg"));
        ASSERT_FALSE(database->RemoveVideo(QLatin1String(path)));
    }
    ASSERT_FALSE(database->Connection().Execute(
        QStringLiteral("UPDATE videos SET removed_at = removed_at - 7776001 WHERE path = '/a.mp4'")));
    Contents(*database);
    EXPECT_EQ(Value(*database, "SELECT group_concat(path) FROM videos").toString(), QStringLiteral("/b.mp4"));
    EXPECT_EQ(Value(*database, "SELECT count(*) FROM thumbnails").toInt(), 1);
}

TEST_F(TestLibraryDatabase, AMovedVideoKeepsEverything)
{
    VideoEdits edits;
    edits.choices = "{}";
    const auto database = Open();
    ASSERT_FALSE(database->SaveVideo(Video(QStringLiteral("/old/a.mp4"))));
    ASSERT_FALSE(database->SaveVideo(Video(QStringLiteral("/new/a.mp4"))));
    ASSERT_FALSE(database->SaveEdits(QStringLiteral("/old/a.mp4"), edits));
    ASSERT_FALSE(database->SaveThumbnail(QStringLiteral("/old/a.mp4"), "jpeg"));
    ASSERT_FALSE(database->MoveVideo(QStringLiteral("/old/a.mp4"), QStringLiteral("/new/a.mp4")));
    EXPECT_EQ(Paths(*database), QStringList(QStringLiteral("/new/a.mp4")));
    EXPECT_TRUE(Edits(*database, "/new/a.mp4") == edits);
    EXPECT_EQ(*database->ReadThumbnail(QStringLiteral("/new/a.mp4")), QByteArray("jpeg"));
    ASSERT_FALSE(database->MoveVideo(QStringLiteral("/new/a.mp4"), QStringLiteral("/new/a.mp4")));
    EXPECT_EQ(Paths(*database).size(), 1);
}

TEST_F(TestLibraryDatabase, TheVideosUsedLastAreListedWithTheNewestFirst)
{
    const auto database = Open();
    for (int i = 0; i < LibraryDatabase::MostRecent + 3; ++i) {
        const QString path = QStringLiteral("/%1.mp4").arg(i);
        ASSERT_FALSE(database->SaveVideo(Video(path)));
        ASSERT_FALSE(database->MarkUsed(path));
    }
    ASSERT_FALSE(database->MarkUsed(QStringLiteral("/5.mp4")));
    ASSERT_FALSE(database->RemoveVideo(QStringLiteral("/12.mp4")));
    const QStringList recent = Contents(*database).recent;
    ASSERT_EQ(recent.size(), LibraryDatabase::MostRecent);
    EXPECT_EQ(recent.mid(0, 3),
              (QStringList{QStringLiteral("/5.mp4"), QStringLiteral("/12.mp4"), QStringLiteral("/11.mp4")}));
}

TEST_F(TestLibraryDatabase, AnExportComesBackWithEverythingThatItNeeds)
{
    {
        const auto database = Open();
        ASSERT_FALSE(database->SaveExport(Export(77, State::Failed)));
    }
    const auto database = Open();
    const QList<StoredExport> exports = Contents(*database).exports;
    ASSERT_EQ(exports.size(), 1);
    const ExportRequest& request = exports.first().request;
    EXPECT_EQ(exports.first().key, 77);
    EXPECT_EQ(request.source.path, QStringLiteral("/clips/a.mp4"));
    EXPECT_EQ(request.source.audioStream, 1);
    ASSERT_NE(request.source.crops, nullptr);
    EXPECT_EQ(*request.source.crops, *Export(77, State::Failed).request.source.crops);
    EXPECT_EQ(request.settings.outputPath, QStringLiteral("/exports/a.mp4"));
    EXPECT_EQ(request.settings.existing, KxOutputFile::Existing::AddNumber);
    EXPECT_EQ(request.settings.resolution, QSize(608, 1080));
    EXPECT_EQ(request.settings.frameRate, 29.97);
    EXPECT_EQ(request.settings.videoBitRate, 5000000);
    EXPECT_EQ(request.settings.audioBitRate, 128000);
}

TEST_F(TestLibraryDatabase, AnExportThatFitsWholePicturesStillDoesSo)
{
    {
        const auto database = Open();
        StoredExport fitting = Export(77, State::Failed);
        fitting.request.source.otherShapes = KxRenderSource::OtherShapes::Fitted;
        ASSERT_FALSE(database->SaveExport(fitting));
        ASSERT_FALSE(database->SaveExport(Export(78, State::Failed)));
    }
    const QList<StoredExport> exports = Contents(*Open()).exports;
    ASSERT_EQ(exports.size(), 2);
    EXPECT_EQ(exports[0].request.source.otherShapes, KxRenderSource::OtherShapes::Fitted);
    EXPECT_EQ(exports[1].request.source.otherShapes, KxRenderSource::OtherShapes::Stretched);
    for (const StoredExport& item : exports) {
        ASSERT_NE(item.request.source.crops, nullptr);
        EXPECT_EQ(*item.request.source.crops, *Export(77, State::Failed).request.source.crops);
    }
}

TEST_F(TestLibraryDatabase, ExportsOfARunThatEndedAreInterruptedAndOthersKeepTheirState)
{
    {
        const auto database = Open();
        ASSERT_FALSE(database->SaveExport(Export(1, State::Waiting)));
        ASSERT_FALSE(database->SaveExport(Export(2, State::Running)));
        ASSERT_FALSE(database->SaveExport(Export(3, State::Cancelled)));
        ASSERT_FALSE(database->SaveExport(Export(4, State::Running)));
        StoredExport done = Export(4, State::Done);
        done.fileBytes = 99;
        ASSERT_FALSE(database->SaveExportState(done));
    }
    const auto database = Open();
    const QList<StoredExport> exports = Contents(*database).exports;
    ASSERT_EQ(exports.size(), 4);
    EXPECT_EQ(exports[0].state, State::Interrupted);
    EXPECT_EQ(exports[1].state, State::Interrupted);
    EXPECT_EQ(exports[2].state, State::Cancelled);
    EXPECT_EQ(exports[3].state, State::Done);
    EXPECT_EQ(exports[3].fileBytes, 99);
    EXPECT_EQ(exports[3].request.source.crops, nullptr);
}

TEST_F(TestLibraryDatabase, ExportsOfARunningProgramAreNotOffered)
{
    const auto first = Open();
    ASSERT_FALSE(first->SaveExport(Export(1, State::Running)));
    const auto second = Open();
    EXPECT_TRUE(Contents(*second).exports.isEmpty());
    EXPECT_EQ(Value(*second, "SELECT state FROM exports").toString(), QStringLiteral("running"));
}

TEST_F(TestLibraryDatabase, InterruptedExportsAreOfferedByOneProgramOnly)
{
    {
        const auto database = Open();
        ASSERT_FALSE(database->SaveExport(Export(1, State::Running)));
    }
    const auto first = Open();
    EXPECT_EQ(Contents(*first).exports.size(), 1);
    const auto second = Open();
    EXPECT_TRUE(Contents(*second).exports.isEmpty());
}

TEST_F(TestLibraryDatabase, ARetriedExportIsTheLast)
{
    const auto database = Open();
    for (const qint64 key : {30, 20, 10}) {
        ASSERT_FALSE(database->SaveExport(Export(key, State::Failed)));
    }
    ASSERT_FALSE(database->SaveExportState(Export(30, State::Waiting)));
    ASSERT_FALSE(database->SaveExportState(Export(30, State::Failed)));
    ASSERT_FALSE(database->RemoveExport(20));
    const QList<StoredExport> exports = Contents(*database).exports;
    ASSERT_EQ(exports.size(), 2);
    EXPECT_EQ(exports[0].key, 10);
    EXPECT_EQ(exports[1].key, 30);
}

TEST_F(TestLibraryDatabase, AnExportWhoseCropsAreDamagedIsLeftOut)
{
    const auto database = Open();
    ASSERT_FALSE(database->SaveExport(Export(1, State::Failed)));
    // Too short, a claim of 2 GB, and what is no list of rectangles.
    for (const QByteArray& crops : {QByteArray("0000"), QByteArray("7fffffff789c0300"), qCompress("abc").toHex()}) {
        ASSERT_FALSE(database->Connection().Execute(
            QStringLiteral("UPDATE exports SET crops = x'%1'").arg(QLatin1String(crops))));
        EXPECT_TRUE(Contents(*database).exports.isEmpty()) << crops.constData();
    }
}

TEST_F(TestLibraryDatabase, APlannedExportComesBackWithItsPlanAndWhatIsToBeLookedAt)
{
    const ReframePlan plan{QSize(4, 5), 24, 1080};
    {
        const auto database = Open();
        StoredExport item = Export(1, State::Waiting);
        item.plan = plan;
        item.frames = 4242;
        ASSERT_FALSE(database->SaveExport(item));
        item.state = State::Done;
        item.shotsToLookAt = {30, 90};
        ASSERT_FALSE(database->SaveExportState(item));
        ASSERT_FALSE(database->SaveExport(Export(2, State::Waiting)));
    }
    const auto database = Open();
    const QList<StoredExport> exports = Contents(*database).exports;
    ASSERT_EQ(exports.size(), 2);
    ASSERT_TRUE(exports[0].plan.has_value());
    EXPECT_TRUE(*exports[0].plan == plan);
    EXPECT_EQ(exports[0].frames, 4242);
    EXPECT_EQ(exports[0].shotsToLookAt, QList<uint>({30, 90}));
    EXPECT_FALSE(exports[1].plan.has_value());
    EXPECT_TRUE(exports[1].shotsToLookAt.isEmpty());
}

TEST_F(TestLibraryDatabase, LockFilesOfKilledRunsAreRemoved)
{
    const auto database = Open();
    QFile dead(m_folder.filePath(QStringLiteral("run-dead.lock")));
    ASSERT_TRUE(dead.open(QIODevice::WriteOnly));
    // As QLockFile writes it: process, program, host. No process has that number.
    dead.write("2147483647\nauto-reframe\n" + QSysInfo::machineHostName().toLocal8Bit() + "\n");
    dead.close();
    ASSERT_EQ(Files("run-*.lock").size(), 2);
    Contents(*database);
    EXPECT_EQ(Files("run-*.lock").size(), 1);
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
                  .arg(m_path));
    LibraryConnection connection(m_path);
    EXPECT_EQ(connection.Value(QStringLiteral("PRAGMA user_version"))->toInt(), 99);
}

TEST_F(TestLibraryDatabase, AFileThatIsNoDatabaseIsSetAsideAndANewOneBegun)
{
    const QByteArray content(10000, 'x');
    Write(content);
    const auto database = Open();
    const QStringList aside = Files("library-damaged-*.db");
    ASSERT_EQ(aside.size(), 1);
    EXPECT_EQ(database->Notice(),
              QStringLiteral("The library was damaged. It was renamed to %1, and a new one was begun.")
                  .arg(m_folder.filePath(aside.first())));
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
    ASSERT_EQ(QProcess::execute(QStringLiteral("mkfifo"), {m_path}), 0);
    EXPECT_EQ(LibraryDatabase::Open(m_path).Message(),
              QStringLiteral("Cannot open the library %1: it is not a regular file. What you do now is not saved.")
                  .arg(m_path));
    const QString below = m_path + QStringLiteral("/library.db");
    EXPECT_EQ(LibraryDatabase::Open(below).Message(),
              QStringLiteral("Cannot open the library %1: its folder cannot be made. What you do now is not saved.")
                  .arg(below));
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
