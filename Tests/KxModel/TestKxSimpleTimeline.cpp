#include <KxModel/KxSimpleTimeline.h>

#include <gtest/gtest.h>

namespace
{

std::shared_ptr<const KxMediaFacts> Facts()
{
    KxMediaFacts facts;
    facts.path = QStringLiteral("/videos/walk.mp4");
    KxVideoFacts video;
    video.resolution = QSize(1920, 1080);
    video.frameRate = {30000, 1001};
    video.frameCount = 250;
    video.bitRate = 5000000000LL;
    facts.video = video;
    facts.audio = {KxAudioFacts{48000, 2, 128000, QStringLiteral("aac")},
                   KxAudioFacts{44100, 1, 64000, QStringLiteral("aac")}};
    facts.defaultAudio = 1;
    return std::make_shared<const KxMediaFacts>(facts);
}

struct Release {
    void operator()(IKxTimeline* timeline) const { IKxTimeline::releaseInstance(timeline); }
};
using TimelinePointer = std::unique_ptr<IKxTimeline, Release>;

IKxCropPanZoomKeyFrameHelper* KeyFramesOf(const TimelinePointer& timeline)
{
    return dynamic_cast<IKxCropPanZoomKeyFrameHelper*>(timeline->clips().first()->keyFrameHelper(3));
}

QList<KxCropPanZoomKeyFrameParam> OneKeyFrame(double x)
{
    KxCropPanZoomKeyFrameParam key;
    key.cropRect = QRectF(x, 0.0, 0.3, 1.0);
    return {key};
}

double FirstX(const TimelinePointer& timeline)
{
    KxCropPanZoomKeyFrameParam param;
    return KeyFramesOf(timeline)->interpolatedParam(0, &param) ? param.cropRect.x() : -1.0;
}

} // namespace

TEST(KxSimpleTimeline, StartsInTheFormatOfItsClip)
{
    KxClip clip(Facts());
    const TimelinePointer timeline(IKxTimeline::createSimpleTimeline(&clip));
    ASSERT_NE(timeline, nullptr);
    EXPECT_EQ(timeline->projectSettings().resolution, QSize(1920, 1080));
    EXPECT_EQ(timeline->projectSettings().frameRateType, KxProjectFrameRateType::Fps29_97);
    EXPECT_EQ(timeline->projectSettings().aspectRatioType, KxProjectAspectRatio16x9);
    EXPECT_EQ(timeline->duration(), 250);
    ASSERT_EQ(timeline->clips().size(), 1);
    EXPECT_EQ(timeline->clips().first()->filePath(), QStringLiteral("/videos/walk.mp4"));
}

TEST(KxSimpleTimeline, RemainsValidWithoutTheClipItWasBuiltFrom)
{
    auto clip = std::make_unique<KxClip>(Facts());
    const TimelinePointer timeline(IKxTimeline::createSimpleTimeline(clip.get()));
    clip.reset();
    const auto* const video = dynamic_cast<const IKxVideoMediaInfo*>(timeline->clips().first()->mediaInfo());
    ASSERT_NE(video, nullptr);
    EXPECT_EQ(video->frameCount(), 250);
    EXPECT_EQ(video->frameRate(), (KxRational{30000, 1001}));
}

TEST(KxSimpleTimeline, ACloneHasItsOwnFormatAndKeyframes)
{
    KxClip clip(Facts());
    const TimelinePointer original(IKxTimeline::createSimpleTimeline(&clip));
    KeyFramesOf(original)->setKeyFrames(OneKeyFrame(0.1));
    const TimelinePointer copy(IKxTimeline::clone(original.get(), false));
    EXPECT_DOUBLE_EQ(FirstX(copy), 0.1);

    KeyFramesOf(copy)->setKeyFrames(OneKeyFrame(0.4));
    KxProjectSettings settings = copy->projectSettings();
    settings.resolution = QSize(608, 1080);
    copy->setProjectSettings(settings);
    EXPECT_DOUBLE_EQ(FirstX(original), 0.1);
    EXPECT_EQ(original->projectSettings().resolution, QSize(1920, 1080));
}

TEST(KxSimpleTimeline, ACloneMayShareTheKeyframes)
{
    KxClip clip(Facts());
    const TimelinePointer original(IKxTimeline::createSimpleTimeline(&clip));
    const TimelinePointer copy(IKxTimeline::clone(original.get(), true));
    KeyFramesOf(copy)->setKeyFrames(OneKeyFrame(0.4));
    EXPECT_DOUBLE_EQ(FirstX(original), 0.4);
}

TEST(KxSimpleTimeline, NullGivesNull)
{
    EXPECT_EQ(IKxTimeline::createSimpleTimeline(nullptr), nullptr);
    EXPECT_EQ(IKxTimeline::clone(nullptr, false), nullptr);
    IKxTimeline::releaseInstance(nullptr);
}

TEST(KxSimpleTimeline, AClipHasCropKeyframesAndNoOthers)
{
    KxClip clip(Facts());
    EXPECT_NE(clip.keyFrameHelper(3), nullptr);
    EXPECT_EQ(clip.keyFrameHelper(0), nullptr);
    EXPECT_EQ(clip.keyFrameHelper(4), nullptr);
}

TEST(KxSimpleTimeline, TheHostFreesTimelinesThatWereNotReleased)
{
    const std::shared_ptr<const KxMediaFacts> facts = Facts();
    KxClip clip(facts);
    const long before = facts.use_count();
    IKxTimeline* const released = IKxTimeline::createSimpleTimeline(&clip);
    IKxTimeline* const left = IKxTimeline::createSimpleTimeline(&clip);
    const TimelinePointer copy(IKxTimeline::clone(left, false));
    IKxTimeline::releaseInstance(released);
    const long withTwo = facts.use_count();
    ASSERT_GT(withTwo, before);

    KxSimpleTimeline::ReleaseAll();
    EXPECT_EQ(facts.use_count() - before, (withTwo - before) / 2) << "the caller still owns the copy";
    EXPECT_EQ(copy->duration(), 250);
    KxSimpleTimeline::ReleaseAll();
    EXPECT_EQ(copy->duration(), 250);
}

TEST(KxStreamInfo, GivesTheFactsOfBothKinds)
{
    const KxStreamInfo info(Facts());
    EXPECT_TRUE(info.hasVideoStream());
    EXPECT_TRUE(info.hasAudioStream());
    EXPECT_EQ(static_cast<const IKxVideoMediaInfo&>(info).bitRate(),
              2147483647); // a value that does not fit becomes the largest that does
    EXPECT_EQ(info.bitRate(0), 128000);
    EXPECT_EQ(info.bitRate(1), 64000);
    EXPECT_EQ(info.bitRate(2), 0);
    EXPECT_EQ(info.bitRate(-1), 0);
}

TEST(KxStreamInfo, AFileWithoutVideoHasNoFrames)
{
    const KxStreamInfo info(std::make_shared<const KxMediaFacts>());
    EXPECT_FALSE(info.hasVideoStream());
    EXPECT_FALSE(info.hasAudioStream());
    EXPECT_EQ(info.frameCount(), 0);
    EXPECT_EQ(info.frameRate().ToDouble(), 0.0);
}
