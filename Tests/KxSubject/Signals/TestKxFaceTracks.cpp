#include <KxSubject/Signals/KxFaceTracks.h>

#include <KxSubject/Choice/KxFaceEvidence.h>

#include <Tests/KxSubject/InstalledModels.h>
#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/core.hpp>

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

constexpr double SamplesPerSecond = 10.0;
const cv::Size PictureSize(320, 180);
const KxSubjectOptions Options;
const KxFaceModels Cascades = InstalledModels::Cascades();

class KxFaceTracksTest : public testing::Test
{
protected:
    KxFaceTracksTest()
        : m_tracks(Options.faces, KxFaceFinder(Options.faces, Cascades, PictureSize))
    {
    }

    void SetUp() override
    {
        const cv::Mat photograph = MadePictures::Photograph();
        if (photograph.empty()) {
            GTEST_SKIP() << "needs messi5.jpg of the package opencv-doc";
        }
        if (!m_tracks.Finder().Knows(KxFaceView::Frontal)) {
            GTEST_SKIP() << "needs the cascades of the package opencv-data";
        }
        photograph(cv::Rect(100, 20, 320, 180)).copyTo(m_withFace);
        m_without = cv::Mat(PictureSize, CV_8UC3, cv::Scalar::all(90));
    }

    /// Ten pictures a second, the face in those from `first` up to and without `end`.
    void Play(int count, int first, int end)
    {
        for (int i = 0; i < count; ++i) {
            const cv::Mat& picture = i >= first && i < end ? m_withFace : m_without;
            const cv::Mat grey = MadePictures::Grey(picture);
            m_tracks.AddPicture(i / 10.0, picture, grey);
        }
    }

    /// The evidence of the faces so far at a sample; looks from sample `first` up to, but without, `end` count.
    KxSignalProfile At(std::size_t sample, std::int64_t first = 0, std::int64_t end = 1000) const
    {
        KxSubjectRecord record;
        record.source.frameRate = SamplesPerSecond;
        record.workingSizePx = {PictureSize.width, PictureSize.height};
        for (std::int32_t frame = 0; frame < 100; ++frame) {
            record.samples.push_back({frame, {}, {}});
        }
        record.faces.assign(m_tracks.Tracks().begin(), m_tracks.Tracks().end());
        return KxFaceEvidence(record, Options).ProfileAt(sample, first, end, KxAxis::Across);
    }

    static std::vector<double> TimesOfLooks(const KxFaceTracks::Track& track)
    {
        std::vector<double> times;
        for (const KxFaceLook& look : track.looks) {
            times.push_back(static_cast<double>(look.timeSeconds));
        }
        return times;
    }

    static std::size_t LooksBetween(const std::vector<double>& times, double from, double to)
    {
        return static_cast<std::size_t>(
            std::count_if(times.begin(), times.end(), [=](double time) { return time > from && time <= to; }));
    }

    /// The longest time from the appearance of the face, after three seconds of `before`, to the look that finds it.
    double LongestWait(const cv::Mat& before)
    {
        double longest = 0.0;
        for (int first = 30; first < 51; first += 3) {
            m_tracks = KxFaceTracks(Options.faces, KxFaceFinder(Options.faces, Cascades, PictureSize));
            m_without = before;
            Play(first + 25, first, first + 25);
            if (m_tracks.Tracks().empty()) {
                return 100.0;
            }
            longest = std::max(longest, m_tracks.Tracks().front().looks.front().timeSeconds - first / 10.0);
        }
        return longest;
    }

    cv::Mat m_withFace;
    cv::Mat m_without;
    KxFaceTracks m_tracks;
};

} // namespace

TEST_F(KxFaceTracksTest, AFaceThatStaysIsEvidenceWhereItIs)
{
    Play(30, 0, 30);
    ASSERT_FALSE(m_tracks.Tracks().empty());
    const KxSignalProfile profile = At(15);
    EXPECT_GT(profile.Sum(), 0.5F);
    float inside = 0.0F;
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        const double x = (static_cast<double>(bin) + 0.5) / KxSignalProfile::Bins * PictureSize.width;
        inside += x > 110.0 && x < 185.0 ? profile.share[bin] : 0.0F;
    }
    EXPECT_NEAR(inside, profile.Sum(), 1e-3F);
}

TEST_F(KxFaceTracksTest, AFaceSeenOnceIsNotEvidence)
{
    Play(30, 0, 1);
    EXPECT_FALSE(m_tracks.Tracks().empty());
    EXPECT_EQ(At(0).Sum(), 0.0F);
}

TEST_F(KxFaceTracksTest, BesidesTheFirstTheConfiguredNumberOfLooksMustAgree)
{
    // Looks at 0, 0.2 and 0.4 seconds; the face is there for two of them, then for three.
    ASSERT_EQ(Options.faces.agreeing, 2);
    Play(3, 0, 3);
    ASSERT_EQ(m_tracks.Tracks().size(), 1U);
    ASSERT_EQ(m_tracks.Tracks().front().looks.size(), 2U);
    EXPECT_EQ(At(1).Sum(), 0.0F);
    m_tracks = KxFaceTracks(Options.faces, KxFaceFinder(Options.faces, Cascades, PictureSize));
    Play(5, 0, 5);
    ASSERT_EQ(m_tracks.Tracks().front().looks.size(), 3U);
    EXPECT_GT(At(1).Sum(), 0.0F);
}

TEST_F(KxFaceTracksTest, AsManyFacesAreFollowedAsConfigured)
{
    KxSubjectOptions::Faces options = Options.faces;
    options.followedAtOnce = 1;
    m_tracks = KxFaceTracks(options, KxFaceFinder(options, Cascades, PictureSize));
    Play(10, 0, 10);
    ASSERT_EQ(m_tracks.Tracks().size(), 1U);
    EXPECT_GE(m_tracks.Tracks().front().looks.size(), 4U);
}

TEST_F(KxFaceTracksTest, ASingleFaceThatIsSureIsLookedAtLessOften)
{
    Play(41, 0, 41);
    ASSERT_EQ(m_tracks.Tracks().size(), 1U);
    const std::vector<double> times = TimesOfLooks(m_tracks.Tracks().front());
    // Looks at 0, 0.2 and 0.4 seconds make it sure. Searches of the whole picture add looks in between.
    EXPECT_LE(times[2], 0.45);
    EXPECT_GE(LooksBetween(times, 0.5, 4.0), 8U);
    EXPECT_LE(LooksBetween(times, 0.5, 4.0), 8U + 5U);
}

TEST_F(KxFaceTracksTest, AFaceThatWasMissedIsLookedAtOftenAgain)
{
    for (int i = 0; i < 20; ++i) {
        const cv::Mat& picture = i == 12 ? m_without : m_withFace;
        m_tracks.AddPicture(i / 10.0, picture, MadePictures::Grey(picture));
    }
    ASSERT_EQ(m_tracks.Tracks().size(), 1U);
    const std::vector<KxFaceLook>& looks = m_tracks.Tracks().front().looks;
    const auto missed = std::find_if(looks.begin(), looks.end(), [](const KxFaceLook& look) { return !look.IsFace(); });
    ASSERT_NE(missed, looks.end());
    ASSERT_NE(std::next(missed), looks.end());
    EXPECT_NEAR(std::next(missed)->timeSeconds - missed->timeSeconds, Options.faces.followPeriodSeconds, 0.05);
}

TEST_F(KxFaceTracksTest, TwoFacesAreLookedAtOften)
{
    const cv::Mat grey = MadePictures::Grey(m_withFace);
    const std::vector<cv::Rect> faces =
        KxFaceFinder(Options.faces, Cascades, PictureSize).Find(m_withFace, grey, KxFaceView::Frontal);
    ASSERT_EQ(faces.size(), 1U);
    const cv::Rect around = cv::Rect(faces.front().x - 15, 0, faces.front().width + 30, PictureSize.height);
    const int left = around.x > PictureSize.width / 2 ? 0 : PictureSize.width - around.width;
    m_withFace(around).copyTo(m_withFace(cv::Rect(cv::Point(left, 0), around.size())));
    Play(41, 0, 41);
    ASSERT_EQ(m_tracks.Tracks().size(), 2U);
    for (const KxFaceTracks::Track& track : m_tracks.Tracks()) {
        EXPECT_GE(LooksBetween(TimesOfLooks(track), 0.5, 4.0), 17U);
    }
}

TEST_F(KxFaceTracksTest, LooksThatMissTheFaceWeakenItsEvidence)
{
    const auto centre = [](const KxSignalProfile& profile) {
        double sum = 0.0;
        for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
            sum += profile.share[bin] * (static_cast<double>(bin) + 0.5) / KxSignalProfile::Bins;
        }
        return sum / static_cast<double>(profile.Sum());
    };
    Play(30, 0, 30);
    const KxSignalProfile always = At(15);
    m_tracks = KxFaceTracks(Options.faces, KxFaceFinder(Options.faces, Cascades, PictureSize));
    for (int i = 0; i < 30; ++i) {
        const cv::Mat& picture = i >= 12 && i < 15 ? m_without : m_withFace;
        m_tracks.AddPicture(i / 10.0, picture, MadePictures::Grey(picture));
    }
    ASSERT_EQ(m_tracks.Tracks().size(), 1U);
    const auto& looks = m_tracks.Tracks().front().looks;
    const auto missed =
        std::count_if(looks.begin(), looks.end(), [](const KxFaceLook& look) { return !look.IsFace(); });
    ASSERT_EQ(missed, 2);
    EXPECT_NEAR(centre(At(15)), centre(always), 0.01);
    EXPECT_NEAR(centre(At(13)), centre(always), 0.01) << "between the looks that missed it";
    EXPECT_LT(At(15).Sum(), always.Sum());
}

TEST_F(KxFaceTracksTest, EvidenceEndsWithTheFace)
{
    Play(60, 0, 25);
    EXPECT_GT(At(10).Sum(), 0.5F);
    EXPECT_EQ(At(50).Sum(), 0.0F);
}

TEST_F(KxFaceTracksTest, LooksInAnotherShotDoNotCount)
{
    Play(30, 0, 30);
    EXPECT_GT(At(15, 12, 25).Sum(), 0.0F);
    EXPECT_EQ(At(15, 15, 18).Sum(), 0.0F) << "too few looks in so short a shot";
}

TEST_F(KxFaceTracksTest, LooksAreRarerWhileNoNewFaceIsFound)
{
    const cv::Mat grey = MadePictures::Grey(m_withFace);
    const std::vector<cv::Rect> faces =
        KxFaceFinder(Options.faces, Cascades, PictureSize).Find(m_withFace, grey, KxFaceView::Frontal);
    ASSERT_EQ(faces.size(), 1U);
    cv::Mat hidden = m_withFace.clone();
    hidden(faces.front()).setTo(cv::mean(m_withFace));
    const double longest = LongestWait(hidden);
    EXPECT_GT(longest, Options.faces.frontalPeriodSeconds);
    EXPECT_LT(longest, Options.faces.settledFactor * Options.faces.frontalPeriodSeconds + 0.05);
}

TEST_F(KxFaceTracksTest, ANewSceneIsSearchedAtOnce)
{
    Play(60, 60, 60);
    const cv::Mat grey = MadePictures::Grey(m_withFace);
    m_tracks.BeginScene();
    m_tracks.AddPicture(6.0, m_withFace, grey);
    ASSERT_EQ(m_tracks.Tracks().size(), 1U);
    EXPECT_EQ(m_tracks.Tracks().front().looks.front().timeSeconds, 6.0F);
}

TEST_F(KxFaceTracksTest, AFaceAtTheSamePlaceInANewSceneIsAnotherFace)
{
    Play(10, 0, 10);
    ASSERT_EQ(m_tracks.Tracks().size(), 1U);
    m_tracks.BeginScene();
    const cv::Mat grey = MadePictures::Grey(m_withFace);
    m_tracks.AddPicture(1.0, m_withFace, grey);
    EXPECT_EQ(m_tracks.Tracks().size(), 2U);
}

TEST_F(KxFaceTracksTest, LooksDoNotChangeThePictures)
{
    const cv::Mat grey = MadePictures::Grey(m_withFace);
    const cv::Mat picture = m_withFace.clone();
    const cv::Mat before = grey.clone();
    for (int i = 0; i < 10; ++i) {
        m_tracks.AddPicture(i / 10.0, m_withFace, grey);
    }
    EXPECT_EQ(cv::norm(grey, before, cv::NORM_INF), 0.0);
    EXPECT_EQ(cv::norm(m_withFace, picture, cv::NORM_INF), 0.0);
}
