#include <Tests/AutoReframe/Store/LibraryDatabaseTest.h>

#include <Apps/AutoReframe/Store/LibrarySchema.h>

#include <QDateTime>

namespace
{

using State = StoredExport::State;

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

} // namespace

TEST_F(TestLibraryDatabase, ANewFileIsEmptyAndOfTheCurrentVersion)
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
    edits.editPictures = {{99, "{\"version\":1}"}};
    edits.unplacedEdits = {{-30, QRectF(0.2, 0.0, 0.25, 1.0), "pictures"}, {12, QRectF(0.3, 0.0, 0.25, 1.0), {}}};
    edits.choices = "{\"version\":1}";
    const auto database = Open();
    ASSERT_FALSE(database->SaveVideo(Video(QStringLiteral("/a.mp4"))));
    ASSERT_FALSE(database->SaveVideo(Video(QStringLiteral("/b.mp4"))));
    ASSERT_FALSE(database->SaveEdits(QStringLiteral("/a.mp4"), edits));
    EXPECT_TRUE(Edits(*database, "/a.mp4") == edits);
    EXPECT_TRUE(Edits(*database, "/b.mp4") == VideoEdits());
    edits.editPoints.remove(12);
    edits.choices.clear();
    edits.unplacedEdits.removeFirst();
    ASSERT_FALSE(database->SaveEdits(QStringLiteral("/a.mp4"), edits));
    EXPECT_TRUE(Edits(*database, "/a.mp4") == edits);
}

TEST_F(TestLibraryDatabase, OfManyEditPointsOnlyThoseThatChangedAreWritten)
{
    VideoEdits edits;
    for (uint frame = 0; frame < 100; ++frame) {
        edits.editPoints.insert(frame, QRectF(0.1, 0.0, 0.5, 1.0));
        edits.editPictures.insert(frame, "{}");
    }
    const auto database = Open();
    ASSERT_FALSE(database->SaveEdits(QStringLiteral("/a.mp4"), edits));
    const int before = Value(*database, "SELECT total_changes()").toInt();
    edits.editPoints[7].moveLeft(0.2);
    edits.editPoints.remove(8);
    edits.editPictures.remove(8);
    ASSERT_FALSE(database->SaveEdits(QStringLiteral("/a.mp4"), edits));
    EXPECT_LT(Value(*database, "SELECT total_changes()").toInt() - before, 10);
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

TEST_F(TestLibraryDatabase, AnExportComesBackWithTheFormatThatWasChosen)
{
    KxOutputFormat chosen;
    chosen.codec = KxOutputFormat::Codec::Hevc;
    chosen.encoder = KxOutputFormat::Encoder::Vaapi;
    chosen.quality = 62.5;
    chosen.highRange = KxHighRange::Kept;
    chosen.sound = KxOutputFormat::Sound::Copied;
    chosen.loudnessLufs = -16.5;
    {
        const auto database = Open();
        StoredExport item = Export(1, State::Failed);
        item.request.settings.format = chosen;
        ASSERT_FALSE(database->SaveExport(item));
        // Another one has no quality and no loudness.
        item.key = 2;
        item.request.settings.format = {};
        item.request.settings.format.sound = KxOutputFormat::Sound::Automatic;
        ASSERT_FALSE(database->SaveExport(item));
    }
    const QList<StoredExport> exports = Contents(*Open()).exports;
    ASSERT_EQ(exports.size(), 2);
    const KxOutputFormat& first = exports.first().request.settings.format;
    EXPECT_EQ(first.codec, chosen.codec);
    EXPECT_EQ(first.encoder, chosen.encoder);
    EXPECT_EQ(first.quality, chosen.quality);
    EXPECT_EQ(first.highRange, chosen.highRange);
    EXPECT_EQ(first.sound, chosen.sound);
    EXPECT_EQ(first.loudnessLufs, chosen.loudnessLufs);
    const KxOutputFormat& last = exports.last().request.settings.format;
    EXPECT_EQ(last.codec, KxOutputFormat::Codec::H264);
    EXPECT_EQ(last.quality, std::nullopt);
    EXPECT_EQ(last.sound, KxOutputFormat::Sound::Automatic);
    EXPECT_EQ(last.loudnessLufs, std::nullopt);
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

TEST_F(TestLibraryDatabase, AnExportWhoseFileWasCompleteWhenItsRunEndedIsDone)
{
    const QString older = m_folder.filePath(QStringLiteral("a.mp4"));
    const QString own = m_folder.filePath(QStringLiteral("a (2).mp4"));
    StoredExport item = Export(1, State::Running);
    item.request.settings.outputPath = older;
    item.request.settings.existing = KxOutputFile::Existing::AddNumber;
    item.begunAtMs = 1700000000000;
    StoredExport other = item;
    other.key = 2;
    other.request.settings.outputPath = m_folder.filePath(QStringLiteral("b.mp4"));
    {
        const auto database = Open();
        ASSERT_FALSE(database->SaveExport(item));
        ASSERT_FALSE(database->SaveExport(other));
        for (const auto& [path, ms] : {std::pair(older, -60000), std::pair(own, 1000)}) {
            QFile file(path);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            ASSERT_EQ(file.write("video"), 5);
            ASSERT_TRUE(file.flush());
            ASSERT_TRUE(file.setFileTime(QDateTime::fromMSecsSinceEpoch(item.begunAtMs + ms),
                                         QFileDevice::FileModificationTime));
        }
    }
    const QList<StoredExport> exports = Contents(*Open()).exports;
    ASSERT_EQ(exports.size(), 2);
    EXPECT_EQ(exports[0].state, State::Done);
    EXPECT_EQ(exports[0].filePath, own);
    EXPECT_EQ(exports[0].fileBytes, 5);
    EXPECT_EQ(exports[1].state, State::Interrupted);
    EXPECT_EQ(exports[1].begunAtMs, other.begunAtMs);
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
    const ReframePlan plan{QSize(4, 5), 24, 1080, 2160};
    {
        const auto database = Open();
        StoredExport item = Export(1, State::Waiting);
        item.plan = plan;
        item.frames = 4242;
        ASSERT_FALSE(database->SaveExport(item));
        item.state = State::Done;
        item.shotsToLookAt = {30, 90};
        item.missingEdits = 3;
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
    EXPECT_EQ(exports[0].missingEdits, 3);
    EXPECT_EQ(exports[1].missingEdits, 0);
    EXPECT_FALSE(exports[1].plan.has_value());
    EXPECT_TRUE(exports[1].shotsToLookAt.isEmpty());
}
