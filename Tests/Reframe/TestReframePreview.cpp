#include <Tests/Reframe/ReframeRun.h>

#include <Apps/CropTracks/CropTrackFile.h>
#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <Tests/Support/MadeVideo.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

constexpr int Frames = 40;
constexpr int Grey = 150;

class ReframePreviewTest : public testing::Test
{
protected:
    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QString MakeClip(const char* name, const QSize& size) const
    {
        MadeVideo::Recipe recipe;
        recipe.size = size;
        recipe.frames = Frames;
        recipe.draw = [size](int) {
            QImage image(size, QImage::Format_RGB32);
            image.fill(QColor(Grey, Grey, Grey));
            return image;
        };
        recipe.inputs = QStringList{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                    QStringLiteral("sine=frequency=440:duration=2")};
        recipe.output = QStringList{QStringLiteral("-c:v"),    QStringLiteral("libx264"), QStringLiteral("-pix_fmt"),
                                    QStringLiteral("yuv420p"), QStringLiteral("-c:a"),    QStringLiteral("aac")};
        EXPECT_TRUE(MadeVideo::Make(Path(name), recipe));
        return Path(name);
    }

    /// A crop of a quarter of the width that begins at the left and moves a hundredth of the width a frame.
    QString MakeTrack() const
    {
        CropTrack track;
        for (int frame = 0; frame < Frames; ++frame) {
            track.crops.append(IKxAutoReframeResult(frame, QRectF(0.01 * frame, 0.0, 0.25, 1.0)));
        }
        QFile file(Path("track.csv"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(CropTrackFile::Format(track, file.fileName()));
        return file.fileName();
    }

    std::unique_ptr<KxVideoReader> Open(const char* name) const
    {
        auto reader = KxVideoReader::Open(Path(name), KxCancelToken());
        EXPECT_TRUE(reader) << reader.Message().toStdString();
        return reader ? std::move(*reader) : nullptr;
    }

    static QImage Frame(KxVideoReader& reader, int frame)
    {
        KxVideoFrame picture;
        EXPECT_EQ(reader.Read(frame, picture), KxReadStatus::Delivered);
        return KxPictureScaler().Scale(picture, reader.Facts().video->resolution, QImage::Format_RGB32);
    }

    QTemporaryDir m_folder;
};

bool IsAccent(QRgb colour)
{
    return qGreen(colour) > qRed(colour) + 40;
}

/// The first and the last column of a row that have the outline's colour.
QList<int> AccentColumns(const QImage& image, int row)
{
    QList<int> columns;
    for (int column = 0; column < image.width(); ++column) {
        if (IsAccent(image.pixel(column, row))) {
            columns += column;
        }
    }
    return columns;
}

/// The number of pixels in the panel's corner that are as light as text.
int LightPixels(const QImage& image)
{
    int count = 0;
    for (int y = image.height() / 2; y < image.height(); ++y) {
        for (int x = 0; x < image.width() / 3; ++x) {
            count += qGray(image.pixel(x, y)) > 200 ? 1 : 0;
        }
    }
    return count;
}

} // namespace

TEST_F(ReframePreviewTest, ShowsEveryFrameWithTheCropWhereTheTrackHasIt)
{
    const ReframeRun run({QStringLiteral("--no-video"), QStringLiteral("--apply"), MakeTrack(),
                          QStringLiteral("--preview"), Path("look.mp4"), MakeClip("clip.mp4", QSize(640, 360))});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    EXPECT_EQ(run.standardError, QString());
    const auto reader = Open("look.mp4");
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->Facts().video->frameCount, Frames);
    EXPECT_EQ(reader->Facts().video->resolution, QSize(640, 360));
    EXPECT_EQ(reader->Facts().audio.size(), 1);
    for (const int frame : {0, 13, 39}) {
        const QImage image = Frame(*reader, frame);
        const QList<int> columns = AccentColumns(image, 60);
        ASSERT_GE(columns.size(), 2) << frame;
        const double left = 6.4 * frame;
        EXPECT_NEAR(columns.first(), left, 3.0) << frame;
        EXPECT_NEAR(columns.last(), left + 160.0, 3.0) << frame;
        EXPECT_NEAR(qGray(image.pixel(qRound(left) + 80, 60)), Grey, 6) << frame;
        EXPECT_LT(qGray(image.pixel(600, 60)), Grey / 2) << frame;
    }
}

TEST_F(ReframePreviewTest, ShowsTheFrameAndAfterAnAnalysisTheSignals)
{
    const QString clip = MakeClip("clip.mp4", QSize(640, 360));
    const ReframeRun applied({QStringLiteral("--no-video"), QStringLiteral("--apply"), MakeTrack(),
                              QStringLiteral("--preview"), Path("applied.mp4"), clip});
    const ReframeRun analysed({QStringLiteral("--no-video"), QStringLiteral("--preview"), Path("analysed.mp4"), clip});
    ASSERT_EQ(applied.exitStatus, 0) << applied.standardError.toStdString();
    ASSERT_EQ(analysed.exitStatus, 0) << analysed.standardError.toStdString();
    EXPECT_EQ(analysed.standardError, QString());
    const auto few = Open("applied.mp4");
    const auto more = Open("analysed.mp4");
    ASSERT_TRUE(few != nullptr && more != nullptr);
    // Frame 39's outline is far from the corner.
    const int lines = LightPixels(Frame(*few, 39));
    EXPECT_GT(lines, 20);
    EXPECT_GT(LightPixels(Frame(*more, 39)), lines + 20);
}

TEST_F(ReframePreviewTest, IsAtMost1280Wide)
{
    const ReframeRun run({QStringLiteral("--no-video"), QStringLiteral("--apply"), MakeTrack(),
                          QStringLiteral("--preview"), Path("look.mp4"), MakeClip("clip.mp4", QSize(1920, 1078))});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    const auto reader = Open("look.mp4");
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->Facts().video->resolution, QSize(1280, 720));
}

TEST_F(ReframePreviewTest, TheContactSheetKeepsItsName)
{
    const ReframeRun run({QStringLiteral("--no-video"), QStringLiteral("--preview"), m_folder.path(),
                          MakeClip("clip.mp4", QSize(160, 90))});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    EXPECT_FALSE(QImage(Path("clip-AutoReframe-9 16.png")).isNull());
}
