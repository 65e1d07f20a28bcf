#include <KxMedia/Picture/KxPictureScaler.h>
#include <Tests/KxMedia/Read/ReadClips.h>

#include <QFile>
#include <QTransform>

#include <gtest/gtest.h>

#include <cstdlib>

using ReadClips::Path;
using ReadClips::ReadNumber;
using ReadClips::Words;

namespace
{

MadeVideo::Recipe H264(int frames, const char* more = "", QSize size = {96, 64})
{
    MadeVideo::Recipe recipe;
    recipe.size = size;
    recipe.frames = frames;
    recipe.output = Words("-c:v libx264 -g 12 -bf 2 -pix_fmt yuv420p") + Words(more);
    return recipe;
}

void ExpectNumbers(KxVideoReader& reader, qint64 count, int firstNumber)
{
    ASSERT_EQ(reader.Facts().video->frameCount, count);
    for (const qint64 frame :
         {qint64{0}, qint64{1}, count - 1, count / 2, count / 2 + 1, qint64{3}, count / 3, count - 2}) {
        EXPECT_EQ(ReadNumber(reader, frame), firstNumber + frame) << "frame " << frame;
    }
    for (qint64 frame = 0; frame < count; ++frame) {
        EXPECT_EQ(ReadNumber(reader, frame), firstNumber + frame) << "frame " << frame;
    }
}

// A container's note on how to turn the pictures, over a copy of the stream.
QString TurnedCopy(const QString& name, int noted)
{
    const QString path = Path(QStringLiteral("turned%1.mp4").arg(noted));
    MadeVideo::RunFfmpeg({QStringLiteral("-i"), name, QStringLiteral("-c"), QStringLiteral("copy"),
                          QStringLiteral("-metadata:s:v"), QStringLiteral("rotate=%1").arg(noted), path});
    return path;
}

// Of frame `frame`, turned as the program turns it; -1 when it does not stand upright.
int NumberThatFfmpegShows(const QString& path, int frame)
{
    const QString shown = Path(QStringLiteral("shown.png"));
    MadeVideo::RunFfmpeg({QStringLiteral("-i"), path, QStringLiteral("-vf"),
                          QStringLiteral("select=eq(n\\,%1)").arg(frame), QStringLiteral("-frames:v"),
                          QStringLiteral("1"), shown});
    return MadeVideo::ReadNumber(QImage(shown)).value_or(-1);
}

// The number of lines that differ from the line above.
int DifferingLines(const KxVideoFrame& picture)
{
    const QImage grey = KxPictureScaler().Scale(picture, picture.DisplayedSize(), QImage::Format_Grayscale8);
    int count = 0;
    for (int y = 1; y < grey.height(); ++y) {
        int difference = 0;
        for (int x = 0; x < grey.width(); ++x) {
            difference += std::abs(qGray(grey.pixel(x, y)) - qGray(grey.pixel(x, y - 1)));
        }
        count += difference > 10 * grey.width() ? 1 : 0;
    }
    return count;
}

QByteArray Contents(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void Write(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
}

} // namespace

TEST(KxVideoReader, BeginsWhereAnEditListBegins)
{
    const QString whole = Path(QStringLiteral("whole.mp4"));
    const QString trimmed = Path(QStringLiteral("trimmed.mp4"));
    ASSERT_TRUE(MadeVideo::Make(whole, H264(100, "-g 50")));
    ASSERT_TRUE(MadeVideo::RunFfmpeg(Words("-ss 0.8 -i") << whole << Words("-c copy") << trimmed));
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(trimmed);
    ASSERT_NE(reader, nullptr);
    ExpectNumbers(*reader, 80, 20);
}

TEST(KxVideoReader, CountsFromTheFirstPictureOfAShiftedClock)
{
    for (const char* suffix : {"mkv", "mp4", "ts"}) {
        const QString path = Path(QStringLiteral("shifted.") + QLatin1String(suffix));
        ASSERT_TRUE(MadeVideo::Make(path, H264(50, "-output_ts_offset 7.3")));
        const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(path);
        ASSERT_NE(reader, nullptr);
        ExpectNumbers(*reader, 50, 0);
    }
}

TEST(KxVideoReader, HoldsAPictureOverALongGap)
{
    const QString path = Path(QStringLiteral("gap.mp4"));
    ASSERT_TRUE(MadeVideo::Make(
        path, H264(60, "-g 250 -vf select=lt(n\\,31)+gt(n\\,58) -vsync vfr -video_track_timescale 12800")));
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(path);
    ASSERT_NE(reader, nullptr);
    ASSERT_EQ(reader->Facts().video->frameRate, (KxRational{25, 1}));
    EXPECT_EQ(ReadNumber(*reader, 57), 30);
    EXPECT_EQ(ReadNumber(*reader, 59), 59);
    EXPECT_EQ(ReadNumber(*reader, 31), 30);
    EXPECT_EQ(ReadNumber(*reader, 30), 30);
    EXPECT_EQ(ReadNumber(*reader, 29), 29);
}

// The picture before a gap is one that no other picture needs, and lies far before the frame that is asked for.
TEST(KxVideoReader, FindsANonReferencePictureBeforeALongGap)
{
    const QString path = Path(QStringLiteral("held.mkv"));
    MadeVideo::Recipe recipe = H264(140, "-g 250 -bf 3 -b_strategy 0 -vf select=lt(n\\,20)+gt(n\\,120) -vsync vfr");
    ASSERT_TRUE(MadeVideo::Make(path, recipe));
    for (const qint64 frame : {110, 60, 119}) {
        const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(path);
        ASSERT_NE(reader, nullptr);
        EXPECT_EQ(ReadNumber(*reader, frame), 19) << frame;
    }
}

TEST(KxVideoReader, RotatesPicturesUpright)
{
    for (const int clockwise : {90, 180, 270}) {
        const QSize upright = clockwise == 180 ? QSize(96, 64) : QSize(64, 96);
        MadeVideo::Recipe recipe = H264(10);
        recipe.draw = [=](int number) {
            return MadeVideo::Draw(number, upright).transformed(QTransform().rotate(-clockwise));
        };
        const QString lying = Path(QStringLiteral("lying%1.mp4").arg(clockwise));
        ASSERT_TRUE(MadeVideo::Make(lying, recipe));
        for (const int noted : {clockwise, 360 - clockwise}) {
            const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(TurnedCopy(lying, noted));
            ASSERT_NE(reader, nullptr);
            EXPECT_EQ(reader->Facts().video->resolution, upright);
            KxVideoFrame picture;
            ASSERT_EQ(reader->Read(5, picture), KxReadStatus::Delivered);
            EXPECT_EQ(picture.DisplayedSize(), upright);
            EXPECT_EQ(ReadClips::NumberOf(picture), picture.Turn().clockwiseDegrees == clockwise ? 5 : -1);
            EXPECT_EQ(ReadClips::NumberOf(picture), NumberThatFfmpegShows(reader->Facts().path, 5));
        }
    }
}

TEST(KxVideoReader, DeinterlacesPictures)
{
    MadeVideo::Recipe recipe = H264(24, "-flags +ildct+ilme -top 1 -crf 1", {96, 96});
    recipe.draw = [](int number) {
        QImage interlaced(96, 96, QImage::Format_RGB888);
        for (int y = 0; y < interlaced.height(); ++y) {
            for (int x = 0; x < interlaced.width(); ++x) {
                interlaced.setPixelColor(x, y, (x + 4 * number + 2 * (y % 2)) % 32 < 16 ? Qt::white : Qt::black);
            }
        }
        return interlaced;
    };
    const QString path = Path(QStringLiteral("interlaced.mp4"));
    ASSERT_TRUE(MadeVideo::Make(path, recipe));
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(path);
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->Facts().video->frameCount, 24);
    for (const qint64 frame : {23, 0, 1, 12, 5, 22}) {
        KxVideoFrame picture;
        ASSERT_EQ(reader->Read(frame, picture), KxReadStatus::Delivered);
        EXPECT_EQ(picture.Index(), frame);
        EXPECT_EQ(DifferingLines(picture), 0) << "frame " << frame;
    }
}

TEST(KxVideoReader, StretchesNonSquarePixels)
{
    const QString path = Path(QStringLiteral("oblong.mp4"));
    ASSERT_TRUE(MadeVideo::Make(path, H264(10, "-vf setsar=16/11")));
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(path);
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->Facts().video->resolution, QSize(140, 64));
    EXPECT_EQ(ReadNumber(*reader, 7), 7);
}

TEST(KxVideoReader, JoinsConcatenatedTransportStreams)
{
    const QString first = Path(QStringLiteral("first.ts"));
    const QString second = Path(QStringLiteral("second.ts"));
    const QString both = Path(QStringLiteral("both.ts"));
    MadeVideo::Recipe recipe = H264(60);
    ASSERT_TRUE(MadeVideo::Make(first, recipe));
    recipe = H264(50, "", {160, 128});
    recipe.firstNumber = 60;
    ASSERT_TRUE(MadeVideo::Make(second, recipe));
    Write(both, Contents(first) + Contents(second));
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(both);
    ASSERT_NE(reader, nullptr);
    ExpectNumbers(*reader, 110, 0);
    KxVideoFrame picture;
    ASSERT_EQ(reader->Read(20, picture), KxReadStatus::Delivered);
    EXPECT_EQ(picture.DisplayedSize(), QSize(96, 64));
    ASSERT_EQ(reader->Read(90, picture), KxReadStatus::Delivered);
    EXPECT_EQ(picture.DisplayedSize(), QSize(160, 128));
}

TEST(KxVideoReader, DeliversTheRestOfATruncatedFile)
{
    const QString whole = Path(QStringLiteral("tocut.mp4"));
    const QString cut = Path(QStringLiteral("cut.mp4"));
    ASSERT_TRUE(MadeVideo::Make(whole, H264(200, "-movflags +faststart")));
    const QByteArray contents = Contents(whole);
    Write(cut, contents.left(contents.size() * 6 / 10));
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(cut);
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->Facts().video->frameCount, 200);
    EXPECT_FALSE(reader->EndedEarly());
    EXPECT_EQ(reader->DecodableFrames(), 200);
    EXPECT_EQ(ReadNumber(*reader, 40), 40);
    const int last = ReadNumber(*reader, 199);
    EXPECT_GT(last, 50);
    EXPECT_LT(last, 190);
    EXPECT_TRUE(reader->EndedEarly());
    EXPECT_EQ(reader->DecodableFrames(), last + 1);
    EXPECT_EQ(ReadNumber(*reader, last), last);
    EXPECT_EQ(ReadNumber(*reader, 12), 12);
    EXPECT_EQ(ReadNumber(*reader, 150), last);
}

// The decoder releases all pictures at the end, where no packet gives them a time.
TEST(KxVideoReader, ReadsAStreamThatIsShorterThanTheDelayOfItsDecoder)
{
    for (const char* name : {"oneonly.avi", "onlytwo.h264"}) {
        SCOPED_TRACE(name);
        const int frames = QByteArray(name) == "oneonly.avi" ? 1 : 2;
        ASSERT_TRUE(MadeVideo::Make(Path(QLatin1String(name)), H264(frames)));
        const auto reader = ReadClips::OpenReader(Path(QLatin1String(name)));
        ASSERT_NE(reader, nullptr);
        ASSERT_EQ(reader->Facts().video->frameCount, frames);
        for (const int frame : {frames - 1, 0, frames - 1}) {
            EXPECT_EQ(ReadNumber(*reader, frame), frame);
        }
    }
}

TEST(KxVideoReader, SurvivesADamagedMiddle)
{
    const QString whole = Path(QStringLiteral("todamage.mkv"));
    ASSERT_TRUE(MadeVideo::Make(whole, H264(120)));
    QByteArray contents = Contents(whole);
    for (int i = contents.size() * 4 / 10; i < contents.size() * 5 / 10; ++i) {
        contents[i] = static_cast<char>(i * 7919 >> 3);
    }
    const QString damaged = Path(QStringLiteral("damaged.mkv"));
    Write(damaged, contents);
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(damaged);
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(ReadNumber(*reader, 10), 10);
    EXPECT_EQ(ReadNumber(*reader, 118), 118);
    for (qint64 frame = 0; frame < reader->Facts().video->frameCount; ++frame) {
        KxVideoFrame picture;
        EXPECT_EQ(reader->Read(frame, picture), KxReadStatus::Delivered);
    }
}

TEST(KxVideoReader, StopsWhenCancelled)
{
    const QString path = Path(QStringLiteral("cancelled.mp4"));
    ASSERT_TRUE(MadeVideo::Make(path, H264(60)));
    KxCancelToken cancel;
    const auto reader = KxVideoReader::Open(path, cancel);
    ASSERT_TRUE(reader);
    KxVideoFrame picture;
    EXPECT_EQ((*reader)->Read(1, picture), KxReadStatus::Delivered);
    cancel.Cancel();
    EXPECT_EQ((*reader)->Read(50, picture), KxReadStatus::Cancelled);
    EXPECT_EQ((*reader)->Read(0, picture), KxReadStatus::Cancelled);
    EXPECT_FALSE((*reader)->EndedEarly());
    EXPECT_FALSE(KxVideoReader::Open(path, cancel));
}

TEST(KxVideoReader, KeepsPicturesValidAfterItIsGone)
{
    const QString path = Path(QStringLiteral("outlived.mp4"));
    ASSERT_TRUE(MadeVideo::Make(path, H264(20)));
    KxVideoFrame picture;
    {
        const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(path);
        ASSERT_NE(reader, nullptr);
        ASSERT_EQ(reader->Read(13, picture), KxReadStatus::Delivered);
    }
    EXPECT_EQ(picture.Index(), 13);
    EXPECT_EQ(ReadClips::NumberOf(picture), 13);
}

TEST(KxVideoReader, ReadsRealFootageTheSameInAnyOrder)
{
    const QString path = QStringLiteral("/usr/share/doc/opencv-doc/examples/data/vtest.avi");
    if (!QFile::exists(path)) {
        GTEST_SKIP() << "the package opencv-doc is not installed";
    }
    const std::unique_ptr<KxVideoReader> inOrder = ReadClips::OpenReader(path);
    const std::unique_ptr<KxVideoReader> jumping = ReadClips::OpenReader(path);
    ASSERT_NE(inOrder, nullptr);
    ASSERT_NE(jumping, nullptr);
    EXPECT_EQ(inOrder->Facts().video->resolution, QSize(768, 576));
    EXPECT_EQ(inOrder->Facts().video->frameCount, 795);
    const auto checkSum = [](KxVideoReader& reader, qint64 frame) {
        KxVideoFrame picture;
        EXPECT_EQ(reader.Read(frame, picture), KxReadStatus::Delivered);
        EXPECT_EQ(picture.Index(), frame);
        return ReadClips::CheckSum(picture);
    };
    std::vector<uint> sums;
    for (qint64 frame = 0; frame < 120; ++frame) {
        sums.push_back(checkSum(*inOrder, frame));
    }
    for (const qint64 frame : {119, 5, 77, 76, 12, 118, 0}) {
        EXPECT_EQ(checkSum(*jumping, frame), sums[static_cast<size_t>(frame)]) << frame;
    }
    EXPECT_EQ(checkSum(*jumping, 794), checkSum(*inOrder, 794));
}
