#include <KxRender/KxRenderer.h>

#include <KxMedia/Picture/KxFrameCutter.h>
#include <KxMedia/Read/KxMediaProbe.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <Tests/KxMedia/Picture/MadePicture.h>
#include <Tests/KxRender/RenderFixture.h>
#include <Tests/Support/MadeVideo.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include <cmath>
#include <numeric>

namespace
{

class KxRendererTest : public RenderFixture
{
protected:
    KxRenderResult Render(const KxRenderSource& source, const KxRenderSettings& settings)
    {
        m_progress.clear();
        return KxRenderer::Run(
            source, settings, [this](int value) { m_progress.push_back(value); }, m_cancel);
    }

    void ExpectFailure(const KxRenderResult& result, const QString& message)
    {
        EXPECT_EQ(result.outcome, KxOutcome::Failed);
        EXPECT_EQ(result.message, message);
        EXPECT_EQ(result.outputPath, QString());
        EXPECT_EQ(Written(), QStringList());
    }

    std::vector<int> m_progress;
    KxCancelToken m_cancel;
};

QStringList Beeps(const QString& expression)
{
    return {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
            QStringLiteral("aevalsrc='%1':s=48000:d=3").arg(expression)};
}

// A tone of 10 ms at the start of each second except the first.
QString EverySecond()
{
    return QStringLiteral("if(lt(mod(t,1),0.01)*gte(t,0.5),0.8*sin(2*PI*1000*t),0)");
}

// A texture that drifts from picture to picture, so that no two places and no two pictures are alike.
MadeVideo::Recipe Textured(int frames)
{
    MadeVideo::Recipe recipe;
    recipe.size = QSize(320, 180);
    recipe.frames = frames;
    recipe.output = QStringList{QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-pix_fmt"),
                                QStringLiteral("yuv420p")};
    recipe.draw = [](int number) {
        QImage picture(320, 180, QImage::Format_RGB888);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const int value = qBound(0, MadePicture::Texture(0, x + 5 * number, y + 3 * number), 255);
                picture.setPixel(x, y, qRgb(value, value, value));
            }
        }
        return picture;
    };
    return recipe;
}

std::vector<int> FromZero(int count)
{
    std::vector<int> numbers(static_cast<size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

} // namespace

TEST_F(KxRendererTest, CutsTheCropOfEachFrame)
{
    KxRenderSource source;
    source.path = Path(QStringLiteral("clip.mp4"));
    ASSERT_TRUE(MadeVideo::Make(source.path, Textured(60)));
    auto crops = std::make_shared<std::vector<QRectF>>();
    for (int frame = 0; frame < 60; ++frame) {
        crops->push_back(QRectF(0.002 + 0.0111 * frame, 0, 0.31640625, 1));
    }
    source.crops = crops;
    const KxRenderResult result = Render(source, SettingsFor(QSize(102, 180)));
    ASSERT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
    EXPECT_EQ(result.outputPath, Path(QStringLiteral("out.mp4")));
    EXPECT_EQ(result.warning, QString());
    const std::vector<KxVideoFrame> before = Pictures(source.path);
    const std::vector<KxVideoFrame> after = Pictures(result.outputPath);
    ASSERT_EQ(before.size(), 60U);
    ASSERT_EQ(after.size(), 60U);
    KxFrameCutter cutter(QSize(102, 180));
    for (size_t frame = 0; frame < 60; ++frame) {
        EXPECT_EQ(after[frame].DisplayedSize(), QSize(102, 180));
        const KxResult<KxVideoFrame> expected = cutter.Cut(before[frame], (*crops)[frame]);
        const KxResult<KxVideoFrame> neighbour = cutter.Cut(before[frame], (*crops)[frame == 0 ? 1 : frame - 1]);
        ASSERT_TRUE(expected && neighbour);
        const double match = MadePicture::Psnr(after[frame].Picture(), expected->Picture(), 0);
        EXPECT_GT(match, 33) << "frame " << frame;
        EXPECT_GT(match, MadePicture::Psnr(after[frame].Picture(), neighbour->Picture(), 0) + 3) << "frame " << frame;
    }
}

TEST_F(KxRendererTest, ReportsAscendingProgressUpToTheEnd)
{
    KxRenderSource source = MakeClip(50);
    ASSERT_EQ(Render(source, SettingsFor(QSize(64, 36))).outcome, KxOutcome::Done);
    ASSERT_GE(m_progress.size(), 50U);
    for (size_t i = 1; i < m_progress.size(); ++i) {
        EXPECT_GT(m_progress[i], m_progress[i - 1]);
    }
    EXPECT_EQ(m_progress.back(), 10000);
    EXPECT_EQ(m_progress[m_progress.size() - 2], 9999) << "all frames are written, the file is not complete";
}

TEST_F(KxRendererTest, KeepsTheRateOfTheSourceExactly)
{
    KxRenderSource source = MakeClip(48, QStringLiteral("24000/1001"));
    source.crops = WholePicture();
    KxRenderSettings settings = SettingsFor(QSize(160, 90));
    for (const double rate : {0.0, 23.97}) {
        settings.existing = KxOutputFile::Existing::Replace;
        settings.frameRate = rate;
        const KxRenderResult result = Render(source, settings);
        ASSERT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
        EXPECT_EQ(Numbers(result.outputPath), FromZero(48));
        const KxResult<KxMediaFacts> facts = KxProbeMedia(result.outputPath, KxCancelToken());
        ASSERT_TRUE(facts && facts->video);
        EXPECT_EQ(facts->video->frameRate.numerator, 24000);
        EXPECT_EQ(facts->video->frameRate.denominator, 1001);
    }
}

TEST_F(KxRendererTest, ShowsTheFrameOfTheSameTimeAtAnotherRate)
{
    KxRenderSource source = MakeClip(50);
    source.crops = WholePicture();
    KxRenderSettings settings = SettingsFor(QSize(160, 90));
    settings.existing = KxOutputFile::Existing::Replace;
    for (const double rate : {10.0, 30.0, 60.0}) {
        settings.frameRate = rate;
        const KxRenderResult result = Render(source, settings);
        ASSERT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
        const std::vector<int> numbers = Numbers(result.outputPath);
        ASSERT_EQ(numbers.size(), static_cast<size_t>(2 * rate));
        for (size_t frame = 0; frame < numbers.size(); ++frame) {
            EXPECT_EQ(numbers[frame], static_cast<int>(static_cast<double>(frame) * 25 / rate)) << rate;
        }
    }
}

TEST_F(KxRendererTest, RendersARotatedSourceUpright)
{
    KxRenderSource source = MakeClip(12);
    const QString lying = Path(QStringLiteral("clip.lying.mp4"));
    const QString turned = Path(QStringLiteral("clip.turned.mp4"));
    ASSERT_TRUE(MadeVideo::RunFfmpeg(
        {QStringLiteral("-i"), source.path, QStringLiteral("-vf"), QStringLiteral("transpose=cclock"), lying}));
    ASSERT_TRUE(MadeVideo::RunFfmpeg({QStringLiteral("-i"), lying, QStringLiteral("-c"), QStringLiteral("copy"),
                                      QStringLiteral("-metadata:s:v"), QStringLiteral("rotate=270"), turned}));
    source.path = turned;
    source.crops = WholePicture();
    const KxRenderResult result = Render(source, SettingsFor(QSize(160, 90)));
    ASSERT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
    EXPECT_EQ(Numbers(result.outputPath), FromZero(12));
}

TEST_F(KxRendererTest, MakesAnOddResolutionOnePixelLarger)
{
    const KxRenderSource source = MakeClip(5);
    const KxRenderResult result = Render(source, SettingsFor(QSize(101, 179)));
    ASSERT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
    EXPECT_EQ(Pictures(result.outputPath).front().DisplayedSize(), QSize(102, 180));
}

TEST_F(KxRendererTest, RefusesImpossibleResolutionsAndRates)
{
    const KxRenderSource source = MakeClip(5);
    const QString path = Path(QStringLiteral("out.mp4"));
    ExpectFailure(Render(source, SettingsFor(QSize(0, 90))),
                  QStringLiteral("Cannot write %1: a resolution of 0 x 90 is not possible.").arg(path));
    ExpectFailure(Render(source, SettingsFor(QSize(90, 20000))),
                  QStringLiteral("Cannot write %1: a resolution of 90 x 20000 is not possible.").arg(path));
    KxRenderSettings settings = SettingsFor(QSize(64, 36));
    settings.frameRate = -25;
    ExpectFailure(Render(source, settings),
                  QStringLiteral("Cannot write %1: -25 frames a second are not possible.").arg(path));
}

TEST_F(KxRendererTest, KeepsSoundAndPictureInSync)
{
    MadeVideo::Recipe recipe;
    recipe.size = QSize(320, 180);
    recipe.frames = 75;
    recipe.inputs = Beeps(EverySecond());
    recipe.output =
        QStringList{QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-c:a"), QStringLiteral("aac")};
    recipe.draw = [](int number) {
        QImage picture(320, 180, QImage::Format_RGB888);
        picture.fill(number % 25 == 0 && number > 0 ? Qt::white : Qt::black);
        return picture;
    };
    KxRenderSource source;
    source.path = Path(QStringLiteral("clip.mp4"));
    ASSERT_TRUE(MadeVideo::Make(source.path, recipe));
    const KxRenderResult result = Render(source, SettingsFor(QSize(90, 160)));
    ASSERT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
    std::vector<double> flashes;
    const std::vector<KxVideoFrame> pictures = Pictures(result.outputPath);
    for (size_t frame = 0; frame < pictures.size(); ++frame) {
        if (MadePicture::Mean(pictures[frame].Picture(), 0) > 128) {
            flashes.push_back(static_cast<double>(frame) / 25);
        }
    }
    const std::vector<double> beeps = SoundTimes(result.outputPath);
    ASSERT_EQ(flashes, (std::vector<double>{1.0, 2.0}));
    ASSERT_EQ(beeps.size(), 2U);
    EXPECT_NEAR(beeps[0], flashes[0], 0.010);
    EXPECT_NEAR(beeps[1], flashes[1], 0.010);
}

TEST_F(KxRendererTest, KeepsTheOffsetOfLateSound)
{
    const KxRenderSource source =
        MakeClip(75, QStringLiteral("25"),
                 QStringList{QStringLiteral("-itsoffset"), QStringLiteral("0.4")} + Beeps(EverySecond()));
    const KxRenderResult result = Render(source, SettingsFor(QSize(90, 160)));
    ASSERT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
    const std::vector<double> beeps = SoundTimes(result.outputPath);
    ASSERT_EQ(beeps.size(), 2U);
    EXPECT_NEAR(beeps[0], 1.4, 0.010);
    EXPECT_NEAR(beeps[1], 2.4, 0.010);
}

TEST_F(KxRendererTest, EndsTheSoundWithTheLastPicture)
{
    const KxRenderSource source = MakeClip(30, QStringLiteral("25"), Beeps(EverySecond()));
    const KxRenderResult result = Render(source, SettingsFor(QSize(90, 160)));
    ASSERT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
    EXPECT_EQ(Pictures(result.outputPath).size(), 30U);
    EXPECT_NEAR(SoundEnd(result.outputPath), 1.2, 0.025);
}

TEST_F(KxRendererTest, UsesTheSelectedAudioStream)
{
    KxRenderSource source = MakeClip(50, QStringLiteral("25"),
                                     Beeps(EverySecond()) + Beeps(QStringLiteral("if(between(t,1.5,1.51),0.8,0)")),
                                     {QStringLiteral("-map"), QStringLiteral("0"), QStringLiteral("-map"),
                                      QStringLiteral("1"), QStringLiteral("-map"), QStringLiteral("2")});
    source.audioStream = 1;
    const KxRenderResult result = Render(source, SettingsFor(QSize(90, 160)));
    ASSERT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
    const std::vector<double> beeps = SoundTimes(result.outputPath);
    ASSERT_EQ(beeps.size(), 1U);
    EXPECT_NEAR(beeps[0], 1.5, 0.010);
}

TEST_F(KxRendererTest, KeepsAnExistingFileOfTheSameName)
{
    const KxRenderSource source = MakeClip(5);
    const KxRenderSettings settings = SettingsFor(QSize(64, 36));
    EXPECT_EQ(Render(source, settings).outputPath, Path(QStringLiteral("out.mp4")));
    EXPECT_EQ(Render(source, settings).outputPath, Path(QStringLiteral("out (2).mp4")));
    EXPECT_EQ(Written(), (QStringList{QStringLiteral("out (2).mp4"), QStringLiteral("out.mp4")}));
}

TEST_F(KxRendererTest, NeverReplacesItsOwnSource)
{
    const KxRenderSource source = MakeClip(5);
    KxRenderSettings settings = SettingsFor(QSize(64, 36));
    settings.outputPath = source.path;
    settings.existing = KxOutputFile::Existing::Replace;
    ExpectFailure(Render(source, settings),
                  QStringLiteral("Cannot write %1: it is the very file that is rendered.").arg(source.path));
    EXPECT_EQ(Numbers(source.path), FromZero(5));
}

TEST_F(KxRendererTest, LeavesNoFileWhenCancelled)
{
    const KxRenderSource source = MakeClip(60);
    m_cancel.Cancel();
    EXPECT_EQ(Render(source, SettingsFor(QSize(90, 160))).outcome, KxOutcome::Cancelled);
    for (const int at : {100, 5000, 9990}) {
        KxCancelToken cancel;
        const KxRenderResult result = KxRenderer::Run(
            source, SettingsFor(QSize(90, 160)),
            [&](int value) {
                if (value >= at) {
                    cancel.Cancel();
                }
            },
            cancel);
        EXPECT_EQ(result.outcome, KxOutcome::Cancelled) << at;
        EXPECT_EQ(result.message, QString());
        EXPECT_EQ(Written(), QStringList());
    }
}

TEST_F(KxRendererTest, RefusesASourceThatIsNotAVideo)
{
    KxRenderSource source;
    source.path = Path(QStringLiteral("clip.none.mp4"));
    const KxRenderResult missing = Render(source, SettingsFor(QSize(90, 160)));
    EXPECT_EQ(missing.outcome, KxOutcome::Failed);
    EXPECT_TRUE(missing.message.contains(QStringLiteral("clip.none.mp4"))) << missing.message.toStdString();
    QFile text(source.path);
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no film at all");
    text.close();
    EXPECT_EQ(Render(source, SettingsFor(QSize(90, 160))).outcome, KxOutcome::Failed);
    EXPECT_EQ(Written(), QStringList());
}

TEST_F(KxRendererTest, NamesTheMissingFolder)
{
    const KxRenderSource source = MakeClip(5);
    KxRenderSettings settings = SettingsFor(QSize(64, 36));
    settings.outputPath = Path(QStringLiteral("none/out.mp4"));
    const KxRenderResult result = Render(source, settings);
    EXPECT_EQ(result.outcome, KxOutcome::Failed);
    EXPECT_TRUE(result.message.startsWith(QStringLiteral("Cannot write %1: the folder ").arg(settings.outputPath)))
        << result.message.toStdString();
}

TEST_F(KxRendererTest, RendersATruncatedFileUpToItsEnd)
{
    KxRenderSource source = MakeClip(
        75, QStringLiteral("25"), {},
        {QStringLiteral("-g"), QStringLiteral("10"), QStringLiteral("-movflags"), QStringLiteral("+faststart")});
    QFile file(source.path);
    ASSERT_TRUE(file.resize(file.size() * 6 / 10));
    source.crops = WholePicture();
    const KxRenderResult result = Render(source, SettingsFor(QSize(160, 90)));
    ASSERT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
    const std::vector<int> numbers = Numbers(result.outputPath);
    EXPECT_GT(numbers.size(), 25U);
    EXPECT_LT(numbers.size(), 70U);
    EXPECT_EQ(result.warning, QStringLiteral("%1 is damaged or incomplete: only %2 of 75 frames could be rendered.")
                                  .arg(QStringLiteral("clip.mp4"), QString::number(numbers.size())));
    for (size_t frame = 0; frame + 2 < numbers.size(); ++frame) {
        EXPECT_EQ(numbers[frame], static_cast<int>(frame));
    }
}

TEST_F(KxRendererTest, ReportsAFullDisk)
{
    KxRenderSource source;
    source.path = Path(QStringLiteral("clip.mp4"));
    ASSERT_TRUE(MadeVideo::Make(source.path, Textured(60)));
    const QString disk = Path(QStringLiteral("disk"));
    ASSERT_TRUE(QDir().mkdir(disk));
    QProcess mount;
    mount.start(QStringLiteral("mount"), {QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                                          QStringLiteral("size=16k"), QStringLiteral("tmpfs"), disk});
    if (!mount.waitForFinished() || mount.exitStatus() != QProcess::NormalExit || mount.exitCode() != 0) {
        GTEST_SKIP() << "no small disk can be mounted here";
    }
    KxRenderSettings settings = SettingsFor(QSize(90, 160));
    settings.outputPath = disk + QStringLiteral("/out.mp4");
    const KxRenderResult result = Render(source, settings);
    const QStringList left = QDir(disk).entryList(QDir::Files | QDir::Hidden);
    QProcess::execute(QStringLiteral("umount"), {disk});
    EXPECT_EQ(result.outcome, KxOutcome::Failed);
    EXPECT_EQ(result.message, QStringLiteral("Cannot write %1: the disk is full.").arg(settings.outputPath));
    EXPECT_EQ(left, QStringList());
}

TEST_F(KxRendererTest, DrawsTheOverlayOnTheWholePictureOfEachFrame)
{
    KxRenderSource source = MakeClip(12, QStringLiteral("25"),
                                     {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                      QStringLiteral("sine=frequency=440:duration=0.48")},
                                     {QStringLiteral("-c:a"), QStringLiteral("aac")});
    const QSize size(160, 90);
    std::vector<int> found;
    source.crops = WholePicture();
    source.overlay = [&found, size](QImage& picture, qint64 frame) {
        EXPECT_EQ(picture.size(), size);
        found.push_back(MadeVideo::ReadNumber(picture).value_or(-1));
        picture = MadeVideo::Draw(100 + static_cast<int>(frame), size).convertToFormat(QImage::Format_RGB32);
    };
    const KxRenderResult result = Render(source, SettingsFor(size));
    ASSERT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
    std::vector<int> before(12);
    std::iota(before.begin(), before.end(), 0);
    std::vector<int> after(12);
    std::iota(after.begin(), after.end(), 100);
    EXPECT_EQ(found, before);
    EXPECT_EQ(Numbers(result.outputPath), after);
    EXPECT_GT(SoundEnd(result.outputPath), 0.3);
}
