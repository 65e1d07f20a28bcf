#include "KxMp4Writer.h"

#include "MadePicture.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#if !defined(_WIN32)
#include <csignal>
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace
{

const QSize Size(160, 96);
constexpr int SampleRateHz = 48000;

KxMp4Writer::Settings SettingsFor(const QString& path)
{
    KxMp4Writer::Settings settings;
    settings.path = path;
    settings.size = Size;
    settings.frameRate = {25, 1};
    settings.videoPreset = QStringLiteral("veryfast");
    return settings;
}

int FlatLuma(qint64 index)
{
    return 30 + static_cast<int>(index % 60) * 3;
}

KxVideoFrame FlatPicture(qint64 index)
{
    KxAvFrame picture = MadePicture::Make(AV_PIX_FMT_YUV420P, Size,
                                          [index](int plane, int, int) { return plane == 0 ? FlatLuma(index) : 128; });
    return MadePicture::Wrap(std::move(picture), index);
}

// Noise: what no encoder makes small.
KxVideoFrame BusyPicture(qint64 index)
{
    unsigned state = static_cast<unsigned>(index) * 2654435761U + 1U;
    KxAvFrame picture = MadePicture::Make(AV_PIX_FMT_YUV420P, Size, [&state](int, int, int) {
        state = state * 1664525U + 1013904223U;
        return static_cast<int>(state >> 24);
    });
    return MadePicture::Wrap(std::move(picture), index);
}

KxError AddPictures(KxMp4Writer& writer, qint64 count, KxVideoFrame (*make)(qint64) = &FlatPicture)
{
    for (qint64 index = 0; index < count; ++index) {
        if (KxError error = writer.AddPicture(make(index), index)) {
            return error;
        }
    }
    return std::nullopt;
}

// Silence with a click at each of the times (seconds after the sound's own start).
KxAudioBlock Clicks(double lengthS, const std::vector<double>& timesS, int channels = 2)
{
    KxAudioBlock block;
    block.channels = channels;
    block.samples.assign(static_cast<size_t>(lengthS * SampleRateHz) * static_cast<size_t>(channels), 0.0F);
    for (const double timeS : timesS) {
        const auto first = static_cast<size_t>(timeS * SampleRateHz) * static_cast<size_t>(channels);
        for (size_t i = 0; i < 64 * static_cast<size_t>(channels); ++i) {
            block.samples[first + i] = 0.9F;
        }
    }
    return block;
}

QByteArray OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

QJsonObject Probe(const QString& path)
{
    return QJsonDocument::fromJson(
               OutputOf(QStringLiteral("ffprobe"),
                        {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_streams"),
                         QStringLiteral("-show_format"), QStringLiteral("-of"), QStringLiteral("json"),
                         QStringLiteral("file:") + path}))
        .object();
}

QString Field(const QJsonObject& probed, int stream, const char* name)
{
    const QJsonValue value =
        probed.value(QLatin1String("streams")).toArray().at(stream).toObject().value(QLatin1String(name));
    return value.isDouble() ? QString::number(value.toDouble()) : value.toString();
}

// Mean luma of each picture that the file decodes to.
std::vector<double> DecodedLuma(const QString& path)
{
    const QByteArray grey =
        OutputOf(QStringLiteral("ffmpeg"), {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), path,
                                            QStringLiteral("-vf"), QStringLiteral("extractplanes=y"),
                                            QStringLiteral("-f"), QStringLiteral("rawvideo"), QStringLiteral("-")});
    const int pictureBytes = Size.width() * Size.height();
    std::vector<double> means;
    for (int at = 0; at + pictureBytes <= grey.size(); at += pictureBytes) {
        double sum = 0;
        for (int i = 0; i < pictureBytes; ++i) {
            sum += static_cast<unsigned char>(grey[at + i]);
        }
        means.push_back(sum / pictureBytes);
    }
    return means;
}

// Times of the clicks, seconds on the file's clock.
std::vector<double> HeardClicks(const QString& path)
{
    const QByteArray sound =
        OutputOf(QStringLiteral("ffmpeg"),
                 {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), path, QStringLiteral("-vn"),
                  QStringLiteral("-af"), QStringLiteral("aresample=async=1:first_pts=0"), QStringLiteral("-ac"),
                  QStringLiteral("1"), QStringLiteral("-f"), QStringLiteral("f32le"), QStringLiteral("-")});
    std::vector<double> times;
    for (int at = 0; at + 4 <= sound.size(); at += 4) {
        float value = 0;
        std::memcpy(&value, sound.constData() + at, sizeof value);
        const double timeS = at / 4.0 / SampleRateHz;
        if (std::abs(value) > 0.4F && (times.empty() || timeS > times.back() + 0.05)) {
            times.push_back(timeS);
        }
    }
    return times;
}

QStringList FilesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QByteArray Content(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

// Names of the boxes on the file's top level.
QStringList Boxes(const QString& path)
{
    const QByteArray content = Content(path);
    QStringList names;
    for (int at = 0; at + 8 <= content.size();) {
        const auto bytes = static_cast<int>(qFromBigEndian<quint32>(content.constData() + at));
        names += QString::fromLatin1(content.mid(at + 4, 4));
        at += std::max(bytes, 8);
    }
    return names;
}

class KxMp4WriterTest : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    std::unique_ptr<KxMp4Writer> Open(const KxMp4Writer::Settings& settings)
    {
        KxResult<std::unique_ptr<KxMp4Writer>> writer = KxMp4Writer::Open(settings);
        EXPECT_TRUE(writer) << writer.Sentence().toStdString();
        return writer ? std::move(*writer) : nullptr;
    }

    QString WriteFlat(const KxMp4Writer::Settings& settings, qint64 pictures)
    {
        const std::unique_ptr<KxMp4Writer> writer = Open(settings);
        if (writer == nullptr || AddPictures(*writer, pictures)) {
            ADD_FAILURE();
            return {};
        }
        const KxResult<QString> path = writer->Finish();
        EXPECT_TRUE(path) << path.Sentence().toStdString();
        return path ? *path : QString();
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(KxMp4WriterTest, EveryPictureComesBackInItsPlace)
{
    const QString path = WriteFlat(SettingsFor(Path(QStringLiteral("out.mp4"))), 57);
    ASSERT_EQ(path, Path(QStringLiteral("out.mp4")));
    const std::vector<double> luma = DecodedLuma(path);
    ASSERT_EQ(luma.size(), 57U);
    for (size_t n = 0; n < luma.size(); ++n) {
        EXPECT_NEAR(luma[n], FlatLuma(static_cast<qint64>(n)), 1.4) << "picture " << n;
    }
    EXPECT_EQ(FilesIn(m_folder.path()), QStringList{QStringLiteral("out.mp4")});
}

TEST_F(KxMp4WriterTest, StreamsSayWhatTheyAre)
{
    KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
    settings.frameRate = {30000, 1001};
    settings.hasAudio = true;
    settings.audioFormat = {44100, 1};
    settings.audioBitRate = 96000;
    const std::unique_ptr<KxMp4Writer> writer = Open(settings);
    ASSERT_NE(writer, nullptr);
    for (qint64 index = 0; index < 90; ++index) {
        KxAvFrame picture = MadePicture::Make(AV_PIX_FMT_YUV420P, Size, &MadePicture::Texture);
        picture->color_primaries = AVCOL_PRI_BT709;
        picture->color_trc = AVCOL_TRC_BT709;
        picture->colorspace = AVCOL_SPC_BT709;
        picture->color_range = AVCOL_RANGE_MPEG;
        picture->chroma_location = AVCHROMA_LOC_LEFT;
        ASSERT_EQ(writer->AddPicture(MadePicture::Wrap(std::move(picture), index), index), std::nullopt);
    }
    KxAudioBlock block = Clicks(3.0, {}, 1);
    block.samples.resize(3 * 44100);
    ASSERT_EQ(writer->AddAudio(block), std::nullopt);
    const KxResult<QString> path = writer->Finish();
    ASSERT_TRUE(path) << path.Sentence().toStdString();

    const QJsonObject probed = Probe(*path);
    EXPECT_EQ(Field(probed, 0, "codec_name"), QStringLiteral("h264"));
    EXPECT_EQ(Field(probed, 0, "pix_fmt"), QStringLiteral("yuv420p"));
    EXPECT_EQ(Field(probed, 0, "width"), QStringLiteral("160"));
    EXPECT_EQ(Field(probed, 0, "height"), QStringLiteral("96"));
    EXPECT_EQ(Field(probed, 0, "sample_aspect_ratio"), QStringLiteral("1:1"));
    EXPECT_EQ(Field(probed, 0, "r_frame_rate"), QStringLiteral("30000/1001"));
    EXPECT_EQ(Field(probed, 0, "avg_frame_rate"), QStringLiteral("30000/1001"));
    EXPECT_EQ(Field(probed, 0, "nb_frames"), QStringLiteral("90"));
    EXPECT_NEAR(Field(probed, 0, "start_time").toDouble(), 0.0, 1e-6);
    EXPECT_NEAR(Field(probed, 0, "duration").toDouble(), 3.003, 1e-4);
    EXPECT_EQ(Field(probed, 0, "color_primaries"), QStringLiteral("bt709"));
    EXPECT_EQ(Field(probed, 0, "color_transfer"), QStringLiteral("bt709"));
    EXPECT_EQ(Field(probed, 0, "color_space"), QStringLiteral("bt709"));
    EXPECT_EQ(Field(probed, 0, "color_range"), QStringLiteral("tv"));
    EXPECT_EQ(Field(probed, 1, "codec_name"), QStringLiteral("aac"));
    EXPECT_EQ(Field(probed, 1, "sample_rate"), QStringLiteral("44100"));
    EXPECT_EQ(Field(probed, 1, "channels"), QStringLiteral("1"));
    EXPECT_NEAR(Field(probed, 1, "start_time").toDouble(), 0.0, 1e-6);
    EXPECT_NEAR(Field(probed, 1, "duration").toDouble(), 3.0, 0.03);
}

TEST_F(KxMp4WriterTest, IndexStandsBeforeTheData)
{
    const QStringList boxes = Boxes(WriteFlat(SettingsFor(Path(QStringLiteral("out.mp4"))), 30));
    EXPECT_GE(boxes.indexOf(QStringLiteral("moov")), 0);
    EXPECT_LT(boxes.indexOf(QStringLiteral("moov")), boxes.indexOf(QStringLiteral("mdat")));
}

TEST_F(KxMp4WriterTest, KeyPictureComesAtLeastEveryTwoSeconds)
{
    const QString path = WriteFlat(SettingsFor(Path(QStringLiteral("out.mp4"))), 260);
    const QByteArray flags =
        OutputOf(QStringLiteral("ffprobe"),
                 {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_entries"),
                  QStringLiteral("packet=flags"), QStringLiteral("-of"), QStringLiteral("csv=p=0"), path});
    int sinceKey = 0;
    int keys = 0;
    for (const QByteArray& line : flags.trimmed().split('\n')) {
        sinceKey = line.startsWith('K') ? 0 : sinceKey + 1;
        keys += line.startsWith('K') ? 1 : 0;
        EXPECT_LT(sinceKey, 50);
    }
    EXPECT_GE(keys, 6);
}

TEST_F(KxMp4WriterTest, BitRateIsMetOnAverage)
{
    KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
    settings.videoBitRate = 600000;
    const std::unique_ptr<KxMp4Writer> writer = Open(settings);
    ASSERT_NE(writer, nullptr);
    ASSERT_EQ(AddPictures(*writer, 250, &BusyPicture), std::nullopt);
    const KxResult<QString> path = writer->Finish();
    ASSERT_TRUE(path);
    EXPECT_NEAR(Field(Probe(*path), 0, "bit_rate").toDouble(), 600000, 90000);
}

TEST_F(KxMp4WriterTest, SoundStaysInStep)
{
    KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
    settings.hasAudio = true;
    const std::unique_ptr<KxMp4Writer> writer = Open(settings);
    ASSERT_NE(writer, nullptr);
    const std::vector<double> times{0.5, 1.0, 2.04, 3.96};
    const KxAudioBlock all = Clicks(4.0, times);
    // Blocks of an awkward length, between the pictures.
    size_t used = 0;
    for (qint64 index = 0; index < 100; ++index) {
        ASSERT_EQ(writer->AddPicture(FlatPicture(index), index), std::nullopt);
        const size_t end = index == 99 ? all.samples.size() : std::min(all.samples.size(), used + 2 * 1901);
        KxAudioBlock block;
        block.timeUs = static_cast<qint64>(used / 2 * 1000000 / SampleRateHz);
        block.channels = 2;
        block.samples.assign(all.samples.begin() + static_cast<std::ptrdiff_t>(used),
                             all.samples.begin() + static_cast<std::ptrdiff_t>(end));
        used = end;
        ASSERT_EQ(writer->AddAudio(block), std::nullopt);
    }
    const KxResult<QString> path = writer->Finish();
    ASSERT_TRUE(path);
    const std::vector<double> heard = HeardClicks(*path);
    ASSERT_EQ(heard.size(), times.size());
    for (size_t i = 0; i < times.size(); ++i) {
        EXPECT_NEAR(heard[i], times[i], 0.002);
    }
}

TEST_F(KxMp4WriterTest, LateSoundKeepsItsOffset)
{
    for (const double offsetS : {0.01, 0.7}) {
        KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
        settings.existing = KxMp4Writer::Existing::Replace;
        settings.hasAudio = true;
        const std::unique_ptr<KxMp4Writer> writer = Open(settings);
        ASSERT_NE(writer, nullptr);
        KxAudioBlock block = Clicks(1.0, {0.25});
        block.timeUs = std::llround(offsetS * 1e6);
        // Before the first picture: the file is not made yet.
        ASSERT_EQ(writer->AddAudio(block), std::nullopt);
        ASSERT_EQ(AddPictures(*writer, 50), std::nullopt);
        const KxResult<QString> path = writer->Finish();
        ASSERT_TRUE(path);
        const std::vector<double> heard = HeardClicks(*path);
        ASSERT_EQ(heard.size(), 1U);
        EXPECT_NEAR(heard[0], 0.25 + offsetS, 0.002);
        EXPECT_NEAR(Field(Probe(*path), 0, "start_time").toDouble(), 0.0, 1e-6);
    }
}

TEST_F(KxMp4WriterTest, WantedSoundThatNeverCameLeavesAPlayableFile)
{
    KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
    settings.hasAudio = true;
    EXPECT_EQ(DecodedLuma(WriteFlat(settings, 20)).size(), 20U);
}

TEST_F(KxMp4WriterTest, SoundThatIsNoNumberIsSilence)
{
    KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
    settings.hasAudio = true;
    const std::unique_ptr<KxMp4Writer> writer = Open(settings);
    ASSERT_NE(writer, nullptr);
    KxAudioBlock block = Clicks(1.0, {0.5});
    block.samples[300] = std::numeric_limits<float>::quiet_NaN();
    block.samples[301] = std::numeric_limits<float>::infinity();
    ASSERT_EQ(AddPictures(*writer, 25), std::nullopt);
    ASSERT_EQ(writer->AddAudio(block), std::nullopt);
    const KxResult<QString> path = writer->Finish();
    ASSERT_TRUE(path) << path.Sentence().toStdString();
    EXPECT_EQ(HeardClicks(*path).size(), 1U);
}

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

TEST_F(KxMp4WriterTest, NamesThatLookLikeSomethingElseAreNames)
{
    for (const QString& name :
         {QStringLiteral("a:b.mp4"), QStringLiteral("50%1 %d.mp4"), QString::fromUtf8("größe ünd.mp4"),
          QStringLiteral("pipe:1.mp4"), QStringLiteral("none")}) {
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

TEST_F(KxMp4WriterTest, NothingToWriteIsAFailure)
{
    std::unique_ptr<KxMp4Writer> writer = Open(SettingsFor(Path(QStringLiteral("out.mp4"))));
    const KxResult<QString> path = writer->Finish();
    EXPECT_FALSE(path);
    EXPECT_EQ(path.Sentence(),
              QStringLiteral("Cannot write %1: there is no picture to write.").arg(Path(QStringLiteral("out.mp4"))));
    writer.reset();
    EXPECT_EQ(FilesIn(m_folder.path()), QStringList());
}

TEST_F(KxMp4WriterTest, SettingsThatCannotBeAreRefused)
{
    const auto sentence = [](const KxMp4Writer::Settings& settings) { return KxMp4Writer::Open(settings).Sentence(); };
    KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
    settings.size = QSize(101, 200);
    EXPECT_TRUE(sentence(settings).contains(QStringLiteral("out.mp4: pictures of 101 x 200")))
        << sentence(settings).toStdString();
    settings.size = QSize();
    EXPECT_FALSE(sentence(settings).isEmpty());
    settings = SettingsFor(settings.path);
    settings.frameRate = {};
    EXPECT_TRUE(sentence(settings).endsWith(QStringLiteral("out.mp4: the frame rate is unknown.")));
    settings = SettingsFor(settings.path);
    settings.hasAudio = true;
    settings.audioFormat = {12345, 2};
    EXPECT_TRUE(
        sentence(settings).endsWith(QStringLiteral("out.mp4: sound of 12345 Hz and 2 channels is not supported.")));
    settings = SettingsFor(settings.path);
    settings.videoPreset = QStringLiteral("no such preset");
    const std::unique_ptr<KxMp4Writer> writer = Open(settings);
    const KxError error = AddPictures(*writer, 1);
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->contains(QStringLiteral("out.mp4: the video encoder does not start"))) << error->toStdString();
}

TEST_F(KxMp4WriterTest, FolderThatCannotTakeTheFileIsNamed)
{
    const QString missing = Path(QStringLiteral("none/out.mp4"));
    const QString sentence = KxMp4Writer::Open(SettingsFor(missing)).Sentence();
    EXPECT_TRUE(sentence.startsWith(QStringLiteral("Cannot write %1: ").arg(missing))) << sentence.toStdString();
    EXPECT_TRUE(sentence.contains(QStringLiteral("does not exist"))) << sentence.toStdString();
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("sub")));
    const QString folder = Path(QStringLiteral("sub"));
    EXPECT_EQ(KxMp4Writer::Open(SettingsFor(folder)).Sentence(),
              QStringLiteral("Cannot write %1: it is a folder.").arg(folder));
}

#if !defined(_WIN32)

TEST_F(KxMp4WriterTest, FolderWithoutPermissionIsNamed)
{
    ASSERT_TRUE(QFile::setPermissions(m_folder.path(),
                                      QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
    // For the one user who may do everything no folder is closed.
    constexpr uid_t Nobody = 65534;
    const bool isRoot = geteuid() == 0;
    if (isRoot) {
        ASSERT_EQ(seteuid(Nobody), 0);
    }
    const QString sentence = KxMp4Writer::Open(SettingsFor(Path(QStringLiteral("out.mp4")))).Sentence();
    if (isRoot) {
        ASSERT_EQ(seteuid(0), 0);
    }
    QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(sentence, QStringLiteral("Cannot write %1: permission denied.").arg(Path(QStringLiteral("out.mp4"))));
}

namespace
{

// As long as it lives no file of this process grows beyond a limit.
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
        QString sentence = AddPictures(*writer, pictures, make).value_or(QString());
        if (sentence.isEmpty()) {
            sentence = writer->Finish().Sentence();
        }
        EXPECT_EQ(sentence,
                  QStringLiteral("Cannot write %1: the file would become too large for its disk.").arg(settings.path))
            << limitBytes;
        writer.reset();
        EXPECT_EQ(FilesIn(m_folder.path()), QStringList());
    }
};

TEST_F(KxMp4WriterLimit, DiskThatTakesNoMoreIsNoticedWhilePicturesAreWritten)
{
    ExpectNoticed(10, 40, &BusyPicture);
    ExpectNoticed(100000, 40, &BusyPicture);
}

TEST_F(KxMp4WriterLimit, DiskThatTakesNoMoreIsNoticedWhileTheIndexIsMoved)
{
    // Few bits, so that the encoder never has to hold back and makes the same file each time.
    constexpr qint64 Pictures = 200;
    const QString whole = WriteFlat(SettingsFor(Path(QStringLiteral("out.mp4"))), Pictures);
    const qint64 bytes = QFile(whole).size();
    ASSERT_TRUE(QFile::remove(whole));
    for (const qint64 missing : {2500, 1000, 1}) {
        ASSERT_GT(bytes, missing);
        ExpectNoticed(bytes - missing, Pictures, &FlatPicture);
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
    QString sentence;
    {
        const std::unique_ptr<KxMp4Writer> writer = Open(settings);
        sentence = AddPictures(*writer, 60, &BusyPicture).value_or(QString());
        if (sentence.isEmpty()) {
            sentence = writer->Finish().Sentence();
        }
    }
    const QStringList left = FilesIn(disk);
    QProcess::execute(QStringLiteral("umount"), {disk});
    EXPECT_EQ(sentence, QStringLiteral("Cannot write %1: the disk is full.").arg(settings.path));
    EXPECT_EQ(left, QStringList());
}

#endif
