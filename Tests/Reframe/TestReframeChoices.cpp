#include <Tests/Reframe/ReframeRun.h>

#include <KxMedia/Picture/KxFittedCutter.h>
#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <Tests/Support/MadeVideo.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

constexpr int Frames = 75;
/// Of the thing that rests, in fractions of the width.
constexpr double StillPlace = 0.85;

/// A thing that moves at the left of a textured wall, and one that hardly does at the right.
QImage Draw(int number)
{
    QImage picture(640, 360, QImage::Format_RGB32);
    QPainter painter(&picture);
    quint32 noise = 1;
    for (int y = 0; y < 360; y += 12) {
        for (int x = 0; x < 640; x += 12) {
            noise = noise * 1664525U + 1013904223U;
            const int level = 90 + static_cast<int>(noise >> 27U);
            painter.fillRect(x, y, 12, 12, QColor(level, level, level + 10));
        }
    }
    const auto thing = [&painter](double x, double y, const QColor& colour) {
        painter.fillRect(QRectF(x - 30.0, y - 50.0, 60.0, 100.0), colour);
        painter.fillRect(QRectF(x - 15.0, y - 35.0, 30.0, 20.0), Qt::white);
        painter.fillRect(QRectF(x - 20.0, y + 5.0, 12.0, 35.0), Qt::black);
    };
    thing(130.0 + 60.0 * std::sin(0.3 * number), 150.0 + 40.0 * std::cos(0.23 * number), Qt::red);
    thing(StillPlace * 640.0 + 3.0 * std::sin(0.2 * number), 200.0, Qt::darkGreen);
    return picture;
}

class ReframeChoicesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        MadeVideo::Recipe recipe;
        recipe.size = QSize(640, 360);
        recipe.frames = Frames;
        recipe.output = QStringList{QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-pix_fmt"),
                                    QStringLiteral("yuv420p")};
        recipe.draw = Draw;
        ASSERT_TRUE(MadeVideo::Make(Clip(), recipe));
    }

    QString Clip() const { return m_folder.filePath(QStringLiteral("clip.mp4")); }

    QString MakeFile(const QByteArray& content) const
    {
        QFile file(m_folder.filePath(QStringLiteral("choices.json")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    /// The crops of a run with more arguments: left, top, width, height.
    QList<QList<double>> Crops(const QStringList& more) const
    {
        const QString track = m_folder.filePath(QStringLiteral("track.json"));
        const ReframeRun run(QStringList{QStringLiteral("--no-video"), QStringLiteral("--models"),
                                         QStringLiteral("none"), QStringLiteral("--cache"), m_folder.path(),
                                         QStringLiteral("--overwrite"), QStringLiteral("--keyframes"), track} +
                             more + QStringList(Clip()));
        EXPECT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
        QFile file(track);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QList<QList<double>> crops;
        const QJsonArray frames = QJsonDocument::fromJson(file.readAll())[QLatin1String("frames")].toArray();
        for (const QJsonValue& frame : frames) {
            crops.append({frame[0].toDouble(), frame[1].toDouble(), frame[2].toDouble(), frame[3].toDouble()});
        }
        EXPECT_EQ(crops.size(), Frames);
        return crops;
    }

    static double Middle(const QList<double>& crop) { return crop.value(0) + crop.value(2) / 2.0; }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ReframeChoicesTest, WhatIsPointedAtIsFollowedInsteadOfWhatMovesMost)
{
    const auto automatic = Crops({});
    const auto box = Crops({QStringLiteral("--follow"), QStringLiteral("25f@514,150,60,100")});
    const auto point = Crops({QStringLiteral("--follow"), QStringLiteral("1@0.85,0.55")});
    for (const int frame : {0, 30, 74}) {
        EXPECT_LT(Middle(automatic.value(frame)), 0.45) << frame;
        EXPECT_NEAR(Middle(box.value(frame)), StillPlace, 0.08) << frame;
        EXPECT_NEAR(Middle(point.value(frame)), StillPlace, 0.08) << frame;
    }
}

TEST_F(ReframeChoicesTest, WhatIsAvoidedIsLeftForTheOther)
{
    const auto crops = Crops(
        {QStringLiteral("--choices"), MakeFile("{\"version\":1,\"choices\":[{\"kind\":\"avoid\",\"seeds\":[{\"time\":0,"
                                               "\"box\":[0.156,0.388,0.094,0.278]}]}]}")});
    EXPECT_GT(Middle(crops.value(40)), 0.55);
}

TEST_F(ReframeChoicesTest, AFileHoldsTheCropAndShowsTheWholePicture)
{
    const auto crops = Crops({QStringLiteral("--choices"),
                              MakeFile("{\"version\":1,\"choices\":[{\"kind\":\"hold\",\"from\":0,\"to\":1,\"centre\":"
                                       "[0.5,0.5]},{\"kind\":\"fit\",\"from\":2,\"to\":3}]}")});
    EXPECT_NEAR(Middle(crops.value(10)), 0.5, 1e-6);
    EXPECT_NEAR(Middle(crops.value(24)), 0.5, 1e-6);
    EXPECT_LT(crops.value(49).value(2), 0.5);
    EXPECT_EQ(crops.value(50).value(2), 1.0);
    EXPECT_EQ(crops.value(74).value(2), 1.0);
}

TEST_F(ReframeChoicesTest, AFileThatIsNoListOfChoicesIsRefused)
{
    const ReframeRun run(
        {QStringLiteral("--no-video"), QStringLiteral("--choices"), MakeFile("{\"version\":3}"), Clip()});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("choices.json: it is of version 3")))
        << run.standardError.toStdString();
}

TEST_F(ReframeChoicesTest, ATimeAfterTheEndIsRefused)
{
    const ReframeRun run({QStringLiteral("--no-video"), QStringLiteral("--follow"), QStringLiteral("9@10,10"), Clip()});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("the video ends after 3.00 s")))
        << run.standardError.toStdString();
}

TEST_F(ReframeChoicesTest, TheWholePictureIsFittedAndNotStretched)
{
    const QString choices = MakeFile(R"({"version":1,"choices":[{"kind":"fit"}]})");
    const QString video = m_folder.filePath(QStringLiteral("fitted.mp4"));
    const QString track = m_folder.filePath(QStringLiteral("fitted.json"));
    const QString applied = m_folder.filePath(QStringLiteral("applied.mp4"));
    const ReframeRun run({QStringLiteral("--models"), QStringLiteral("none"), QStringLiteral("--cache"),
                          m_folder.path(), QStringLiteral("--choices"), choices, QStringLiteral("--keyframes"), track,
                          QStringLiteral("--output"), video, Clip()});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    const ReframeRun again({QStringLiteral("--apply"), track, QStringLiteral("--output"), applied, Clip()});
    ASSERT_EQ(again.exitStatus, 0) << again.standardError.toStdString();
    for (const QString& path : {video, applied}) {
        auto reader = KxVideoReader::Open(path, {});
        ASSERT_TRUE(reader) << reader.Message().toStdString();
        KxVideoFrame picture;
        ASSERT_EQ((*reader)->Read(10, picture), KxReadStatus::Delivered);
        ASSERT_EQ(picture.DisplayedSize(), QSize(202, 360));
        KxPictureScaler scaler;
        const QImage shown = scaler.Scale(picture, picture.DisplayedSize(), QImage::Format_RGB32);
        // The thing that rests, which a crop around the other one would not show, is 0.19 as high as the picture is
        // wide.
        const QRect place = KxFittedCutter::PlaceOf({16, 9}, shown.size());
        const QColor thing(
            shown.pixel(place.x() + qRound(StillPlace * place.width()) - 7, place.y() + place.height() / 2));
        EXPECT_GT(thing.green(), thing.red() + 40) << path.toStdString();
        const QColor wall(shown.pixel(place.center().x(), place.y() + 4));
        const QColor background(shown.pixel(place.center().x(), 40));
        EXPECT_LT(background.lightness(), wall.lightness() * 3 / 4) << path.toStdString();
    }
}

TEST_F(ReframeChoicesTest, AChoiceOutsideOfTheVideoIsNamed)
{
    const QString choices = MakeFile(R"({"version":1,"choices":[{"kind":"fit","from":0,"to":1},
        {"kind":"hold","from":100,"centre":[0.25,0.5]}, {"kind":"follow","seeds":[{"time":100,"box":[0.4,0.4,0.2,0.2]}]}]})");
    const ReframeRun run({QStringLiteral("--no-video"), QStringLiteral("--models"), QStringLiteral("none"),
                          QStringLiteral("--cache"), m_folder.path(), QStringLiteral("--choices"), choices, Clip()});
    EXPECT_EQ(run.exitStatus, 0);
    for (const int outside : {2, 3}) {
        EXPECT_TRUE(
            run.standardError.contains(QStringLiteral("Choice %1 is not applied: its time is outside of").arg(outside)))
            << run.standardError.toStdString();
    }
    EXPECT_FALSE(run.standardError.contains(QStringLiteral("Choice 1"))) << run.standardError.toStdString();
}

TEST_F(ReframeChoicesTest, InATrimmedFileChoicesHoldWhereTheirPicturesAre)
{
    const QString footage = QStringLiteral("/usr/share/doc/opencv-doc/examples/data/Megamind.avi");
    if (!QFile::exists(footage)) {
        GTEST_SKIP() << "needs Megamind.avi of the package opencv-doc";
    }
    const QString made = MakeFile(R"({"version":1,"choices":[
        {"kind":"hold","from":4,"to":6,"centre":[0.25,0.5]}, {"kind":"hold","from":0,"to":1,"centre":[0.8,0.5]}]})");
    const QString saved = m_folder.filePath(QStringLiteral("saved.json"));
    const QStringList options{QStringLiteral("--no-video"), QStringLiteral("--models"), QStringLiteral("none"),
                              QStringLiteral("--cache"), m_folder.path()};
    const ReframeRun first(
        options + QStringList{QStringLiteral("--choices"), made, QStringLiteral("--save-choices"), saved, footage});
    ASSERT_EQ(first.exitStatus, 0) << first.standardError.toStdString();
    EXPECT_FALSE(first.standardError.contains(QStringLiteral("earlier"))) << first.standardError.toStdString();

    const QString trimmed = m_folder.filePath(QStringLiteral("trimmed.mp4"));
    ASSERT_TRUE(MadeVideo::RunFfmpeg({QStringLiteral("-ss"), QStringLiteral("2.5"), QStringLiteral("-i"), footage,
                                      QStringLiteral("-an"), QStringLiteral("-vf"), QStringLiteral("scale=480:-2"),
                                      QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-crf"),
                                      QStringLiteral("28"), trimmed}));
    const QString track = m_folder.filePath(QStringLiteral("trimmed.csv"));
    const ReframeRun second(options + QStringList{QStringLiteral("--choices"), saved, QStringLiteral("--keyframes"),
                                                  track, QStringLiteral("--save-choices"),
                                                  m_folder.filePath(QStringLiteral("again.json")), trimmed});
    ASSERT_EQ(second.exitStatus, 0) << second.standardError.toStdString();
    EXPECT_TRUE(second.standardError.contains(QStringLiteral("Choice 1 is applied 2.")))
        << second.standardError.toStdString();
    EXPECT_TRUE(second.standardError.contains(QStringLiteral("Choice 2 is not applied")))
        << second.standardError.toStdString();
    QFile file(track);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    const auto middle = [&lines](double seconds) {
        const QList<QByteArray> sides = lines.value(1 + qRound(seconds * 23.976)).split(',');
        return sides.value(1).toDouble() + sides.value(3).toDouble() / 2.0;
    };
    for (const double seconds : {4.1, 5.0, 5.9}) {
        EXPECT_NEAR(middle(seconds - 2.46), 0.25, 0.001) << seconds;
    }
    QFile again(m_folder.filePath(QStringLiteral("again.json")));
    ASSERT_TRUE(again.open(QIODevice::ReadOnly));
    const QJsonArray kept = QJsonDocument::fromJson(again.readAll())[QLatin1String("choices")].toArray();
    ASSERT_EQ(kept.size(), 2) << "nothing is lost";
    EXPECT_EQ(kept[1][QLatin1String("from")].toDouble(), 0.0);
    EXPECT_EQ(kept[1][QLatin1String("to")].toDouble(), 1.0);
    EXPECT_NEAR(kept[0][QLatin1String("from")].toDouble(), 4.0 - 2.46, 0.1);
}
