#include <Tests/KxPlayer/PlayerClip.h>

#include <KxModel/IKxKeyFrameHelper.h>
#include <KxModel/IKxTimeline.h>

#include <gtest/gtest.h>

namespace
{

KxCropPanZoomKeyFrameParam Key(int frame, const QRectF& crop)
{
    KxCropPanZoomKeyFrameParam param;
    param.frame = frame;
    param.cropRect = crop;
    return param;
}

/// A timeline of given clips and length.
class ScriptedTimeline final : public IKxTimeline
{
public:
    ScriptedTimeline(QList<IKxClip*> clips, qint64 duration)
        : m_clips(std::move(clips))
        , m_duration(duration)
    {
    }
    QList<IKxClip*> clips() const override { return m_clips; }
    KxProjectSettings projectSettings() const override { return {}; }
    void setProjectSettings(const KxProjectSettings&) override {}
    qint64 duration() const override { return m_duration; }

private:
    QList<IKxClip*> m_clips;
    qint64 m_duration;
};

} // namespace

TEST(KxPlaySource, ATimelineWithoutClipsOrFramesIsNoSource)
{
    const PlayerClip::Timeline timeline = PlayerClip::Open(PlayerClip::Numbered());
    EXPECT_EQ(KxPlaySource::Of(ScriptedTimeline({}, 10)), nullptr);
    EXPECT_EQ(KxPlaySource::Of(ScriptedTimeline(timeline->clips(), 0)), nullptr);
    EXPECT_NE(KxPlaySource::Of(ScriptedTimeline(timeline->clips(), 1)), nullptr);
}

TEST(KxPlaySource, EveryFrameIsShownAtItsTimeAndNotBefore)
{
    for (const KxRational rate :
         {KxRational{25, 1}, KxRational{24000, 1001}, KxRational{30000, 1001}, KxRational{60, 1}}) {
        KxPlaySource source;
        source.frameRate = rate;
        // The last one is at ten hours.
        for (const int frame : {0, 1, 2, 3, 7, 100, 1001, 30001, 1080000}) {
            EXPECT_EQ(source.FrameAt(source.TimeUs(frame)), frame);
            if (frame > 0) {
                EXPECT_EQ(source.FrameAt(source.TimeUs(frame) - 1), frame - 1);
            }
        }
    }
}

TEST(KxPlaySource, WithoutKeyFramesTheTimelinesFormatIsTheShape)
{
    const PlayerClip::Timeline timeline = PlayerClip::Open(PlayerClip::Numbered());
    const auto source = KxPlaySource::Of(*timeline);
    ASSERT_TRUE(source);
    EXPECT_EQ(source->path, PlayerClip::Numbered());
    EXPECT_EQ(source->frameCount, PlayerClip::Frames);
    EXPECT_EQ(source->frameRate, (KxRational{25, 1}));
    EXPECT_FALSE(source->CropAt(0));
    EXPECT_FALSE(source->audioStream);
    EXPECT_EQ(source->ShapeAt(0, QSize(1, 1)), QSizeF(160, 96));
}

TEST(KxPlaySource, WithKeyFramesTheCropIsTheShape)
{
    const PlayerClip::Timeline timeline = PlayerClip::OpenMoving();
    const auto source = KxPlaySource::Of(*timeline);
    ASSERT_TRUE(source && source->CropAt(15));
    EXPECT_NEAR(source->CropAt(15)->x(), PlayerClip::NumberAt(15).x(), 1e-9);
    const QSizeF shape = source->ShapeAt(15, QSize(320, 180));
    EXPECT_NEAR(shape.width(), 100, 1e-6);
    EXPECT_NEAR(shape.height(), 60, 1e-6);
}

TEST(KxPlaySource, TheProjectsResolutionIsThatOfWholePictures)
{
    const PlayerClip::Timeline whole = PlayerClip::Open(PlayerClip::Moving());
    const PlayerClip::Timeline cropped = PlayerClip::OpenMoving();
    for (IKxTimeline* const timeline : {whole.get(), cropped.get()}) {
        KxProjectSettings settings = timeline->projectSettings();
        settings.resolution = QSize(600, 600);
        timeline->setProjectSettings(settings);
    }
    EXPECT_EQ(KxPlaySource::Of(*whole)->resolution, QSize(600, 600));
    EXPECT_EQ(KxPlaySource::Of(*cropped)->resolution, QSize(320, 180)) << "a crop is a part of the video's picture";
}

TEST(KxPlaySource, IsASnapshot)
{
    const PlayerClip::Timeline timeline = PlayerClip::OpenMoving();
    const auto source = KxPlaySource::Of(*timeline);
    IKxKeyFrameHelper* helper = timeline->clips().constFirst()->keyFrameHelper(IKxKeyFrameHelper::CropPanZoom);
    dynamic_cast<IKxCropPanZoomKeyFrameHelper&>(*helper).setKeyFrames({});
    EXPECT_TRUE(source->CropAt(0));
    EXPECT_FALSE(KxPlaySource::Of(*timeline)->CropAt(0));
}

TEST(KxPlaySource, ACropStaysInsideThePicture)
{
    KxPlaySource source;
    source.cropKeyFrames = {Key(0, QRectF(-0.5, 0.9, 0.4, 0.4)), Key(1, QRectF(0.2, 0.2, 0, 7)),
                            Key(2, QRectF(0.9, -0.5, 0.4, 0.4))};
    EXPECT_NEAR(source.CropAt(0)->x(), 0.0, 1e-12);
    EXPECT_NEAR(source.CropAt(0)->y(), 0.6, 1e-12);
    EXPECT_GT(source.CropAt(1)->width(), 0);
    EXPECT_LE(source.CropAt(1)->bottom(), 1.0);
    EXPECT_NEAR(source.CropAt(2)->x(), 0.6, 1e-12);
    EXPECT_NEAR(source.CropAt(2)->y(), 0.0, 1e-12);
    EXPECT_NEAR(source.CropAt(2)->right(), 1.0, 1e-12);
}

TEST(KxPlaySource, KnowsTheAudioStreamThatPlays)
{
    const auto source = PlayerClip::Source(PlayerClip::WithSound());
    ASSERT_TRUE(source);
    EXPECT_EQ(source->audioStream, 0);
}
