#include <KxSubject/Shots/KxShotDetector.h>

#include <Tests/KxSubject/Shots/ShotPictures.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>

using namespace ShotPictures;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

constexpr double FrameRate = 25.0;

std::vector<KxShotBoundary> Boundaries(int frames, const std::function<cv::Mat(int frame)>& draw, int step = 1)
{
    KxShotDetector detector(KxSubjectOptions().shots, KxSubjectOptions().bars);
    detector.Reserve(static_cast<std::size_t>(frames));
    for (int frame = 0; frame < frames; frame += step) {
        detector.AddPicture(frame, draw(frame));
    }
    return detector.Boundaries(FrameRate);
}

std::vector<std::int64_t> FramesOf(const std::vector<KxShotBoundary>& boundaries)
{
    std::vector<std::int64_t> frames;
    for (const KxShotBoundary& boundary : boundaries) {
        frames.push_back(boundary.frame);
    }
    return frames;
}

std::vector<std::int64_t> Cuts(int frames, const std::function<cv::Mat(int frame)>& draw, int step = 1)
{
    return FramesOf(Boundaries(frames, draw, step));
}

/// Pictures of shots that begin at these frames.
std::function<cv::Mat(int)> Shots(const std::vector<int>& starts)
{
    return [starts](int frame) {
        const auto shot = std::upper_bound(starts.begin(), starts.end(), frame) - starts.begin();
        return Shot(Scene(static_cast<std::uint64_t>(shot) + 1), frame);
    };
}

double Share(int frame, int length)
{
    return std::clamp((frame - 30.0) / length, 0.0, 1.0);
}

/// What is inside a part of the picture, between black bars.
cv::Mat Barred(const cv::Mat& picture, const cv::Rect& inside)
{
    cv::Mat barred = Plain(16.0);
    picture(inside).copyTo(barred(inside));
    return barred;
}

const cv::Rect Upright(Size.width * 7 / 20, 0, Size.width * 3 / 10, Size.height);
const cv::Rect Wide(0, Size.height * 3 / 10, Size.width, Size.height * 2 / 5);

void ExpectOne(const std::vector<KxShotBoundary>& found, KxShotBoundaryKind kind, double frame, double tolerance)
{
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0].kind, kind);
    EXPECT_NEAR(static_cast<double>(found[0].frame), frame, tolerance);
}

} // namespace

TEST(KxShotDetector, ACutIsOnItsFrame)
{
    const auto found = Boundaries(75, Shots({31, 52}));
    ASSERT_THAT(found, SizeIs(2));
    for (const KxShotBoundary& cut : found) {
        EXPECT_EQ(cut.kind, KxShotBoundaryKind::Cut);
        EXPECT_EQ(cut.first, cut.frame);
        EXPECT_EQ(cut.last, cut.frame);
    }
    EXPECT_EQ(found[0].frame, 31);
    EXPECT_EQ(found[1].frame, 52);
}

TEST(KxShotDetector, ACutBetweenMissingPicturesIsAtTheFirstOfTheNewShot)
{
    EXPECT_THAT(Cuts(90, Shots({44}), 3), ElementsAre(45));
}

TEST(KxShotDetector, ShotsOfFiveToTenFramesAreFound)
{
    EXPECT_THAT(Cuts(100, Shots({30, 35, 41, 48, 56, 65})), ElementsAre(30, 35, 41, 48, 56, 65));
}

TEST(KxShotDetector, Case8AShotOfExactlyTheMinimumLengthIsKeptAndAShorterOneIsNot)
{
    KxSubjectOptions::Shots options;
    options.minimumShotSeconds = 0.25;
    constexpr double rate = 32.0; // 8 frames, with no rounding
    const auto cuts = [&options](const std::vector<int>& starts) {
        KxShotDetector detector(options, KxSubjectOptions().bars);
        for (int frame = 0; frame < 90; ++frame) {
            detector.AddPicture(frame, Shots(starts)(frame));
        }
        return FramesOf(detector.Boundaries(rate));
    };
    EXPECT_THAT(cuts({40, 48}), ElementsAre(40, 48));
    EXPECT_THAT(cuts({40, 47}), SizeIs(1));
    EXPECT_THAT(cuts({8, 50}), ElementsAre(8, 50)) << "the first shot";
    EXPECT_THAT(cuts({7, 50}), ElementsAre(50));
}

TEST(KxShotDetector, AnInsertOfTenFramesHasTwoCuts)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    EXPECT_THAT(Cuts(75, [&](int frame) { return Shot(frame >= 30 && frame < 40 ? other : one, frame); }),
                ElementsAre(30, 40));
}

TEST(KxShotDetector, Case3AFastPanIsNotACut)
{
    const cv::Mat scene = Scene(3);
    EXPECT_THAT(Cuts(75, [&](int frame) { return MadePictures::View(scene, {frame * 15.0, 0.0}, Size); }), IsEmpty());
}

TEST(KxShotDetector, Case4AFlashIsNotACut)
{
    const cv::Mat scene = Scene(3);
    for (const int length : {1, 2, 3, 4, 5}) {
        for (const double light : {120.0, 255.0}) {
            EXPECT_THAT(Cuts(60,
                             [&](int frame) {
                                 cv::Mat picture = Shot(scene, frame);
                                 if (frame >= 30 && frame < 30 + length) {
                                     cv::add(picture, cv::Scalar::all(light), picture);
                                 }
                                 return picture;
                             }),
                        IsEmpty())
                << "flash of " << length << " by " << light;
        }
    }
}

TEST(KxShotDetector, Case4AFlashOnACutLeavesTheCut)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(5);
    const auto cuts = Cuts(60, [&](int frame) {
        return frame == 30 || frame == 31 ? Plain(255.0) : Shot(frame < 30 ? one : other, frame);
    });
    ASSERT_THAT(cuts, SizeIs(1));
    EXPECT_GE(cuts[0], 30);
    EXPECT_LE(cuts[0], 32);
}

TEST(KxShotDetector, Case5ALampThatIsTurnedOnIsNotACut)
{
    const cv::Mat scene = Scene(4);
    EXPECT_THAT(Cuts(60,
                     [&](int frame) {
                         cv::Mat picture;
                         Shot(scene, frame).convertTo(picture, CV_8UC3, frame < 30 ? 0.4 : 1.0, 0.0);
                         return picture;
                     }),
                IsEmpty());
}

TEST(KxShotDetector, Case6AnExplosionIsNotACut)
{
    const cv::Mat scene = Scene(5);
    EXPECT_THAT(Cuts(75,
                     [&](int frame) {
                         const cv::Mat picture = Shot(scene, frame);
                         const double fire = frame < 30 ? 0.0 : std::max(0.0, 1.0 - (frame - 30) / 15.0);
                         cv::Mat burning(Size, CV_8UC3, cv::Scalar(40, 160, 250));
                         return Mixed(picture, burning, fire);
                     }),
                IsEmpty());
}

TEST(KxShotDetector, Case7AShortDissolveIsOneBoundary)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    const auto found = Boundaries(75, [&](int frame) {
        return Mixed(Shot(one, frame), Shot(other, frame), std::clamp((frame - 30) / 4.0, 0.0, 1.0));
    });
    ExpectOne(found, KxShotBoundaryKind::Dissolve, 32.0, 1.0);
}

TEST(KxShotDetector, Case7AFadeOutThatEndsInACutIsACutOnItsFrame)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    const auto found = Boundaries(90, [&](int frame) {
        return frame < 50 ? Mixed(Shot(one, frame), Plain(0.0), std::clamp((frame - 30) / 12.0, 0.0, 1.0))
                          : Shot(other, frame);
    });
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0].frame, 50);
    EXPECT_EQ(found[0].kind, KxShotBoundaryKind::Cut);
}

TEST(KxShotDetector, BetweenBlackBarsACutIsFound)
{
    const cv::Mat one = Scene(4);
    const cv::Mat other = Scene(5);
    EXPECT_THAT(
        Cuts(75, [&](int frame) { return Barred(Shot(frame >= 31 && frame < 52 ? other : one, frame), Upright); }),
        ElementsAre(31, 52));
}

TEST(KxShotDetector, BetweenBlackBarsADissolveIsFound)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    const auto found = Boundaries(
        90, [&](int frame) { return Barred(Mixed(Shot(one, frame), Shot(other, frame), Share(frame, 20)), Wide); });
    ExpectOne(found, KxShotBoundaryKind::Dissolve, 40.0, 3.0);
}

TEST(KxShotDetector, ADissolveOutOfBlackBarsIsFound)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    const auto found = Boundaries(
        90, [&](int frame) { return Mixed(Barred(Shot(one, frame), Upright), Shot(other, frame), Share(frame, 20)); });
    ExpectOne(found, KxShotBoundaryKind::Dissolve, 40.0, 4.0);
}

TEST(KxShotDetector, AFadeOutOfBlackBarsIsFound)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    const auto found = Boundaries(100, [&](int frame) {
        return frame < 42 ? Mixed(Barred(Shot(one, frame), Upright), Plain(16.0), Share(frame, 10))
                          : Mixed(Plain(16.0), Shot(other, frame), Share(frame - 14, 10));
    });
    ExpectOne(found, KxShotBoundaryKind::Fade, 42.0, 3.0);
}

TEST(KxShotDetector, ShadowsThatAreLitWithinAShotAreNotACut)
{
    // They count as bars until then.
    const cv::Mat scene = Scene(4);
    EXPECT_THAT(Cuts(90,
                     [&](int frame) {
                         const cv::Mat picture = Shot(scene, frame);
                         return Mixed(Barred(picture, Upright), picture, frame < 40 ? 0.0 : 0.3);
                     }),
                IsEmpty());
}

TEST(KxShotDetector, Case8OneOfTwoNearCutsIsKept)
{
    EXPECT_THAT(Cuts(60, Shots({30, 33})), SizeIs(1));
}

TEST(KxShotDetector, Case8ACutRightAfterTheFirstPictureIsNotACut)
{
    EXPECT_THAT(Cuts(60, Shots({2})), IsEmpty());
}

TEST(KxShotDetector, NoPictureAndOnePictureHaveNoCut)
{
    EXPECT_THAT(Cuts(0, Shots({})), IsEmpty());
    EXPECT_THAT(Cuts(1, Shots({})), IsEmpty());
}
