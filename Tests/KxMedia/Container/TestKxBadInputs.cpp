#include <Tests/KxMedia/Read/ReadClips.h>

#include <KxMedia/Container/KxAvLog.h>
#include <KxMedia/Read/KxMediaProbe.h>
#include <KxMedia/Read/KxVideoScanner.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <random>

using ReadClips::Path;
using ReadClips::Words;

namespace
{

// libav*'s messages about bad files would hide those of the tests.
const bool IsLogRouted = (KxRouteAvLog(), true);

QString Written(const QString& name, const QByteArray& contents)
{
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
    return file.fileName();
}

QByteArray Contents(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QString Clip(const QString& name, int frames = 30, const QStringList& more = {})
{
    MadeVideo::Recipe recipe;
    recipe.size = {96, 64};
    recipe.frames = frames;
    recipe.output = Words("-c:v libx264 -g 12 -bf 2 -pix_fmt yuv420p") + more;
    MadeVideo::Make(Path(name), recipe);
    return Path(name);
}

// The message of all three ways to open a file.
std::string Message(const QString& path)
{
    const auto reader = KxVideoReader::Open(path, KxCancelToken());
    const auto scanner = KxVideoScanner::Open(path, KxCancelToken());
    EXPECT_FALSE(reader);
    EXPECT_FALSE(scanner);
    EXPECT_EQ(reader.Message(), scanner.Message());
    return reader.Message().toStdString();
}

// Whatever happens, it ends.
void ReadThrough(const QString& path)
{
    const auto reader = KxVideoReader::Open(path, KxCancelToken());
    if (!reader) {
        EXPECT_FALSE(reader.Message().isEmpty());
        return;
    }
    ASSERT_LE((*reader)->Facts().video->frameCount, 10000000);
    const qint64 count = std::min<qint64>((*reader)->Facts().video->frameCount, 60);
    KxVideoFrame picture;
    for (const qint64 frame : {count - 1, count / 2, qint64{0}}) {
        (*reader)->Read(frame, picture);
    }
    const auto scanner = KxVideoScanner::Open(path, KxCancelToken());
    while (scanner && (*scanner)->Next(picture) == KxReadStatus::Delivered) {
    }
}

} // namespace

TEST(KxBadInputs, EachHasItsErrorMessage)
{
    EXPECT_EQ(Message(Path(QStringLiteral("none.mp4"))), "Cannot open none.mp4: there is no such file.");
    QDir(Path(QStringLiteral("."))).mkdir(QStringLiteral("folder.mp4"));
    EXPECT_EQ(Message(Path(QStringLiteral("folder.mp4"))), "Cannot open folder.mp4: it is a folder.");
    EXPECT_EQ(Message(Written(QStringLiteral("empty.mp4"), {})), "Cannot open empty.mp4: it is empty.");
    EXPECT_EQ(Message(Written(QStringLiteral("text.mp4"), "Dear reader,\nthis is a letter.\n")),
              "Cannot open text.mp4: it is not a video file.");
    EXPECT_EQ(Message(QString()), "Cannot open : there is no such file.");
}

TEST(KxBadInputs, ADevice)
{
    const QString device = QStringLiteral("/dev/null");
    if (!QFileInfo::exists(device)) {
        GTEST_SKIP() << "this system has no devices among its files";
    }
    EXPECT_EQ(Message(device), "Cannot open null: it is not a regular file.");
}

TEST(KxBadInputs, AFileWithoutPermission)
{
    const QString path = Clip(QStringLiteral("locked.mp4"));
    QFile::setPermissions(path, {});
    if (QFileInfo(path).isReadable()) {
        GTEST_SKIP() << "this user may read everything";
    }
    EXPECT_EQ(Message(path), "Cannot open locked.mp4: permission is denied.");
}

TEST(KxBadInputs, AHeaderWithoutAnIndex)
{
    const QByteArray clip = Contents(Clip(QStringLiteral("indexed.mp4")));
    EXPECT_EQ(Message(Written(QStringLiteral("halfway.mp4"), clip.left(clip.size() / 2))),
              "Cannot open halfway.mp4: it is damaged or incomplete.");
}

TEST(KxBadInputs, SoundAlone)
{
    const QString path = Path(QStringLiteral("sound.mp4"));
    ASSERT_TRUE(MadeVideo::RunFfmpeg(Words("-f lavfi -i sine=duration=1 -c:a aac") << path));
    EXPECT_EQ(Message(path), "Cannot open sound.mp4: it has sound but no moving picture.");
    const auto facts = KxProbeMedia(path, KxCancelToken());
    ASSERT_TRUE(facts);
    EXPECT_FALSE(facts->video);
    EXPECT_EQ(facts->audio.size(), 1);
}

TEST(KxBadInputs, SoundWithACoverPicture)
{
    const QString path = Path(QStringLiteral("cover.mp3"));
    ASSERT_TRUE(MadeVideo::RunFfmpeg(
        Words("-f lavfi -i sine=duration=1 -f lavfi -i color=red:s=64x64:r=1:d=1 -map 0 -map 1 -c:v mjpeg "
              "-disposition:v attached_pic -c:a libmp3lame")
        << path));
    EXPECT_EQ(Message(path), "Cannot open cover.mp3: it has sound but no moving picture.");
}

TEST(KxBadInputs, ASinglePicture)
{
    for (const char* suffix : {"png", "jpg", "gif", "bmp", "webp"}) {
        const bool isWebp = QByteArray(suffix) == "webp";
        if (isWebp && !MadeVideo::HasEncoder(QStringLiteral("libwebp"))) {
            continue;
        }
        const QString picture = Path(QStringLiteral("picture.") + QLatin1String(suffix));
        ASSERT_TRUE(MadeVideo::RunFfmpeg(Words("-f lavfi -i color=red:s=64x64 -frames:v 1") << picture));
        const QString renamed = Written(QStringLiteral("renamed.mp4"), Contents(picture));
        EXPECT_EQ(Message(picture), QStringLiteral("Cannot open picture.%1: it is a single picture, not a video.")
                                        .arg(QLatin1String(suffix))
                                        .toStdString());
        EXPECT_EQ(Message(renamed), "Cannot open renamed.mp4: it is a single picture, not a video.");
    }
}

TEST(KxBadInputs, ListsOfOtherFilesAreRefused)
{
    const QString clip = Clip(QStringLiteral("named.ts"));
    const std::string refusal = "it is a list of other files, not a video.";
    const QByteArray playlist =
        "#EXTM3U\n#EXT-X-VERSION:3\n#EXT-X-TARGETDURATION:2\n#EXTINF:1.2,\nnamed.ts\n#EXT-X-ENDLIST\n";
    EXPECT_EQ(Message(Written(QStringLiteral("list.mp4"), playlist)), "Cannot open list.mp4: " + refusal);
    const QByteArray concat = "ffconcat version 1.0\nfile named.ts\n";
    EXPECT_EQ(Message(Written(QStringLiteral("concat.mp4"), concat)), "Cannot open concat.mp4: " + refusal);
}

TEST(KxBadInputs, NamesAreNotProtocols)
{
    const QString clip = Clip(QStringLiteral("a.ts"));
    EXPECT_EQ(Message(QStringLiteral("concat:%1|%1").arg(clip)), "Cannot open a.ts: there is no such file.");
    const QString odd = Path(QStringLiteral("subfile,,start,0,end,9,,:100%d \xE4.mp4"));
    ASSERT_TRUE(QFile::copy(Clip(QStringLiteral("plain.mp4")), odd));
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(odd);
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(ReadClips::ReadNumber(*reader, 7), 7);
}

TEST(KxBadInputs, PicturesThatAreTooLarge)
{
    QByteArray clip = Contents(Clip(QStringLiteral("small.mp4")));
    // Width and height stand as 16-bit numbers in the sample entry and as 16.16 ones in the track's header.
    const int entry = clip.indexOf("avc1", clip.indexOf("stsd"));
    ASSERT_GT(entry, 0);
    clip.replace(entry + 28, 4, QByteArray::fromHex("40004000"));
    EXPECT_EQ(Message(Written(QStringLiteral("huge.mp4"), clip)),
              "Cannot open huge.mp4: its pictures are too large (16384 x 16384).");
}

TEST(KxBadInputs, TooManyStreams)
{
    const QString path = Path(QStringLiteral("streams.mov"));
    QStringList maps = Words("-f lavfi -i color=red:s=64x64:d=0.2 -f lavfi -i sine=sample_rate=8000:d=0.1 -map 0");
    for (int i = 0; i < 64; ++i) {
        maps += Words("-map 1");
    }
    const QStringList codecs = Words("-c:v libx264 -c:a pcm_u8");
    ASSERT_TRUE(MadeVideo::RunFfmpeg(maps + codecs << path));
    EXPECT_EQ(Message(path), "Cannot open streams.mov: it has more than 64 streams.");

    ASSERT_TRUE(MadeVideo::RunFfmpeg(maps.mid(0, maps.size() - 2) + codecs << path));
    EXPECT_NE(ReadClips::OpenReader(path), nullptr);

    for (int i = 0; i < 250; ++i) {
        maps += Words("-map 1");
    }
    ASSERT_TRUE(MadeVideo::RunFfmpeg(maps + codecs << path));
    EXPECT_EQ(Message(path), "Cannot open streams.mov: it has more than 64 streams.");
}

TEST(KxBadInputs, RandomBytesBehindAVideosHeader)
{
    std::mt19937 random(1);
    QByteArray noise(200000, '\0');
    for (char& byte : noise) {
        byte = static_cast<char>(random());
    }
    for (const char* suffix : {"mp4", "mkv", "ts", "avi", "flv", "mpg"}) {
        const QString clip = Clip(QStringLiteral("head.%1").arg(QLatin1String(suffix)), 30);
        const QByteArray head = Contents(clip).left(700);
        ReadThrough(Written(QStringLiteral("noise.%1").arg(QLatin1String(suffix)), head + noise));
    }
    ReadThrough(Written(QStringLiteral("allnoise.mp4"), noise));
}

TEST(KxBadInputs, ScatteredDamage)
{
    std::mt19937 random(2);
    for (const char* suffix : {"mp4", "mkv", "ts", "avi", "flv"}) {
        const QByteArray clip = Contents(Clip(QStringLiteral("sound%1.%1").arg(QLatin1String(suffix)), 30));
        for (int round = 0; round < 12; ++round) {
            QByteArray damaged = clip;
            for (int i = 0; i < 1 + round * 2; ++i) {
                damaged[static_cast<int>(random() % static_cast<unsigned>(damaged.size()))] =
                    static_cast<char>(random());
            }
            const int length =
                round % 3 == 0 ? static_cast<int>(random() % static_cast<unsigned>(damaged.size())) : damaged.size();
            ReadThrough(Written(QStringLiteral("scattered.%1").arg(QLatin1String(suffix)), damaged.left(length)));
        }
    }
}
