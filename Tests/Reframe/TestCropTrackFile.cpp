#include <Apps/Reframe/CropTrackFile.h>

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
    const KxResult<CropTrack> track = CropTrackFile::Read(path);
    ASSERT_FALSE(track) << path.toStdString();
    EXPECT_TRUE(track.Message().contains(QLatin1String(reason))) << track.Message().toStdString();
}

} // namespace

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

TEST_F(CropTrackFileTest, CsvHasTheDocumentedShape)
{
    const QList<QByteArray> lines = CropTrackFile::Format(Track(), Path("t.CSV")).split('\n');
    EXPECT_EQ(lines.at(0), QByteArray("frame,x,y,w,h"));
    EXPECT_EQ(lines.at(1), QByteArray("0,0.100000000,0.000000000,0.316406250,1.000000000"));
    EXPECT_EQ(lines.size(), 5);
}

TEST_F(CropTrackFileTest, WhatWasWrittenCanBeRead)
{
    for (const char* name : {"t.json", "t.csv"}) {
        const KxResult<CropTrack> track =
            CropTrackFile::Read(WithContent(name, CropTrackFile::Format(Track(), Path(name))));
        ASSERT_TRUE(track) << track.Message().toStdString();
        ASSERT_EQ(track->crops.size(), 3);
        for (int frame = 0; frame < 3; ++frame) {
            EXPECT_NEAR(track->crops.at(frame).cropRect().x(), Track().crops.at(frame).cropRect().x(), 1e-9);
            EXPECT_EQ(track->crops.at(frame).frame(), frame);
        }
    }
    EXPECT_EQ(CropTrackFile::Read(Path("t.json"))->aspect, QSize(9, 16));
    EXPECT_TRUE(CropTrackFile::Read(Path("t.csv"))->aspect.isEmpty());
}

TEST_F(CropTrackFileTest, RefusesWhatIsNoTrackAndSaysWhy)
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
    ExpectRefused(WithContent("flat.json", "{\"frames\":[[0,0,0,1]]}"), "frame 0 is no rectangle");
    ExpectRefused(WithContent("gap.csv", "frame,x,y,w,h\n0,0,0,1,1\n2,0,0,1,1\n"), "frame 1 is no rectangle");
    ExpectRefused(WithContent("nan.csv", "frame,x,y,w,h\n0,nan,0,1,1\n"), "frame 0 is no rectangle");
}
