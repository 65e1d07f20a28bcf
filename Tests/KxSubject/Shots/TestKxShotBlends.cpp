#include <KxSubject/Shots/KxShotBlends.h>

#include <Tests/KxSubject/Shots/ShotPictures.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>

using namespace ShotPictures;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

constexpr int First = 30;
constexpr int After = 40;

std::vector<KxShotBoundary> Find(int frames, const std::function<cv::Mat(int frame)>& draw, int step = 1)
{
    KxShotBlends blends(KxSubjectOptions().shots);
    for (int frame = 0; frame < frames; frame += step) {
        const cv::Mat grey = MadePictures::Grey(draw(frame));
        blends.AddPicture(frame, grey);
    }
    return blends.Found();
}

double Share(int frame, int length)
{
    return std::clamp(static_cast<double>(frame - First) / length, 0.0, 1.0);
}

/// On the way from the one to the other over a plain picture of `level`.
cv::Mat Faded(const cv::Mat& from, const cv::Mat& to, double share, double level)
{
    return share < 0.5 ? Mixed(from, Plain(level), share * 2.0) : Mixed(Plain(level), to, share * 2.0 - 1.0);
}

void ExpectBoundary(const std::vector<KxShotBoundary>& found, KxShotBoundaryKind kind, int length, int slack)
{
    ASSERT_THAT(found, SizeIs(1)) << "of " << length;
    EXPECT_EQ(found[0].kind, kind);
    EXPECT_NEAR(static_cast<double>(found[0].frame), First + length / 2.0, slack) << "of " << length;
    EXPECT_NEAR(static_cast<double>(found[0].first), First, slack) << "of " << length;
    EXPECT_NEAR(static_cast<double>(found[0].last), First + length, slack) << "of " << length;
}

} // namespace

TEST(KxShotBlends, Case1ADissolveOfAnyLengthIsFoundInItsMiddle)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    for (const int length : {4, 5, 12, 25, 50}) {
        const auto found = Find(First + length + After, [&](int frame) {
            return Mixed(Shot(one, frame), Shot(other, frame), Share(frame, length));
        });
        ExpectBoundary(found, KxShotBoundaryKind::Dissolve, length, 2 + length / 10);
    }
}

TEST(KxShotBlends, Case1ADissolveIsFoundWherePicturesAreMissing)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    const auto found = Find(
        120, [&](int frame) { return Mixed(Shot(one, frame), Shot(other, frame), Share(frame, 25)); }, 4);
    ExpectBoundary(found, KxShotBoundaryKind::Dissolve, 25, 4);
}

TEST(KxShotBlends, Case1ADissolveJustBeforeTheEndIsFound)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    const auto found =
        Find(First + 12 + 6, [&](int frame) { return Mixed(Shot(one, frame), Shot(other, frame), Share(frame, 12)); });
    ExpectBoundary(found, KxShotBoundaryKind::Dissolve, 12, 3);
}

TEST(KxShotBlends, Case1TwoDissolvesAreTwoBoundaries)
{
    const cv::Mat one = Scene(1);
    const cv::Mat two = Scene(2);
    const cv::Mat three = Scene(3);
    const auto found = Find(200, [&](int frame) {
        const cv::Mat first = Mixed(Shot(one, frame), Shot(two, frame), Share(frame, 20));
        return Mixed(first, Shot(three, frame), Share(frame - 70, 20));
    });
    ASSERT_THAT(found, SizeIs(2));
    EXPECT_NEAR(static_cast<double>(found[0].frame), 40.0, 3.0);
    EXPECT_NEAR(static_cast<double>(found[1].frame), 110.0, 3.0);
}

TEST(KxShotBlends, Case2AWipeIsFound)
{
    const cv::Mat one = Scene(3);
    const cv::Mat other = Mixed(Scene(4), cv::Mat(Size * 2, CV_8UC3, cv::Scalar::all(255.0)), 0.4);
    const auto found = Find(100, [&](int frame) {
        cv::Mat picture = Shot(one, frame);
        const cv::Rect wiped(0, 0, cvRound(Size.width * Share(frame, 20)), Size.height);
        if (!wiped.empty()) {
            Shot(other, frame)(wiped).copyTo(picture(wiped));
        }
        return picture;
    });
    ExpectBoundary(found, KxShotBoundaryKind::Dissolve, 20, 9);
}

TEST(KxShotBlends, Case3AFadeOverBlackOrWhiteIsFoundInItsMiddle)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    for (const double level : {0.0, 255.0}) {
        for (const int length : {10, 20, 50}) {
            const auto found = Find(First + length + After, [&](int frame) {
                return Faded(Shot(one, frame), Shot(other, frame), Share(frame, length), level);
            });
            ExpectBoundary(found, KxShotBoundaryKind::Fade, length, 2 + length / 10);
        }
    }
}

TEST(KxShotBlends, Case3AFadeThatEndsInACutIsNotAFade)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    EXPECT_THAT(Find(100,
                     [&](int frame) {
                         return frame < 50 ? Mixed(Shot(one, frame), Plain(0.0), Share(frame, 12)) : Shot(other, frame);
                     }),
                IsEmpty());
}

TEST(KxShotBlends, Case4AMovingCameraIsNotABoundary)
{
    const cv::Mat scene = Scene(5);
    for (const double speedPx : {1.0, 4.0, 12.0}) {
        EXPECT_THAT(Find(100,
                         [&](int frame) {
                             return MadePictures::View(scene, {frame * speedPx, frame * 0.2}, Size);
                         }),
                    IsEmpty())
            << "pan at " << speedPx;
    }
    cv::RNG random(1);
    EXPECT_THAT(Find(100,
                     [&](int) {
                         return MadePictures::View(
                             scene, {40.0 + random.uniform(-10.0, 10.0), 30.0 + random.uniform(-10.0, 10.0)}, Size);
                     }),
                IsEmpty())
        << "shake";
    EXPECT_THAT(Find(100,
                     [&](int frame) {
                         const double zoom = 1.0 + frame * 0.03;
                         cv::Mat view;
                         cv::warpAffine(scene, view, cv::Matx23d(zoom, 0.0, 0.0, 0.0, zoom, 0.0), Size);
                         return view;
                     }),
                IsEmpty())
        << "zoom";
}

TEST(KxShotBlends, Case5AChangeOfLightIsNotABoundary)
{
    const cv::Mat scene = Scene(6);
    EXPECT_THAT(Find(100,
                     [&](int frame) {
                         cv::Mat picture;
                         Shot(scene, frame).convertTo(picture, CV_8UC3, 0.4 + 0.6 * Share(frame, 20), 0.0);
                         return picture;
                     }),
                IsEmpty());
    EXPECT_THAT(
        Find(100, [&](int frame) { return Faded(Shot(scene, frame), Shot(scene, frame), Share(frame, 20), 0.0); }),
        IsEmpty());
}

TEST(KxShotBlends, Case6AnObjectThatPassesCloseIsNotABoundary)
{
    const cv::Mat scene = Scene(7);
    const cv::Mat body = Scene(8);
    for (const int length : {9, 20}) {
        EXPECT_THAT(Find(100,
                         [&](int frame) {
                             cv::Mat picture = Shot(scene, frame);
                             const cv::Rect place(cvRound(Size.width * (2.5 * Share(frame, length) - 1.5)), 0,
                                                  Size.width * 3 / 2, Size.height);
                             const cv::Rect seen = place & cv::Rect({0, 0}, Size);
                             if (!seen.empty()) {
                                 body(seen - place.tl()).copyTo(picture(seen));
                             }
                             return picture;
                         }),
                    IsEmpty())
            << "within " << length;
    }
}

TEST(KxShotBlends, Case6APictureThatIsShownBrieflyIsNotABoundary)
{
    const cv::Mat scene = Shot(Scene(1), 0);
    const cv::Mat insert = Shot(Scene(2), 0);
    constexpr int blend = 8;
    const auto find = [&](int shownFor) {
        return Find(First + blend + shownFor + blend + After, [&](int frame) {
            const cv::Mat in = Mixed(scene, insert, Share(frame, blend));
            return Mixed(in, scene, Share(frame - blend - shownFor, blend));
        });
    };
    EXPECT_THAT(find(8), IsEmpty());
    EXPECT_THAT(find(60), SizeIs(2)) << "long enough for a shot of its own";
}

TEST(KxShotBlends, Case7ACutIsNotABlend)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    for (const int step : {1, 3}) {
        EXPECT_THAT(Find(
                        100, [&](int frame) { return Shot(frame < 50 ? one : other, frame); }, step),
                    IsEmpty());
    }
}

TEST(KxShotBlends, Case8PicturesWithMuchInCommonHaveNoBoundary)
{
    const cv::Mat one = Scene(1);
    const cv::Mat other = Scene(2);
    for (const double inCommon : {0.0, 1.0}) {
        std::vector<std::int64_t> asked;
        KxShotBlends blends(KxSubjectOptions().shots, [&asked, inCommon](std::int64_t first, std::int64_t last) {
            asked = {first, last};
            return inCommon;
        });
        for (int frame = 0; frame < First + 20 + After; ++frame) {
            const cv::Mat picture = Mixed(Shot(one, frame), Shot(other, frame), Share(frame, 20));
            blends.AddPicture(frame, MadePictures::Grey(picture));
        }
        EXPECT_THAT(blends.Found(), SizeIs(inCommon < 0.5 ? 1 : 0));
        ASSERT_THAT(asked, SizeIs(2));
        EXPECT_LT(asked[0], First + 3) << "still the first shot";
        EXPECT_GT(asked[1], First + 20 - 3) << "already the second shot";
    }
}

TEST(KxShotBlends, Case9WhatMovesInLessThanHalfOfThePictureIsNotABoundary)
{
    // Two people who step aside, each by a width, in opposite directions: every point goes from one to the other.
    const auto find = [](const cv::Size& body) {
        return Find(100, [&body](int frame) {
            cv::Mat picture = Plain(230.0);
            const int step = cvRound(body.width * Share(frame, 20));
            picture(cv::Rect({step, 0}, body)).setTo(20);
            picture(cv::Rect({Size.width - body.width - step, Size.height - body.height}, body)).setTo(20);
            return picture;
        });
    };
    EXPECT_THAT(find({Size.width / 5, Size.height / 3}), IsEmpty());
    EXPECT_THAT(find({Size.width / 2, Size.height / 2}), SizeIs(1)) << "all of the picture changes";
}

TEST(KxShotBlends, WithoutPicturesThereAreNoBlends)
{
    EXPECT_THAT(Find(0, [](int) { return Plain(0.0); }), IsEmpty());
    EXPECT_THAT(Find(1, [](int) { return Plain(0.0); }), IsEmpty());
}
