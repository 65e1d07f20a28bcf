#include <Tests/KxMedia/Write/WrittenClips.h>

#include <cmath>
#include <limits>

using namespace WrittenClips;

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

TEST_F(KxMp4WriterTest, StreamsAreTagged)
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
    ASSERT_TRUE(path) << path.Message().toStdString();

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

TEST_F(KxMp4WriterTest, IndexPrecedesTheData)
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

// The encoder writes its settings into the stream.
TEST_F(KxMp4WriterTest, PeaksAreLimitedToTwiceTheBitRate)
{
    KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("peaks.mp4")));
    settings.videoBitRate = 600000;
    const QByteArray content = Content(WriteFlat(settings, 10));
    EXPECT_TRUE(content.contains(" vbv_maxrate=1200 "));
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

TEST_F(KxMp4WriterTest, MissingSoundLeavesAPlayableFile)
{
    KxMp4Writer::Settings settings = SettingsFor(Path(QStringLiteral("out.mp4")));
    settings.hasAudio = true;
    EXPECT_EQ(DecodedLuma(WriteFlat(settings, 20)).size(), 20U);
}

TEST_F(KxMp4WriterTest, NanSamplesBecomeSilence)
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
    ASSERT_TRUE(path) << path.Message().toStdString();
    EXPECT_EQ(HeardClicks(*path).size(), 1U);
}
