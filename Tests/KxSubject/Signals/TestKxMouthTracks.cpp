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
        m_face = photograph(cv::Rect(214, 34, 140, 140)).clone();
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

    /// A record of the two: the left one moves with the sound up to the middle, the right one after it.
    KxSubjectRecord Observe(bool hasRight = true)
    {
        const KxSubjectModels models{InstalledModels::Cascades(), {}};
        KxSubjectObserver observer({960, 540, MadeSpeech::FrameRate, Frames}, models, Options);
        const std::vector<double> voice = MadeSpeech::Syllables(Frames / MadeSpeech::FrameRate, 4);
        for (int frame = 0; frame < Frames; frame += 2) {
            const double open = voice[static_cast<std::size_t>(frame)];
            const bool isLeft = frame < Frames / 2;
            const cv::Mat picture = Picture(isLeft ? open : 0.0, isLeft ? 0.0 : open, hasRight);
            observer.AddPicture(frame, {picture.data, {picture.cols, picture.rows}, picture.step[0]});
        }
        KxSubjectRecord record = observer.Finish();
        for (const auto& [first, last] : KxSoundMeter::SpansOf(record, Options.mouths.soundMarginSeconds)) {
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
        cv::Mat face = m_face.clone();
        // The chin follows the lower lip.
        const cv::Rect chin(40, 92, 60, 30);
        cv::Mat moved;
        cv::warpAffine(m_face(chin), moved, cv::Matx23d(1.0, 0.0, 0.0, 0.0, 1.0, 7.0 * open), chin.size(),
                       cv::INTER_LINEAR, cv::BORDER_REPLICATE);
        moved.copyTo(face(chin));
        face.copyTo(picture(cv::Rect(x, 20, 140, 140)));
    }
};

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
    const KxSubjectRecord record = Observe(false);
    EXPECT_FALSE(record.faces.empty());
    EXPECT_TRUE(record.mouths.empty());
    EXPECT_TRUE(record.sound.empty());
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
