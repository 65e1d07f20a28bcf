#include <KxModel/KxCropKeyFrames.h>

#include <gtest/gtest.h>

#include <thread>

namespace
{

KxCropPanZoomKeyFrameParam Key(qint64 frame, const QRectF& rect)
{
    KxCropPanZoomKeyFrameParam key;
    key.frame = frame;
    key.kind = KxCropPanZoomKeyFrameParam::Linear;
    key.cropRect = rect;
    return key;
}

QRectF RectAt(const KxCropKeyFrames& keyFrames, qint64 frame)
{
    KxCropPanZoomKeyFrameParam param;
    EXPECT_TRUE(keyFrames.interpolatedParam(frame, &param));
    EXPECT_EQ(param.frame, frame);
    return param.cropRect;
}

} // namespace

TEST(KxCropKeyFrames, WithoutKeyframesThereIsNothingToInterpolate)
{
    const KxCropKeyFrames keyFrames;
    KxCropPanZoomKeyFrameParam param = Key(7, QRectF(0.1, 0.2, 0.3, 0.4));
    EXPECT_FALSE(keyFrames.interpolatedParam(3, &param));
    EXPECT_EQ(param.frame, 7);
    EXPECT_EQ(param.cropRect, QRectF(0.1, 0.2, 0.3, 0.4));
}

TEST(KxCropKeyFrames, MovesLinearlyBetweenNeighbours)
{
    KxCropKeyFrames keyFrames;
    keyFrames.setKeyFrames({Key(10, QRectF(0.0, 0.2, 0.4, 1.0)), Key(20, QRectF(0.5, 0.0, 0.2, 0.8)),
                            Key(30, QRectF(0.5, 0.0, 0.2, 0.8))});
    EXPECT_EQ(RectAt(keyFrames, 10), QRectF(0.0, 0.2, 0.4, 1.0));
    EXPECT_EQ(RectAt(keyFrames, 15), QRectF(0.25, 0.1, 0.3, 0.9));
    EXPECT_EQ(RectAt(keyFrames, 11), QRectF(0.05, 0.18, 0.38, 0.98));
    EXPECT_EQ(RectAt(keyFrames, 20), QRectF(0.5, 0.0, 0.2, 0.8));
    EXPECT_EQ(RectAt(keyFrames, 25), QRectF(0.5, 0.0, 0.2, 0.8));
}

TEST(KxCropKeyFrames, HoldsTheFirstAndTheLastOutside)
{
    KxCropKeyFrames keyFrames;
    keyFrames.setKeyFrames({Key(10, QRectF(0.1, 0.0, 0.4, 1.0)), Key(20, QRectF(0.5, 0.0, 0.4, 1.0))});
    EXPECT_EQ(RectAt(keyFrames, 0), QRectF(0.1, 0.0, 0.4, 1.0));
    EXPECT_EQ(RectAt(keyFrames, -5), QRectF(0.1, 0.0, 0.4, 1.0));
    EXPECT_EQ(RectAt(keyFrames, 21), QRectF(0.5, 0.0, 0.4, 1.0));
    EXPECT_EQ(RectAt(keyFrames, 1000000), QRectF(0.5, 0.0, 0.4, 1.0));
}

TEST(KxCropKeyFrames, TheOrderOfCallsChangesNoResult)
{
    KxCropKeyFrames keyFrames;
    QList<KxCropPanZoomKeyFrameParam> keys;
    for (const qint64 frame : {5, 6, 9, 20, 21, 22, 50}) {
        keys += Key(frame, QRectF(static_cast<double>(frame % 7) / 10.0, 0.0, 0.3, 1.0));
    }
    keyFrames.setKeyFrames(keys);
    for (const int step : {1, -1, 7, 13, 29}) {
        for (int i = 0, frame = 0; i < 60; ++i, frame = (frame + step + 60) % 60) {
            KxCropPanZoomKeyFrameParam expected;
            ASSERT_TRUE(KxCropKeyFrames::Interpolate(keys, frame, &expected));
            EXPECT_EQ(RectAt(keyFrames, frame), expected.cropRect) << frame;
        }
    }
    keyFrames.setKeyFrames(keys.mid(0, 2)); // fewer than had been passed
    EXPECT_EQ(RectAt(keyFrames, 59), keys.at(1).cropRect);
}

TEST(KxCropKeyFrames, SettingReplacesAll)
{
    KxCropKeyFrames keyFrames;
    keyFrames.setKeyFrames({Key(0, QRectF(0.1, 0.0, 0.4, 1.0)), Key(5, QRectF(0.2, 0.0, 0.4, 1.0))});
    keyFrames.setKeyFrames({Key(3, QRectF(0.3, 0.0, 0.4, 1.0))});
    EXPECT_EQ(keyFrames.KeyFrames().size(), 1);
    EXPECT_EQ(RectAt(keyFrames, 0), QRectF(0.3, 0.0, 0.4, 1.0));
}

TEST(KxCropKeyFrames, SettingSharesTheListAndReleasesThePreviousOne)
{
    KxCropKeyFrames keyFrames;
    QList<KxCropPanZoomKeyFrameParam> first{Key(0, QRectF(0.1, 0.0, 0.4, 1.0))};
    QList<KxCropPanZoomKeyFrameParam> second{Key(0, QRectF(0.2, 0.0, 0.4, 1.0))};
    keyFrames.setKeyFrames(first);
    EXPECT_FALSE(first.isDetached()) << "an edit that copied the list would cost as much as the clip is long";
    keyFrames.setKeyFrames(second);
    EXPECT_TRUE(first.isDetached()) << "the caller may write to it without a copy";
    EXPECT_FALSE(second.isDetached());
}

TEST(KxCropKeyFrames, EachReadSeesAConsistentStateOfTheKeyframes)
{
    KxCropKeyFrames keyFrames;
    keyFrames.setKeyFrames({Key(0, QRectF(0.0, 0.0, 0.5, 1.0)), Key(10, QRectF(0.0, 0.0, 0.5, 1.0))});
    std::thread writer([&] {
        for (int i = 0; i < 2000; ++i) {
            const double x = i % 2 == 0 ? 0.5 : 0.0;
            keyFrames.setKeyFrames({Key(0, QRectF(x, 0.0, 0.5, 1.0)), Key(10, QRectF(x, 0.0, 0.5, 1.0))});
        }
    });
    for (int i = 0; i < 2000; ++i) {
        const double x = RectAt(keyFrames, 5).x();
        EXPECT_TRUE(x == 0.0 || x == 0.5) << x;
    }
    writer.join();
}
