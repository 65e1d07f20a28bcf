#include <Tests/KxMedia/Read/ReadClips.h>

#include <QFile>

#include <gtest/gtest.h>

using ReadClips::Path;
using ReadClips::Words;

namespace
{

QString Made(const char* name, int frames, const char* output)
{
    MadeVideo::Recipe recipe;
    recipe.size = {96, 64};
    recipe.frames = frames;
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
QString CutBeforeAKeyFrame(const char* name)
{
    const QString whole = Made("uncut.ts", 96, "-c:v mpeg2video -q:v 3 -g 12 -bf 2 -b_strategy 0");
    const QString cut = Path(QStringLiteral("cut.ts"));
    MadeVideo::RunFfmpeg(Words("-ss 0.5 -i") << whole << Words("-c copy") << cut);
    const QString path = Path(QLatin1String(name));
    MadeVideo::RunFfmpeg(Words("-i") << cut << Words("-c copy") << path);
    MarkGroupsAsClosed(path);
    return path;
}

} // namespace

// After a seek, the demuxer of Matroska gives other times to the packets of such a file.
TEST(KxVideoSource, AFrameBeforeTheFirstPictureShowsIt)
{
    const auto reader = ReadClips::OpenReader(CutBeforeAKeyFrame("differently.mkv"));
    ASSERT_NE(reader, nullptr);
    const auto checkSum = [&reader](int frame) {
        KxVideoFrame picture;
        const bool isThere = reader->Read(frame, picture) == KxReadStatus::Delivered && !picture.IsNull();
        return isThere ? ReadClips::CheckSum(picture) : 0U;
    };
    std::vector<uint> sums;
    for (int frame = 0; frame < 20; ++frame) {
        sums.push_back(checkSum(frame));
        EXPECT_NE(sums.back(), 0U) << frame;
    }
    for (const int frame : {80, 0, 19, 3, 1, 4, 2}) {
        EXPECT_TRUE(frame >= 20 ? checkSum(frame) != 0 : checkSum(frame) == sums[static_cast<size_t>(frame)]) << frame;
    }
}
