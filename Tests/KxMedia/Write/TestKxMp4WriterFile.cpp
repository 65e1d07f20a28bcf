#include <Tests/KxMedia/Write/WrittenClips.h>

#include <KxCore/KxSystemFile.h>
#include <KxCore/KxThread.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include <algorithm>
#include <random>

#if !defined(_WIN32)
#include <csignal>
#include <sys/resource.h>
#include <unistd.h>
#endif

using namespace WrittenClips;

TEST_F(KxMp4WriterTest, FileOfTheSameNameIsKeptAndANumberIsAdded)
{
    const KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
    QFile old(settings.path);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    EXPECT_EQ(WriteFlat(settings, 5), Path(QStringLiteral("out (2).mp4")));
    EXPECT_EQ(WriteFlat(settings, 5), Path(QStringLiteral("out (3).mp4")));
    EXPECT_EQ(Content(settings.path), QByteArray("old"));
    EXPECT_EQ(DecodedLuma(Path(QStringLiteral("out (3).mp4"))).size(), 5U);
}

TEST_F(KxMp4WriterTest, FileOfTheSameNameIsReplacedOnRequestAndOnlyAtTheEnd)
{
    KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
    settings.existing = KxMp4Writer::Existing::Replace;
    QFile old(settings.path);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();
    const std::unique_ptr<KxMp4Writer> writer = Open(settings);
    ASSERT_NE(writer, nullptr);
    ASSERT_EQ(AddPictures(*writer, 5), std::nullopt);
    EXPECT_EQ(Content(settings.path), QByteArray("old"));
    ASSERT_TRUE(writer->Finish());
    EXPECT_EQ(DecodedLuma(settings.path).size(), 5U);
    EXPECT_EQ(FilesIn(m_folder.path()), QStringList{QStringLiteral("out.mp4")});
}

TEST_F(KxMp4WriterTest, NamesThatLookLikeProtocolsAreNames)
{
    for (const QString& name :
         {QStringLiteral("a:b.mp4"), QStringLiteral("50%1 %d.mp4"), QString::fromUtf8("größe ünd.mp4"),
          QStringLiteral("pipe:1.mp4"), QStringLiteral("none")}) {
        const QString path = m_folder.path() + QLatin1Char('/') + name;
        if (name.contains(QLatin1Char(':')) && KxSystemFile::ReasonNotToName(path)) {
            continue;
        }
        EXPECT_EQ(WriteFlat(SettingsFor(Path(name)), 3), Path(name));
        EXPECT_EQ(DecodedLuma(QStringLiteral("file:") + Path(name)).size(), 3U);
    }
}

TEST_F(KxMp4WriterTest, UnfinishedFileLeavesNothingBehind)
{
    KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
    settings.hasAudio = true;
    Open(settings).reset();
    EXPECT_EQ(FilesIn(m_folder.path()), QStringList());
    std::unique_ptr<KxMp4Writer> writer = Open(settings);
    ASSERT_EQ(AddPictures(*writer, 40), std::nullopt);
    ASSERT_EQ(writer->AddAudio(Clicks(1.0, {})), std::nullopt);
    EXPECT_EQ(FilesIn(m_folder.path()).size(), 1);
    EXPECT_FALSE(QFile::exists(settings.path));
    writer.reset();
    EXPECT_EQ(FilesIn(m_folder.path()), QStringList());
}

TEST_F(KxMp4WriterTest, FinishingWithoutAPictureFails)
{
    std::unique_ptr<KxMp4Writer> writer = Open(SettingsFor(Path(QStringLiteral("out.mp4"))));
    const KxResult<QString> path = writer->Finish();
    EXPECT_FALSE(path);
    EXPECT_EQ(path.Message(),
              QStringLiteral("Cannot write %1: there is no picture to write.").arg(Path(QStringLiteral("out.mp4"))));
    writer.reset();
    EXPECT_EQ(FilesIn(m_folder.path()), QStringList());
}

TEST_F(KxMp4WriterTest, ImpossibleSettingsAreRefused)
{
    const auto message = [](const KxMp4Writer::Settings& settings) { return KxMp4Writer::Open(settings).Message(); };
    KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
    settings.size = QSize(101, 200);
    EXPECT_TRUE(message(settings).contains(QStringLiteral("out.mp4: pictures of 101 x 200")))
        << message(settings).toStdString();
    settings.size = QSize();
    EXPECT_FALSE(message(settings).isEmpty());
    settings = SettingsFor(settings.path);
    settings.frameRate = {};
    EXPECT_TRUE(message(settings).endsWith(QStringLiteral("out.mp4: the frame rate is unknown.")));
    settings = SettingsFor(settings.path);
    settings.hasAudio = true;
    settings.audioFormat = {12345, 2};
    EXPECT_TRUE(
        message(settings).endsWith(QStringLiteral("out.mp4: sound of 12345 Hz and 2 channels is not supported.")));
    settings = SettingsFor(settings.path);
    settings.videoPreset = QStringLiteral("no such preset");
    const std::unique_ptr<KxMp4Writer> writer = Open(settings);
    const KxError error = AddPictures(*writer, 1);
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->contains(QStringLiteral("out.mp4: the video encoder libx264 does not start")))
        << error->toStdString();
}

TEST_F(KxMp4WriterTest, UnusableFolderIsNamed)
{
    const QString missing = Path(QStringLiteral("none/out.mp4"));
    const QString message = KxMp4Writer::Open(SettingsFor(missing)).Message();
    EXPECT_TRUE(message.startsWith(QStringLiteral("Cannot write %1: ").arg(missing))) << message.toStdString();
    EXPECT_TRUE(message.contains(QStringLiteral("does not exist"))) << message.toStdString();
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("sub")));
    const QString folder = Path(QStringLiteral("sub"));
    EXPECT_EQ(KxMp4Writer::Open(SettingsFor(folder)).Message(),
              QStringLiteral("Cannot write %1: it is a folder.").arg(folder));
}

#if !defined(_WIN32)

TEST_F(KxMp4WriterTest, FolderWithoutPermissionIsNamed)
{
    ASSERT_TRUE(QFile::setPermissions(m_folder.path(),
                                      QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
    // Root may write to any folder.
    constexpr uid_t nobody = 65534;
    const bool isRoot = geteuid() == 0;
    if (isRoot) {
        ASSERT_EQ(seteuid(nobody), 0);
    }
    const QString message = KxMp4Writer::Open(SettingsFor(Path(QStringLiteral("out.mp4")))).Message();
    if (isRoot) {
        ASSERT_EQ(seteuid(0), 0);
    }
    QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(message, QStringLiteral("Cannot write %1: permission is denied.").arg(Path(QStringLiteral("out.mp4"))));
}

namespace
{

// Limits the size of the process's files during its lifetime.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(qint64 bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = static_cast<rlim_t>(bytes);
        setrlimit(RLIMIT_FSIZE, &limit);
        m_handlerBefore = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handlerBefore);
    }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    rlimit m_before{};
    void (*m_handlerBefore)(int) = nullptr;
};

} // namespace

class KxMp4WriterLimit : public KxMp4WriterTest
{
protected:
    void ExpectNoticed(qint64 limitBytes, qint64 pictures, KxVideoFrame (*make)(qint64))
    {
        const KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
        const FileSizeLimit limited(limitBytes);
        std::unique_ptr<KxMp4Writer> writer = Open(settings);
        ASSERT_NE(writer, nullptr);
        QString message = AddPictures(*writer, pictures, make).value_or(QString());
        if (message.isEmpty()) {
            message = writer->Finish().Message();
        }
        EXPECT_EQ(message,
                  QStringLiteral("Cannot write %1: the file would become too large for its disk.").arg(settings.path))
            << limitBytes;
        writer.reset();
        EXPECT_EQ(FilesIn(m_folder.path()), QStringList());
    }
};

TEST_F(KxMp4WriterLimit, FullDiskIsDetectedWhilePicturesAreWritten)
{
    ExpectNoticed(10, 40, &BusyPicture);
    ExpectNoticed(100000, 40, &BusyPicture);
}

TEST_F(KxMp4WriterLimit, FullDiskIsDetectedWhileTheIndexIsMoved)
{
    // Few bits, so that the peak limit is never reached and the file is reproducible.
    constexpr qint64 pictureCount = 200;
    const QString whole = WriteFlat(SettingsFor(Path(QStringLiteral("out.mp4"))), pictureCount);
    const qint64 bytes = QFile(whole).size();
    ASSERT_TRUE(QFile::remove(whole));
    for (const qint64 missing : {2500, 1000, 1}) {
        ASSERT_GT(bytes, missing);
        ExpectNoticed(bytes - missing, pictureCount, &FlatPicture);
    }
}

TEST_F(KxMp4WriterTest, FullDiskIsCalledFull)
{
    const QString disk = Path(QStringLiteral("disk"));
    ASSERT_TRUE(QDir().mkdir(disk));
    QProcess mount;
    mount.start(QStringLiteral("mount"), {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                                          QStringLiteral("size=64k"), QStringLiteral("tmpfs"), disk});
    if (!mount.waitForFinished() || mount.exitStatus() != QProcess::NormalExit || mount.exitCode() != 0) {
        GTEST_SKIP() << "no small disk can be mounted here";
    }
    const KxMp4Writer::Settings settings = SettingsFor(disk + QStringLiteral("/out.mp4"));
    QString message;
    {
        const std::unique_ptr<KxMp4Writer> writer = Open(settings);
        message = AddPictures(*writer, 60, &BusyPicture).value_or(QString());
        if (message.isEmpty()) {
            message = writer->Finish().Message();
        }
    }
    const QStringList left = FilesIn(disk);
    QProcess::execute(QStringLiteral("umount"), {disk});
    EXPECT_EQ(message, QStringLiteral("Cannot write %1: the disk is full.").arg(settings.path));
    EXPECT_EQ(left, QStringList());
}

#endif

TEST_F(KxMp4WriterTest, SamePicturesGiveTheSameBytes)
{
    const auto written = [this](const QString& name) {
        KxMp4Writer::Settings settings = SettingsFor(Path(name));
        settings.size = QSize(320, 576);
        settings.hasAudio = true;
        const std::unique_ptr<KxMp4Writer> writer = Open(settings);
        for (qint64 index = 0; writer != nullptr && index < 75; ++index) {
            const int scene = static_cast<int>(index / 25) * 40;
            const auto texture = [&](int plane, int x, int y) {
                return MadePicture::Texture(plane, x + 2 * static_cast<int>(index), y + scene);
            };
            EXPECT_EQ(
                writer->AddPicture(
                    MadePicture::Wrap(MadePicture::Make(AV_PIX_FMT_YUV420P, settings.size, texture), index), index),
                std::nullopt);
        }
        EXPECT_EQ(writer->AddAudio(Clicks(3.0, {0.5, 1.5})), std::nullopt);
        EXPECT_TRUE(writer->Finish());
        return Content(Path(name));
    };
    const QByteArray first = written(QStringLiteral("first.mp4"));
    EXPECT_FALSE(first.isEmpty());
    for (int run = 0; run < 3; ++run) {
        // Not compared by EXPECT_EQ, which would print the files.
        EXPECT_TRUE(written(QStringLiteral("again%1.mp4").arg(run)) == first);
    }
}

namespace
{

/// Frees memory that is full of random bytes, for the next allocations. It stays with this process while the result
/// lives.
std::vector<unsigned> LeaveInMemory(unsigned seed)
{
    std::minstd_rand random(seed);
    std::vector<std::vector<unsigned>> blocks(4000);
    for (std::vector<unsigned>& block : blocks) {
        block.resize(random() % 15000);
        std::generate(block.begin(), block.end(), [&random] { return static_cast<unsigned>(random()); });
    }
    return blocks.back();
}

} // namespace

// Real footage, since made pictures do not show it.
TEST_F(KxMp4WriterTest, WhatMemoryHeldBeforeDoesNotShow)
{
    const QString footage = QStringLiteral("/usr/share/doc/opencv-doc/examples/data/Megamind.avi");
    if (!QFile::exists(footage)) {
        GTEST_SKIP() << "needs Megamind.avi of the package opencv-doc";
    }
    constexpr int pictures = 250;
    const QSize size(202, 360);
    const QByteArray raw = OutputOf(
        QStringLiteral("ffmpeg"), {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), footage,
                                   QStringLiteral("-vf"), QStringLiteral("scale=202:360"), QStringLiteral("-frames:v"),
                                   QString::number(pictures), QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"),
                                   QStringLiteral("-f"), QStringLiteral("rawvideo"), QStringLiteral("-")});
    const int pictureBytes = size.width() * size.height() * 3 / 2;
    ASSERT_EQ(raw.size(), pictures * pictureBytes);
    const auto written = [&](const QString& name, unsigned before) {
        const std::vector<unsigned> last = LeaveInMemory(before);
        KxMp4Writer::Settings settings = SettingsFor(Path(name));
        settings.size = size;
        settings.format.quality = 60.0;
        const std::unique_ptr<KxMp4Writer> writer = Open(settings);
        for (int index = 0; writer != nullptr && index < pictures; ++index) {
            const auto texture = [&](int plane, int x, int y) {
                const int pixels = size.width() * size.height();
                const int begin = plane == 0 ? 0 : plane == 1 ? pixels : pixels * 5 / 4;
                const int width = plane == 0 ? size.width() : size.width() / 2;
                return static_cast<unsigned char>(raw.at(index * pictureBytes + begin + y * width + x));
            };
            EXPECT_EQ(writer->AddPicture(MadePicture::Wrap(MadePicture::Make(AV_PIX_FMT_YUV420P, size, texture), index),
                                         index),
                      std::nullopt);
        }
        EXPECT_TRUE(writer->Finish());
        return Content(Path(name));
    };
    // In threads: the memory of the main thread is its own.
    const auto inThread = [&written](const QString& name, unsigned before) {
        QByteArray content;
        KxThread([&] { content = written(name, before); }).Join();
        return content;
    };
    const QByteArray first = inThread(QStringLiteral("first.mp4"), 1);
    EXPECT_FALSE(first.isEmpty());
    EXPECT_TRUE(inThread(QStringLiteral("second.mp4"), 2) == first);
    EXPECT_TRUE(inThread(QStringLiteral("third.mp4"), 3) == first);
}
