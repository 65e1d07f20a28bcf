#include <KxMedia/Read/KxAudioReader.h>
#include <KxMedia/Read/KxMediaProbe.h>
#include <KxMedia/Read/KxVideoScanner.h>
#include <KxModel/KxAutoReframeService.h>
#include <KxModel/KxMediaItem.h>
#include <KxModel/KxRecordStore.h>
#include <Tests/KxRender/RenderFixture.h>
#include <Tests/Support/FileOpenings.h>

#include <QDir>
#include <QFile>

namespace
{

class FileOpeningsTest : public RenderFixture
{
protected:
    KxRenderSource MakeSource()
    {
        KxRenderSource source = MakeClip(25, QStringLiteral("25"),
                                         {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                          QStringLiteral("sine=frequency=440:duration=1")},
                                         {QStringLiteral("-c:a"), QStringLiteral("aac")});
        FileOpenings::Reset();
        return source;
    }
    std::unique_ptr<KxVideoScanner> Opened() const
    {
        std::unique_ptr<KxVideoScanner> opened;
        EXPECT_TRUE(KxMediaItem::Open(m_clip, {}, opened));
        return opened;
    }
    /// The number of crops.
    int Analyse(std::unique_ptr<KxVideoScanner> opened) const
    {
        const auto analysis = KxVideoAnalysis::Open(m_clip, m_param, {}, {}, std::move(opened));
        EXPECT_TRUE(analysis) << qPrintable(analysis.Message());
        return analysis ? (*analysis)->Run([](int) {}).crops.size() : 0;
    }

    const QString m_clip = Path(QStringLiteral("clip.mp4"));
    const IKxAutoReframeParam m_param{16, QSize(9, 16)};
};

} // namespace

TEST_F(FileOpeningsTest, FactsTakeOneOpening)
{
    const KxRenderSource source = MakeSource();
    ASSERT_TRUE(KxProbeMedia(source.path, {}));
    EXPECT_EQ(FileOpenings::Count(), 1);
}

TEST_F(FileOpeningsTest, AnAnalysisTakesOneOpening)
{
    const KxRenderSource source = MakeSource();
    auto scanner = KxVideoScanner::Open(source.path, {});
    ASSERT_TRUE(scanner);
    KxVideoFrame picture;
    while ((*scanner)->Next(picture) == KxReadStatus::Delivered) {
    }
    EXPECT_EQ(FileOpenings::Count(), 1);
}

TEST_F(FileOpeningsTest, AnAnalysisOfALongSoundTakesOneMoreOpening)
{
    // As many packets as some minutes of AAC.
    MakeClip(25, QStringLiteral("25"),
             {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
              QStringLiteral("sine=frequency=440:sample_rate=48000:duration=6")},
             {QStringLiteral("-c:a"), QStringLiteral("flac"), QStringLiteral("-frame_size"), QStringLiteral("16"),
              QStringLiteral("-strict"), QStringLiteral("-2")});
    FileOpenings::Reset();
    const auto scanner = KxVideoScanner::Open(m_clip, {});
    ASSERT_TRUE(scanner);
    EXPECT_EQ(FileOpenings::Count(), 2);
    EXPECT_EQ((*scanner)->Facts().audio.size(), 1);
}

TEST_F(FileOpeningsTest, FactsAndAnAnalysisTakeOneOpening)
{
    MakeSource();
    EXPECT_EQ(Analyse(Opened()), 25);
    EXPECT_EQ(FileOpenings::Count(), 1);
}

TEST_F(FileOpeningsTest, AnAnalysisOpensAFileThatHasChangedSinceItsFactsWereRead)
{
    MakeSource();
    std::unique_ptr<KxVideoScanner> opened = Opened();
    MakeClip(40);
    EXPECT_EQ(Analyse(std::move(opened)), 40);
}

TEST_F(FileOpeningsTest, AnAnalysisReadsTheModelsWhenItRuns)
{
    MakeSource();
    KxAnalysisSettings settings;
    settings.records = std::make_shared<KxRecordStore>();
    settings.networkFolder = Path(QStringLiteral("models"));
    const auto analysis = KxVideoAnalysis::Open(m_clip, m_param, settings, {});
    ASSERT_TRUE(analysis);
    ASSERT_TRUE(QDir().mkpath(settings.networkFolder));
    QFile network(settings.networkFolder + QStringLiteral("/nanodet-g.onnx"));
    ASSERT_TRUE(network.open(QIODevice::WriteOnly));
    network.close();
    const QStringList warnings = (*analysis)->Run([](int) {}).warnings;
    ASSERT_EQ(warnings.size(), 1);
    EXPECT_TRUE(warnings.first().contains(QStringLiteral("nanodet-g.onnx"))) << qPrintable(warnings.first());
}

TEST_F(FileOpeningsTest, OnlyTheNextTaskTakesAnOpenVideo)
{
    MakeSource();
    std::vector<const KxVideoScanner*> taken;
    KxAutoReframeService service([&taken](const QString&, const IKxAutoReframeParam&, const KxAnalysisSettings&,
                                          const KxCancelToken&, const std::shared_ptr<KxVideoScanner>& opened) {
        taken.push_back(opened.get());
        return KxResult<std::unique_ptr<KxAnalysis>>::Failure(QStringLiteral("It was only opened."));
    });
    std::unique_ptr<KxVideoScanner> opened = Opened();
    const KxVideoScanner* const scanner = opened.get();
    service.Offer(std::move(opened));
    service.StartTask(m_clip, m_param);
    service.StartTask(m_clip, m_param);
    EXPECT_EQ(taken, (std::vector<const KxVideoScanner*>{scanner, nullptr}));
}

TEST_F(FileOpeningsTest, ARenderingTakesOneOpeningForPicturesAndOneForSound)
{
    const KxRenderSource source = MakeSource();
    const KxRenderResult result = KxRenderer::Run(source, SettingsFor(QSize(90, 160)), {}, {});
    EXPECT_EQ(FileOpenings::Count(), 2);
    ASSERT_EQ(result.outcome, KxOutcome::Done);
    EXPECT_GT(SoundEnd(result.outputPath), 0.9);
}

TEST_F(FileOpeningsTest, ARenderingClosesTheVideoBeforeTheIndexIsWritten)
{
    const KxRenderSource source = MakeClip(25);
    FileOpenings::Reset();
    const KxRenderResult result = KxRenderer::Run(source, SettingsFor(QSize(90, 160)), {}, {});
    ASSERT_EQ(result.outcome, KxOutcome::Done);
    EXPECT_EQ(FileOpenings::Count(), 1);
    EXPECT_EQ(FileOpenings::OpenWhenTheIndexWasWritten(), 0);
}
