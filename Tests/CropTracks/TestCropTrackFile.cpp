#include <Tests/Support/TestSystem.h>

#include <Apps/CropTracks/CropTrackFile.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

CropTrack Track()
{
    CropTrack track;
    track.sourcePath = QStringLiteral("/videos/a \"quoted\" name.mp4");
    track.sourceSize = QSize(1920, 1080);
    track.frameRate = {30000, 1001};
    track.aspect = QSize(9, 16);
    track.speedName = QStringLiteral("slow");
    for (int frame = 0; frame < 3; ++frame) {
        track.crops.append(IKxAutoReframeResult(frame, QRectF(0.1 + frame / 6.0, 0.0, 0.31640625, 1.0)));
    }
    return track;
}

class CropTrackFileTest : public testing::Test
{
protected:
    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    QString WithContent(const char* name, const QByteArray& content) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

void ExpectRefused(const QString& path, const char* reason)
{
    const KxResult<CropTrack> track = CropTrackFile::Read(path, 3);
    ASSERT_FALSE(track) << path.toStdString();
    EXPECT_TRUE(track.Message().contains(QLatin1String(reason))) << track.Message().toStdString();
}

} // namespace

TEST_F(CropTrackFileTest, JsonCarriesHowCropsOfAnotherShapeAreShown)
{
    using OtherShapes = KxRenderSource::OtherShapes;
    CropTrack track = Track();
    EXPECT_FALSE(CropTrackFile::Format(track, Path("t.json")).contains("other_shapes"));
    track.otherShapes = OtherShapes::Fitted;
    const auto read = CropTrackFile::Read(WithContent("t.json", CropTrackFile::Format(track, Path("t.json"))), 3);
    ASSERT_TRUE(read) << read.Message().toStdString();
    EXPECT_EQ(read->otherShapes, OtherShapes::Fitted);
    EXPECT_EQ(read->crops.size(), 3);
    const auto plain = CropTrackFile::Read(WithContent("p.json", CropTrackFile::Format(Track(), Path("p.json"))), 3);
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->otherShapes, OtherShapes::Stretched);
}

TEST_F(CropTrackFileTest, JsonHasTheDocumentedShape)
{
    const QJsonObject root = QJsonDocument::fromJson(CropTrackFile::Format(Track(), Path("t.json"))).object();
    EXPECT_EQ(root.value(QStringLiteral("version")).toInt(), 1);
    const QJsonObject source = root.value(QStringLiteral("source")).toObject();
    EXPECT_EQ(source.value(QStringLiteral("path")).toString(), Track().sourcePath);
    EXPECT_EQ(source.value(QStringLiteral("width")).toInt(), 1920);
    EXPECT_EQ(source.value(QStringLiteral("height")).toInt(), 1080);
    EXPECT_EQ(source.value(QStringLiteral("frame_count")).toInt(), 3);
    EXPECT_EQ(source.value(QStringLiteral("frame_rate")).toArray(), (QJsonArray{30000, 1001}));
    EXPECT_EQ(root.value(QStringLiteral("aspect")).toArray(), (QJsonArray{9, 16}));
    EXPECT_EQ(root.value(QStringLiteral("speed")).toString(), QStringLiteral("slow"));
    const QJsonArray frames = root.value(QStringLiteral("frames")).toArray();
    ASSERT_EQ(frames.size(), 3);
    EXPECT_EQ(frames.at(0).toArray(), (QJsonArray{0.1, 0.0, 0.31640625, 1.0}));
}

TEST_F(CropTrackFileTest, JsonNamesTheNetworksOfTheAnalysis)
{
    const auto modelsOf = [this](const CropTrack& track) {
        const QByteArray text = CropTrackFile::Format(track, Path("t.json"));
        EXPECT_EQ(QJsonDocument::fromJson(text).object().value(QStringLiteral("frames")).toArray().size(), 3);
        EXPECT_TRUE(CropTrackFile::Read(WithContent("models.json", text), 3));
        return QJsonDocument::fromJson(text).object().value(QStringLiteral("models"));
    };
    CropTrack track = Track();
    EXPECT_TRUE(modelsOf(track).isUndefined()) << "nothing was analysed";
    track.models.emplace();
    EXPECT_EQ(modelsOf(track), QJsonValue(QStringLiteral("none")));
    track.models = std::vector<KxUsedModel>{KxUsedModel{"people.onnx", "0123"}};
    EXPECT_EQ(modelsOf(track),
              QJsonValue(QJsonArray{QJsonObject{{QStringLiteral("name"), QStringLiteral("people.onnx")},
                                                {QStringLiteral("sha256"), QStringLiteral("0123")}}}));
}

TEST_F(CropTrackFileTest, CsvHasTheDocumentedShape)
{
    const QList<QByteArray> lines = CropTrackFile::Format(Track(), Path("t.CSV")).split('\n');
    EXPECT_EQ(lines.at(0), QByteArray("frame,x,y,w,h"));
    EXPECT_EQ(lines.at(1), QByteArray("0,0.100000000,0.000000000,0.316406250,1.000000000"));
    EXPECT_EQ(lines.size(), 5);
}

TEST_F(CropTrackFileTest, AWrittenTrackCanBeRead)
{
    for (const char* name : {"t.json", "t.csv"}) {
        const KxResult<CropTrack> track =
            CropTrackFile::Read(WithContent(name, CropTrackFile::Format(Track(), Path(name))), 3);
        ASSERT_TRUE(track) << track.Message().toStdString();
        ASSERT_EQ(track->crops.size(), 3);
        for (int frame = 0; frame < 3; ++frame) {
            EXPECT_NEAR(track->crops.at(frame).cropRect().x(), Track().crops.at(frame).cropRect().x(), 1e-9);
            EXPECT_EQ(track->crops.at(frame).frame(), frame);
        }
    }
    EXPECT_EQ(CropTrackFile::Read(Path("t.json"), 3)->aspect, QSize(9, 16));
    EXPECT_TRUE(CropTrackFile::Read(Path("t.csv"), 3)->aspect.isEmpty());
}

TEST_F(CropTrackFileTest, RefusesAnInvalidTrackWithTheReason)
{
    ExpectRefused(Path("missing.json"), "missing.json");
    ExpectRefused(m_folder.path(), "it is a folder");
    ExpectRefused(WithContent("empty.json", ""), "no crop track");
    ExpectRefused(WithContent("text.json", "hello"), "no crop track");
    ExpectRefused(WithContent("none.json", "{}"), "holds no frames");
    ExpectRefused(WithContent("none.csv", "frame,x,y,w,h\n"), "holds no frames");
    ExpectRefused(WithContent("three.json", "{\"frames\":[[0,0,1]]}"), "frame 0 is no rectangle");
    ExpectRefused(WithContent("text2.json", "{\"frames\":[[0,0,1,1],[0,0,\"a\",1]]}"), "frame 1 is no rectangle");
    ExpectRefused(WithContent("outside.json", "{\"frames\":[[0.8,0,0.3,1]]}"), "frame 0 is no rectangle");
    ExpectRefused(WithContent("narrow.json", "{\"frames\":[[0,0,0,1]]}"), "frame 0 is no rectangle");
    ExpectRefused(WithContent("flat.json", "{\"frames\":[[0,0,1,0]]}"), "frame 0 is no rectangle");
    ExpectRefused(WithContent("gap.csv", "frame,x,y,w,h\n0,0,0,1,1\n2,0,0,1,1\n"), "frame 1 is no rectangle");
    ExpectRefused(WithContent("nan.csv", "frame,x,y,w,h\n0,nan,0,1,1\n"), "frame 0 is no rectangle");
}

TEST_F(CropTrackFileTest, ACropMayLieAMillionthOutsideThePicture)
{
    for (const char* const crop : {"-0.000001,0,0.3,1", "0,-0.000001,0.3,1", "0,0,1.000001,1", "0,0,0.3,1.000001"}) {
        const QString path = WithContent("near.csv", QByteArray("frame,x,y,w,h\n0,") + crop + "\n");
        EXPECT_TRUE(CropTrackFile::Read(path, 3)) << crop;
    }
    for (const char* const crop : {"-0.000002,0,0.3,1", "0,-0.000002,0.3,1", "0,0,1.000002,1", "0,0,0.3,1.000002"}) {
        ExpectRefused(WithContent("beyond.csv", QByteArray("frame,x,y,w,h\n0,") + crop + "\n"),
                      "frame 0 is no rectangle");
    }
}

TEST_F(CropTrackFileTest, RefusesAFileThatIsTooLargeForTheVideoBeforeItIsRead)
{
    for (const char* name : {"huge.json", "huge.csv"}) {
        QFile file(WithContent(name, {}));
        ASSERT_TRUE(file.resize(511LL * 1024 * 1024));
        ExpectRefused(file.fileName(), "it is too large for a crop track of a video of 3 frames");
    }
}

TEST_F(CropTrackFileTest, MayHave64KiBAnd256BytesForEachFrame)
{
    constexpr int most = 64 * 1024 + 3 * 256;
    const QByteArray track = "{\"frames\":[[0,0,1,1],[0,0,1,1],[0,0,1,1]]}";
    const QString largest = WithContent("largest.json", track + QByteArray(most - track.size(), ' '));
    const KxResult<CropTrack> read = CropTrackFile::Read(largest, 3);
    ASSERT_TRUE(read) << read.Message().toStdString();
    EXPECT_EQ(read->crops.size(), 3);
    ExpectRefused(WithContent("larger.json", track + QByteArray(most + 1 - track.size(), ' ')), "it is too large");
}

TEST_F(CropTrackFileTest, RefusesADeviceAndAPipe)
{
    if (!TestSystem::MakeNamedPipe(Path("pipe.json"))) {
        GTEST_SKIP() << "this system has no devices and pipes in folders";
    }
    ExpectRefused(QStringLiteral("/dev/zero"), "it is not a regular file");
    ExpectRefused(Path("pipe.json"), "it is not a regular file");
}

TEST_F(CropTrackFileTest, EmptyLinesDoNotCountAsFrames)
{
    ExpectRefused(WithContent("lines.csv", QByteArray(60000, '\n')), "holds no frames");
    ExpectRefused(WithContent("lines.json", QByteArray(60000, '\n')), "no crop track (line 60001)");
}

TEST_F(CropTrackFileTest, RefusesAnotherVersionWhereverItIsWritten)
{
    const QByteArray frames = "\"frames\":[[0,0,1,1]]";
    for (const QByteArray& content : {"{\"version\":2," + frames + "}", "{" + frames + ",\"version\":2}"}) {
        ExpectRefused(WithContent("later.json", content), "of version 2, and this program reads version 1");
    }
    ExpectRefused(WithContent("text.json", "{\"version\":\"1\"," + frames + "}"), "no crop track");
    EXPECT_TRUE(CropTrackFile::Read(WithContent("one.json", "{\"version\":1," + frames + "}"), 3));
}

TEST_F(CropTrackFileTest, RefusesMoreFramesThanTheVideoHas)
{
    for (const char* name : {"t.json", "t.csv"}) {
        const QString path = WithContent(name, CropTrackFile::Format(Track(), Path(name)));
        const KxResult<CropTrack> track = CropTrackFile::Read(path, 2);
        ASSERT_FALSE(track);
        EXPECT_TRUE(track.Message().endsWith(QStringLiteral("it holds more frames than the video, which has 2.")))
            << track.Message().toStdString();
    }
}

TEST_F(CropTrackFileTest, UnknownMembersAreSkipped)
{
    const QByteArray content = "\xEF\xBB\xBF{\"a\":{\"b\":[1,[true,null],{\"c\":\"}]\"}]},\"frames\":[[0,0,1,1]],"
                               "\"note\":\"\\u0041 \\\"quoted\\\"\",\"speed\":\"fa\\u0073t\"}\n";
    const KxResult<CropTrack> track = CropTrackFile::Read(WithContent("more.json", content), 3);
    ASSERT_TRUE(track) << track.Message().toStdString();
    EXPECT_EQ(track->crops.size(), 1);
    EXPECT_EQ(track->speedName, QStringLiteral("fast"));
}

TEST_F(CropTrackFileTest, RefusesDamagedJson)
{
    const QByteArray whole = CropTrackFile::Format(Track(), Path("t.json")).trimmed();
    for (int length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(CropTrackFile::Read(WithContent("cut.json", whole.left(length)), 3)) << length;
    }
    for (const char* content : {"{\"frames\":[[0,0,1,1],]}", "{\"frames\":[[0,0,1,1]]}}", "{\"frames\":[[0,0,1,1]],}",
                                "{,}", "{\"a\":,\"frames\":[[0,0,1,1]]}", "{\"a\":]}", "{\"frames\":[[0,0,1e999,1]]}",
                                "{\"aspect\":[9],\"frames\":[]}", "{\"aspect\":[9,1e300],\"frames\":[[0,0,1,1]]}",
                                "{\"a\":\"\\q\"}", "{\"a\":nul}"}) {
        EXPECT_FALSE(CropTrackFile::Read(WithContent("bad.json", content), 3)) << content;
    }
    ExpectRefused(WithContent("deep.json", "{\"a\":" + QByteArray(60000, '[')), "no crop track");
    ExpectRefused(WithContent("key.json", "{\"" + QByteArray(64000, 'a')), "no crop track");
}

TEST_F(CropTrackFileTest, ALongTrackNeedsLittleMoreMemoryThanItsCrops)
{
    constexpr int frames = 300000;
    CropTrack track = Track();
    track.crops.clear();
    for (int frame = 0; frame < frames; ++frame) {
        track.crops.append(IKxAutoReframeResult(frame, QRectF(0.123456789, 0.0, 0.31640625, 1.0)));
    }
    for (const char* name : {"long.json", "long.csv"}) {
        const QString path = WithContent(name, CropTrackFile::Format(track, Path(name)));
        TestSystem::ResetPeakMemory();
        const qint64 before = TestSystem::PeakMemoryBytes();
        const KxResult<CropTrack> read = CropTrackFile::Read(path, frames);
        ASSERT_TRUE(read) << read.Message().toStdString();
        EXPECT_EQ(read->crops.size(), frames);
        // The crops take 24 MB; a tree of JSON values would take ten times as much.
        EXPECT_LT(TestSystem::PeakMemoryBytes() - before, 40 * 1024 * 1024) << name;
    }
}
