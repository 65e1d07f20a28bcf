#include <Tests/KxEditList/CroppedClips.h>

#include <KxEditList/KxPlacementKeys.h>

#include <KxCore/KxCropWindow.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

std::vector<qint64> FramesOf(const std::vector<KxPlacementKey>& keys)
{
    std::vector<qint64> frames;
    for (const KxPlacementKey& key : keys) {
        frames.push_back(key.frame);
    }
    return frames;
}

bool HasKeyAt(const std::vector<KxPlacementKey>& keys, qint64 frame)
{
    const std::vector<qint64> frames = FramesOf(keys);
    return std::binary_search(frames.begin(), frames.end(), frame);
}

QRectF Between(const QRectF& a, const QRectF& b, double share)
{
    return {a.x() + (b.x() - a.x()) * share, a.y() + (b.y() - a.y()) * share,
            a.width() + (b.width() - a.width()) * share, a.height() + (b.height() - a.height()) * share};
}

/// The crop in pixels that a program shows which moves the picture linearly between the keys.
QRectF ShownAt(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys, qint64 frame)
{
    std::size_t next = 0;
    while (keys[next].frame < frame) {
        ++next;
    }
    if (keys[next].frame == frame) {
        return KxPlacementKeys::CropOf(clip, keys[next].place);
    }
    const KxPlacementKey& before = keys[next - 1];
    const double share =
        static_cast<double>(frame - before.frame) / static_cast<double>(keys[next].frame - before.frame);
    return KxPlacementKeys::CropOf(clip, before.holds ? before.place : Between(before.place, keys[next].place, share));
}

void ExpectNear(const QRectF& a, const QRectF& b, double tolerance, qint64 frame)
{
    EXPECT_NEAR(a.left(), b.left(), tolerance) << "frame " << frame;
    EXPECT_NEAR(a.top(), b.top(), tolerance) << "frame " << frame;
    EXPECT_NEAR(a.width(), b.width(), 2.0 * tolerance) << "frame " << frame;
    EXPECT_NEAR(a.height(), b.height(), 2.0 * tolerance) << "frame " << frame;
}

void ExpectAllFramesNear(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys)
{
    for (qint64 frame = 0; frame < clip.FrameCount(); ++frame) {
        ExpectNear(ShownAt(clip, keys, frame),
                   KxCropWindow::Pixels(clip.crops[static_cast<std::size_t>(frame)], clip.size),
                   KxPlacementKeys::TolerancePx + 1e-3, frame);
    }
}

void ExpectFewKeysShowEveryFrame(const KxCroppedClip& clip)
{
    const std::vector<KxPlacementKey> keys = KxPlacementKeys::Of(clip);
    ExpectAllFramesNear(clip, keys);
    EXPECT_LE(keys.size(), clip.crops.size() * 15 / 100);
}

} // namespace

TEST(KxPlacementKeysTest, TheWholePictureIsPlacedSoThatTheCropFillsTheOutput)
{
    const KxCroppedClip clip = CroppedClips::Pan();
    const QRectF place = KxPlacementKeys::PlaceOf(clip, QRectF(0.25, 0.0, 607.5 / 1920.0, 1.0));
    const double wider = 608.0 / 607.5; // the odd width is stretched to an even one
    ExpectNear(place, QRectF(-480.0 * wider, 0.0, 1920.0 * wider, 1080.0), 1e-3, 0);
}

TEST(KxPlacementKeysTest, AWholePictureIsFittedWhereItMustNotBeStretched)
{
    KxCroppedClip clip = CroppedClips::Pan();
    clip.fitsOtherShapes = true;
    ExpectNear(KxPlacementKeys::PlaceOf(clip, QRectF(0.0, 0.0, 1.0, 1.0)), QRectF(0.0, 369.0, 608.0, 342.0), 1e-9, 0);
    clip.fitsOtherShapes = false;
    ExpectNear(KxPlacementKeys::PlaceOf(clip, QRectF(0.0, 0.0, 1.0, 1.0)), QRectF(0.0, 0.0, 608.0, 1080.0), 1e-9, 0);
}

TEST(KxPlacementKeysTest, CropAndPlaceAreTheSameWindow)
{
    const KxCroppedClip clip = CroppedClips::Pan();
    const QRectF crop(0.3, 0.2, 0.2, 0.5);
    ExpectNear(KxPlacementKeys::CropOf(clip, KxPlacementKeys::PlaceOf(clip, crop)),
               KxCropWindow::Pixels(crop, clip.size), 1e-9, 0);
}

TEST(KxPlacementKeysTest, FewKeysShowEveryFrameWithinTheTolerance)
{
    ExpectFewKeysShowEveryFrame(CroppedClips::Pan());
}

TEST(KxPlacementKeysTest, AnEvenPanHasItsEndsAlone)
{
    KxCroppedClip clip = CroppedClips::Pan();
    clip.crops.resize(60);
    clip.shotStarts = {0};
    EXPECT_EQ(FramesOf(KxPlacementKeys::Of(clip)), (std::vector<qint64>{0, 59}));
}

TEST(KxPlacementKeysTest, ACutHasAKeyOnBothSidesAndTheFirstHolds)
{
    const std::vector<KxPlacementKey> keys = KxPlacementKeys::Of(CroppedClips::Pan());
    ASSERT_TRUE(HasKeyAt(keys, 149));
    ASSERT_TRUE(HasKeyAt(keys, 150));
    for (const KxPlacementKey& key : keys) {
        EXPECT_EQ(key.holds, key.frame == 149) << "frame " << key.frame;
    }
}

TEST(KxPlacementKeysTest, AnUnknownCutIsFoundByItsJump)
{
    KxCroppedClip clip = CroppedClips::Pan();
    clip.shotStarts.clear();
    const std::vector<KxPlacementKey> keys = KxPlacementKeys::Of(clip);
    EXPECT_TRUE(HasKeyAt(keys, 149));
    EXPECT_TRUE(HasKeyAt(keys, 150));
    ExpectAllFramesNear(clip, keys);
}

TEST(KxPlacementKeysTest, EveryEditHasAKey)
{
    KxCroppedClip clip = CroppedClips::Pan();
    clip.edits = {17, 170, 5000};
    const std::vector<KxPlacementKey> keys = KxPlacementKeys::Of(clip);
    EXPECT_TRUE(HasKeyAt(keys, 17));
    EXPECT_TRUE(HasKeyAt(keys, 170));
    EXPECT_EQ(keys.back().frame, clip.FrameCount() - 1);
}

TEST(KxPlacementKeysTest, AZoomStaysWithinTheToleranceAsWell)
{
    KxCroppedClip clip = CroppedClips::Pan();
    for (std::size_t frame = 0; frame < 150; ++frame) {
        const double width = 607.5 / 1920.0 * (1.0 - 0.003 * static_cast<double>(frame));
        clip.crops[frame] = QRectF(0.2, 0.1, width, width * 1920.0 * 16.0 / 9.0 / 1080.0);
    }
    ExpectFewKeysShowEveryFrame(clip);
}

TEST(KxPlacementKeysTest, OneFrameHasOneKey)
{
    KxCroppedClip clip = CroppedClips::Pan();
    clip.crops.resize(1);
    EXPECT_EQ(FramesOf(KxPlacementKeys::Of(clip)), std::vector<qint64>{0});
}
