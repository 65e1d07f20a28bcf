#include <KxRender/KxRenderSource.h>

#include <KxModel/IKxKeyFrameHelper.h>
#include <KxModel/IKxTimeline.h>

#include <gtest/gtest.h>

namespace
{

class KeyFrames final : public IKxCropPanZoomKeyFrameHelper
{
public:
    bool hasAny = true;

    void setKeyFrames(const QList<KxCropPanZoomKeyFrameParam>&) override {}
    bool interpolatedParam(qint64 frame, KxCropPanZoomKeyFrameParam* out) const override
    {
        if (hasAny) {
            out->cropRect = QRectF(0.001 * static_cast<double>(frame), 0.1, 0.3, 0.9);
        }
        return hasAny;
    }
};

class Clip final : public IKxClip
{
public:
    QString path = QStringLiteral("/media/clip.mp4");
    KeyFrames keyFrames;

    QString filePath() const override { return path; }
    const IKxMediaInfo* mediaInfo() const override { return nullptr; }
    IKxKeyFrameHelper* keyFrameHelper(int kind) override
    {
        return kind == IKxKeyFrameHelper::CropPanZoom ? &keyFrames : nullptr;
    }
};

class Timeline final : public IKxTimeline
{
public:
    Clip clip;
    bool isEmpty = false;

    QList<IKxClip*> clips() const override
    {
        return isEmpty ? QList<IKxClip*>() : QList<IKxClip*>{const_cast<Clip*>(&clip)};
    }
    KxProjectSettings projectSettings() const override { return {}; }
    void setProjectSettings(const KxProjectSettings&) override {}
    qint64 duration() const override { return 40; }
};

void ExpectNear(const QRectF& a, const QRectF& b)
{
    EXPECT_NEAR(a.x(), b.x(), 1e-9);
    EXPECT_NEAR(a.y(), b.y(), 1e-9);
    EXPECT_NEAR(a.width(), b.width(), 1e-9);
    EXPECT_NEAR(a.height(), b.height(), 1e-9);
}

} // namespace

TEST(KxRenderSource, TakesTheFileAndTheCropOfEveryFrame)
{
    KxResult<KxRenderSource> source = KxResult<KxRenderSource>::Failure({});
    {
        Timeline timeline;
        source = KxRenderSource::FromTimeline(timeline);
    }
    ASSERT_TRUE(source);
    EXPECT_EQ(source->path, QStringLiteral("/media/clip.mp4"));
    EXPECT_FALSE(source->audioStream);
    ASSERT_NE(source->crops, nullptr);
    EXPECT_EQ(source->crops->size(), 40U);
    for (qint64 frame = 0; frame < 40; ++frame) {
        ExpectNear(source->CropAt(frame, {320, 180}, {90, 160}),
                   QRectF(0.001 * static_cast<double>(frame), 0.1, 0.3, 0.9));
    }
    ExpectNear(source->CropAt(1000, {320, 180}, {90, 160}), QRectF(0.039, 0.1, 0.3, 0.9));
}

TEST(KxRenderSource, UsesTheCentralWindowWithoutKeyframes)
{
    Timeline timeline;
    timeline.clip.keyFrames.hasAny = false;
    const KxResult<KxRenderSource> source = KxRenderSource::FromTimeline(timeline);
    ASSERT_TRUE(source);
    EXPECT_EQ(source->crops, nullptr);
    ExpectNear(source->CropAt(0, {320, 180}, {180, 320}), QRectF(0.341796875, 0, 0.31640625, 1));
    ExpectNear(source->CropAt(0, {180, 320}, {160, 90}), QRectF(0, 0.341796875, 1, 0.31640625));
    ExpectNear(source->CropAt(0, {320, 180}, {160, 90}), QRectF(0, 0, 1, 1));
}

TEST(KxRenderSource, RefusesATimelineWithoutAFile)
{
    Timeline timeline;
    timeline.clip.path.clear();
    EXPECT_EQ(KxRenderSource::FromTimeline(timeline).Message(),
              QStringLiteral("Cannot render the timeline: it shows no file."));
    timeline.isEmpty = true;
    EXPECT_FALSE(KxRenderSource::FromTimeline(timeline));
}
