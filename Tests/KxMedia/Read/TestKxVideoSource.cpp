#include <KxMedia/Container/KxInputFile.h>
#include <KxMedia/Read/KxMediaProbe.h>
#include <KxMedia/Read/KxVideoScanner.h>

#include <Tests/KxMedia/Read/ReadClips.h>

#include <QFile>

#include <gtest/gtest.h>

using ReadClips::Path;
using ReadClips::Words;

namespace
{

QString Made(const char* name, int frames, const char* output, int rate = 25)
{
    MadeVideo::Recipe recipe;
    recipe.size = {96, 64};
    recipe.frames = frames;
    recipe.rate = QString::number(rate);
    recipe.output = Words(output);
    MadeVideo::Make(Path(QLatin1String(name)), recipe);
    return Path(QLatin1String(name));
}

// Claims that all groups of pictures are closed, so that the decoder delivers the pictures before the first key frame.
void MarkGroupsAsClosed(const QString& path)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray contents = file.readAll();
    const QByteArray header("\0\0\1\xB8", 4);
    constexpr char closed = 0x40;
    int groups = 0;
    for (int at = contents.indexOf(header); at >= 0; at = contents.indexOf(header, at + 1)) {
        contents[at + 7] = static_cast<char>(contents[at + 7] | closed);
        ++groups;
    }
    EXPECT_GT(groups, 2);
    ASSERT_TRUE(file.seek(0));
    ASSERT_EQ(file.write(contents), contents.size());
}

// Begins with two non-reference pictures that come after the first key frame in the file.
QString CutBeforeAKeyFrame(const char* name, int rate = 25)
{
    const QString whole = Made("uncut.ts", 96, "-c:v mpeg2video -q:v 3 -g 12 -bf 2 -b_strategy 0", rate);
    const QString cut = Path(QStringLiteral("cut.ts"));
    MadeVideo::RunFfmpeg(Words("-ss") << QString::number(12.5 / rate) << Words("-i") << whole << Words("-c copy")
                                      << cut);
    const QString path = Path(QLatin1String(name));
    MadeVideo::RunFfmpeg(Words("-i") << cut << Words("-c copy") << path);
    MarkGroupsAsClosed(path);
    return path;
}

// Begins with pictures that refer to some that are not there.
QString WithoutFirst(int packets, const char* name, const char* output)
{
    const QString path = Path(QLatin1String(name));
    const QString whole = Made(QByteArray(name).prepend("whole-").constData(), 80, output);
    MadeVideo::RunFfmpeg(Words("-i") << whole << Words("-c copy -bsf:v")
                                     << QStringLiteral("noise=drop=lt(n\\,%1)").arg(packets) << path);
    return path;
}

// Of the second to the 40th packet of the video in a transport stream.
void RemoveTimes(const QString& path)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray contents = file.readAll();
    const QByteArray header("\0\0\1\xE0", 4);
    constexpr char timesThere = static_cast<char>(0xC0);
    int packets = 0;
    for (int at = contents.indexOf(header); at >= 0; at = contents.indexOf(header, at + 1)) {
        ++packets;
        if (packets > 1 && packets <= 40) {
            contents[at + 7] = static_cast<char>(contents[at + 7] & ~timesThere);
        }
    }
    EXPECT_EQ(packets, 70);
    ASSERT_TRUE(file.seek(0));
    ASSERT_EQ(file.write(contents), contents.size());
}

void ExpectTheSameFacts(const KxMediaFacts& a, const KxMediaFacts& b)
{
    EXPECT_EQ(a.video->frameCount, b.video->frameCount);
    EXPECT_EQ(a.video->firstPictureUs, b.video->firstPictureUs);
    EXPECT_EQ(a.video->resolution, b.video->resolution);
}

// Returns how many pictures the scanner delivers.
int ExpectTheSamePictures(KxVideoScanner& scanner, KxVideoReader& reader)
{
    KxVideoFrame picture;
    int pictures = 0;
    for (; scanner.Next(picture) == KxReadStatus::Delivered; ++pictures) {
        KxVideoFrame shown;
        EXPECT_EQ(reader.Read(picture.Index(), shown), KxReadStatus::Delivered);
        EXPECT_EQ(shown.Index(), picture.Index());
        EXPECT_EQ(shown.IsNull() ? 0U : ReadClips::CheckSum(shown), ReadClips::CheckSum(picture)) << picture.Index();
    }
    return pictures;
}

// Of a frame; 0 if it cannot be read.
uint CheckSum(KxVideoReader& reader, qint64 frame)
{
    KxVideoFrame picture;
    const bool isThere = reader.Read(frame, picture) == KxReadStatus::Delivered && !picture.IsNull();
    return isThere ? ReadClips::CheckSum(picture) : 0U;
}

} // namespace

// It is decoded once: at opening. Nothing is read after a cancel.
TEST(KxVideoSource, TheFirstPictureIsThereOnceTheFileIsOpen)
{
    for (const char* name : {"opened.mp4", "opened.mkv", "opened.ts", "opened.avi", "opened.h264"}) {
        SCOPED_TRACE(name);
        KxCancelToken cancel;
        const auto scanner = KxVideoScanner::Open(Made(name, 40, "-c:v libx264 -bf 2 -pix_fmt yuv420p"), cancel);
        ASSERT_TRUE(scanner) << scanner.Message().toStdString();
        cancel.Cancel();
        KxVideoFrame picture;
        ASSERT_EQ((*scanner)->Next(picture), KxReadStatus::Delivered);
        EXPECT_EQ(picture.Index(), 0);
        EXPECT_EQ(ReadClips::NumberOf(picture), 0);
    }
}

// The scanner skips the picture that is displayed first.
TEST(KxVideoSource, BeginsWithAPictureThatNoOtherRefersTo)
{
    for (const char* name : {"leading.ts", "leading.mkv"}) {
        SCOPED_TRACE(name);
        const QString path = CutBeforeAKeyFrame(name);
        const auto facts = KxProbeMedia(path, KxCancelToken());
        const auto scanner = KxVideoScanner::Open(path, KxCancelToken());
        const auto reader = KxVideoReader::Open(path, KxCancelToken());
        ASSERT_TRUE(facts && scanner && reader);
        EXPECT_EQ(facts->video->frameCount, 86);
        ExpectTheSameFacts((*scanner)->Facts(), *facts);
        ExpectTheSameFacts((*reader)->Facts(), *facts);
        KxVideoFrame picture;
        ASSERT_EQ((*scanner)->Next(picture), KxReadStatus::Delivered);
        EXPECT_EQ(picture.Index(), 2);
    }
}

// The first packet has a presentation time; the first picture that can be decoded has none.
TEST(KxVideoSource, APassOverPicturesWithoutTheTimesOfTheFirstPacketSkipsNone)
{
    const QString avi = WithoutFirst(2, "headless.avi", "-c:v mpeg4 -q:v 3 -g 12 -bf 2 -b_strategy 0");
    const QString ts = WithoutFirst(10, "headless.ts", "-c:v libx264 -g 12 -bf 2 -b_strategy 0 -pix_fmt yuv420p");
    RemoveTimes(ts);
    for (const QString& path : {avi, ts}) {
        SCOPED_TRACE(path.toStdString());
        const auto scanner = KxVideoScanner::Open(path, KxCancelToken());
        const auto reader = ReadClips::OpenReader(path);
        ASSERT_TRUE(scanner && reader);
        ExpectTheSameFacts((*scanner)->Facts(), reader->Facts());
        EXPECT_GT(ExpectTheSamePictures(**scanner, *reader), 60);
    }
}

TEST(KxVideoSource, CancelledBeforeTheFirstPictureItSaysSo)
{
    KxCancelToken cancel;
    auto input = KxInputFile::Open(Made("cancelled.mp4", 40, "-c:v libx264 -bf 2 -pix_fmt yuv420p"), cancel);
    ASSERT_TRUE(input) << input.Message().toStdString();
    cancel.Cancel();
    const auto scanner = KxVideoScanner::Open(std::move(*input));
    ASSERT_FALSE(scanner);
    EXPECT_EQ(scanner.Message(), QStringLiteral("Cannot open cancelled.mp4: it was cancelled."));
}

// After a seek, the demuxer of Matroska gives other times to the packets of such a file.
TEST(KxVideoSource, AFrameBeforeTheFirstPictureShowsIt)
{
    const auto reader = ReadClips::OpenReader(CutBeforeAKeyFrame("differently.mkv"));
    ASSERT_NE(reader, nullptr);
    std::vector<uint> sums;
    for (int frame = 0; frame < 20; ++frame) {
        sums.push_back(CheckSum(*reader, frame));
        EXPECT_NE(sums.back(), 0U) << frame;
    }
    for (const int frame : {80, 0, 19, 3, 1, 4, 2}) {
        const uint sum = CheckSum(*reader, frame);
        EXPECT_TRUE(frame >= 20 ? sum != 0 : sum == sums[static_cast<size_t>(frame)]) << frame;
    }
}

// Ten pictures a second, so that none is skipped: what was decoded at opening does not belong to the packets that are
// read after the seek.
TEST(KxVideoSource, APassOverPacketsThatHaveChangedBeginsAgain)
{
    const QString path = CutBeforeAKeyFrame("again.mkv", 10);
    const auto scanner = KxVideoScanner::Open(path, KxCancelToken());
    const auto reader = ReadClips::OpenReader(path);
    ASSERT_TRUE(scanner && reader);
    EXPECT_GT(ExpectTheSamePictures(**scanner, *reader), 70);
}
