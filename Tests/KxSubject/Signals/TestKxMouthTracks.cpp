#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectDecision.h>
#include <KxSubject/KxSubjectModels.h>
#include <KxSubject/KxSubjectObserver.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/Signals/KxMouthTracks.h>
#include <KxSubject/Signals/KxSoundMeter.h>

#include <Tests/KxSubject/InstalledModels.h>
#include <Tests/KxSubject/MadePictures.h>
#include <Tests/KxSubject/MadeSpeech.h>

#include <opencv2/imgproc.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <utility>

namespace
{

const cv::Size PictureSize(320, 180);
const KxSubjectOptions Options;
constexpr int Frames = 300;

/// Two copies of one face, at 0.22 and 0.78 of the width; each has a mouth that can be opened.
class KxMouthTracksTest : public testing::Test
{
protected:
    void SetUp() override
    {
        const cv::Mat photograph = MadePictures::Photograph();
        if (photograph.empty()) {
            GTEST_SKIP() << "needs messi5.jpg of the package opencv-doc";
        }
        if (!KxFaceFinder(Options.faces, InstalledModels::Cascades(), PictureSize).Knows(KxFaceView::Frontal)) {
            GTEST_SKIP() << "needs the cascades of the package opencv-data";
        }
        cv::resize(photograph(cv::Rect(205, 70, 80, 80)), m_face, {140, 140}, 0.0, 0.0, cv::INTER_CUBIC);
    }

    /// `open` is how far each of the two mouths is open, 0 to 1.
    cv::Mat Picture(double left, double right, bool hasRight = true) const
    {
        cv::Mat picture(PictureSize, CV_8UC3, cv::Scalar::all(70));
        Paint(picture, 0, left);
        if (hasRight) {
            Paint(picture, 180, right);
        }
        return picture;
    }

    /// How far the two mouths are open in a frame, while a voice of this loudness is heard.
    using Mouths = std::function<std::pair<double, double>(int frame, double voice)>;

    /// The left one speaks up to the middle, the right one after it.
    static std::pair<double, double> InTurns(int frame, double voice)
    {
        return frame < Frames / 2 ? std::pair(voice, 0.0) : std::pair(0.0, voice);
    }

    /// A record of the two.
    KxSubjectRecord Observe(const Mouths& mouths = InTurns, bool hasRight = true)
    {
        const KxSubjectModels models{InstalledModels::Cascades(), {}};
        KxSubjectObserver observer({960, 540, MadeSpeech::FrameRate, Frames}, models, Options);
        const std::vector<double> voice = MadeSpeech::Syllables(Frames / MadeSpeech::FrameRate, 4);
        for (int frame = 0; frame < Frames; frame += 2) {
            const auto [left, right] = mouths(frame, voice[static_cast<std::size_t>(frame)]);
            const cv::Mat picture = Picture(left, right, hasRight);
            observer.AddPicture(frame, {picture.data, {picture.cols, picture.rows}, picture.step[0]});
        }
        KxSubjectRecord record = observer.Finish();
        for (const auto& [first, last] : KxSoundMeter::SpansOf(record)) {
            KxSoundMeter meter(first);
            for (std::int64_t level = first; level <= last; ++level) {
                const double loudness = level < Frames ? voice[static_cast<std::size_t>(level)] : 0.0;
                std::vector<float> samples(KxSoundMeter::SamplesPerSecond / KxSoundSpan::LevelsPerSecond);
                for (std::size_t i = 0; i < samples.size(); ++i) {
                    samples[i] = static_cast<float>(0.3 * loudness * loudness * std::sin(0.3 * static_cast<double>(i)));
                }
                meter.Add(samples.data(), samples.size());
            }
            record.sound.push_back(meter.Finish());
        }
        return record;
    }

    cv::Mat m_face;

private:
    void Paint(cv::Mat& picture, int x, double open) const
    {
        // From the lips to below the chin. What moves down leaves the dark inside of the mouth.
        const cv::Rect jaw(52, 92, 40, 30);
        const double down = 6.0 * open;
        cv::Mat moved;
        cv::warpAffine(m_face(jaw), moved, cv::Matx23d(1.0, 0.0, 0.0, 0.0, 1.0, down), jaw.size(), cv::INTER_LINEAR,
                       cv::BORDER_REPLICATE);
        cv::ellipse(moved, {jaw.width / 2, cvRound(down / 2.0)}, {9, cvRound(down / 2.0)}, 0.0, 0.0, 360.0,
                    cv::Scalar(20, 15, 30), cv::FILLED, cv::LINE_AA);
        cv::Mat weight(jaw.size(), CV_32FC3, cv::Scalar::all(0.0));
        cv::ellipse(weight, {jaw.width / 2, 10}, {17, 17}, 0.0, 0.0, 360.0, cv::Scalar::all(1.0), cv::FILLED);
        cv::GaussianBlur(weight, weight, {}, 2.0);
        cv::Mat face = m_face.clone();
        cv::Mat from;
        cv::Mat to;
        face(jaw).convertTo(from, CV_32FC3);
        moved.convertTo(to, CV_32FC3);
        const cv::Mat mixed = from + weight.mul(to - from);
        mixed.convertTo(face(jaw), CV_8UC3);
        face.copyTo(picture(cv::Rect(x, 20, 140, 140)));
    }
};

bool IsLeft(const KxSubjectRecord& record, const KxMouthTrack& mouth)
{
    return record.faces[static_cast<std::size_t>(mouth.face)].looks.front().x < PictureSize.width / 2;
}

KxSubjectDecision Decide(const KxSubjectRecord& record, KxSpeakerMode speaker)
{
    return KxDecide(record, {9, 16, KxMotionSpeed::Auto, true, {}, {}, speaker}, Options, KxCancelToken());
}

/// The middle of the crop at a time.
double MiddleAt(const KxSubjectDecision& decision, double seconds)
{
    const KxCropRect& crop = decision.crops[static_cast<std::size_t>(seconds * MadeSpeech::FrameRate)];
    return crop.x + crop.width / 2.0;
}

} // namespace

TEST_F(KxMouthTracksTest, TwoFacesThatLastGiveTwoMouths)
{
    const KxSubjectRecord record = Observe();
    ASSERT_GE(record.mouths.size(), 2U);
    const KxMouthTrack& mouth = record.mouths.front();
    EXPECT_GT(mouth.looks.size(), 100U);
    EXPECT_GT(mouth.looks.back().frame, Frames - 10);
    for (std::size_t i = 1; i < mouth.looks.size(); ++i) {
        EXPECT_GT(mouth.looks[i].frame, mouth.looks[i - 1].frame);
    }
}

TEST_F(KxMouthTracksTest, OneFaceGivesNone)
{
    const KxSubjectRecord record = Observe(InTurns, false);
    EXPECT_FALSE(record.faces.empty());
    EXPECT_TRUE(record.mouths.empty());
    EXPECT_TRUE(record.sound.empty());
}

TEST_F(KxMouthTracksTest, AMouthThatMovesHasLargerMovements)
{
    const KxSubjectRecord record = Observe();
    ASSERT_GE(record.mouths.size(), 2U);
    for (const KxMouthTrack& mouth : record.mouths) {
        double own = 0.0;
        double other = 0.0;
        for (const KxMouthLook& look : mouth.looks) {
            ((look.frame < Frames / 2) == IsLeft(record, mouth) ? own : other) += look.movement;
        }
        EXPECT_GT(own, 2.0 * other) << (IsLeft(record, mouth) ? "left" : "right");
    }
}

TEST_F(KxMouthTracksTest, AJawThatMovesDownIsAnOpening)
{
    const KxSubjectRecord record = Observe();
    const std::vector<double> voice = MadeSpeech::Syllables(Frames / MadeSpeech::FrameRate, 4);
    for (const KxMouthTrack& mouth : record.mouths) {
        double withJaw = 0.0;
        double all = 0.0;
        for (const KxMouthLook& look : mouth.looks) {
            if ((look.frame < Frames / 2) == IsLeft(record, mouth)) {
                const auto at = static_cast<std::size_t>(look.frame);
                const double down = voice[at] - voice[at - look.frames];
                withJaw += down * look.opening > 0.0 ? std::abs(look.opening) : 0.0;
                all += std::abs(look.opening);
            }
        }
        EXPECT_GT(withJaw, 0.9 * all) << (IsLeft(record, mouth) ? "left" : "right");
    }
}

TEST_F(KxMouthTracksTest, TheCropFollowsTheFaceWhoseMouthMovesWithTheSound)
{
    const KxSubjectRecord record = Observe();
    ASSERT_FALSE(record.sound.empty());
    const KxSubjectDecision decision = Decide(record, KxSpeakerMode::Auto);
    ASSERT_EQ(decision.crops.size(), static_cast<std::size_t>(Frames));
    EXPECT_EQ(decision.findings.shots[0].speech, KxSpeech::Followed);
    EXPECT_LT(MiddleAt(decision, 3.0), 0.4);
    EXPECT_GT(MiddleAt(decision, 9.0), 0.6);
}

TEST_F(KxMouthTracksTest, OfTwoMouthsThatMoveAllTheTimeTheOneThatFitsTheSoundIsFollowed)
{
    const std::vector<double> other = MadeSpeech::Syllables(Frames / MadeSpeech::FrameRate, 8);
    const KxSubjectRecord record = Observe([&other](int frame, double voice) {
        const double silent = other[static_cast<std::size_t>(frame)];
        return frame < Frames / 2 ? std::pair(voice, silent) : std::pair(silent, voice);
    });
    const KxSubjectDecision decision = Decide(record, KxSpeakerMode::Auto);
    EXPECT_EQ(decision.findings.shots[0].speech, KxSpeech::Followed);
    EXPECT_LT(MiddleAt(decision, 3.0), 0.4);
    EXPECT_GT(MiddleAt(decision, 9.0), 0.6);
    const KxSubjectDecision without = Decide(record, KxSpeakerMode::Off);
    EXPECT_NEAR(MiddleAt(without, 3.0), MiddleAt(without, 9.0), 0.1) << "the pictures alone do not show who speaks";
}

TEST_F(KxMouthTracksTest, TheBoxOfAFaceIsKnownNearItsHitsOnly)
{
    const KxMouthTracks mouths(Options.mouths, MadeSpeech::FrameRate);
    const KxFaceTrack track{{{1.0F, 100, 50, 40, 40}, {1.2F, 0, 0, 0, 0}, {1.4F, 108, 50, 40, 40}}};
    EXPECT_TRUE(mouths.BoxAt(track, 0.8, false));
    EXPECT_FALSE(mouths.BoxAt(track, 0.6, false));
    EXPECT_TRUE(mouths.BoxAt(track, 1.2, false)) << "a look that missed it, between two that did not";
    EXPECT_FALSE(mouths.BoxAt(track, 1.8, false));
    const KxFaceTrack small{{{1.0F, 100, 50, 15, 15}, {1.2F, 100, 50, 15, 15}}};
    EXPECT_FALSE(mouths.BoxAt(small, 1.1, false));
}
