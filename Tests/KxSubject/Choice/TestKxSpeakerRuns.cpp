#include <KxSubject/Choice/KxSpeakerRuns.h>

#include <gtest/gtest.h>

namespace
{

const KxSubjectOptions::Speech Options;
constexpr std::size_t Steps = 500;
const std::vector<bool> Open(Steps, true);

/// Two people, each with evidence for one of them from a step up to another.
class Evidence
{
public:
    Evidence& For(std::size_t person, std::size_t from, std::size_t to, double value = 0.3)
    {
        for (std::size_t step = from; step < to; ++step) {
            m_emissions[person][step] = value;
        }
        return *this;
    }
    KxSpeakerRuns Runs(const std::vector<bool>& gate = Open) const { return {m_emissions, gate, Options}; }

private:
    std::vector<KxSeries::Values> m_emissions{KxSeries::Values(Steps, 0.0), KxSeries::Values(Steps, 0.0)};
};

} // namespace

TEST(KxSpeakerRuns, TurnsAreFollowed)
{
    const KxSpeakerRuns speakers = Evidence().For(0, 0, 200).For(1, 200, 350).For(0, 350, 500).Runs();
    ASSERT_EQ(speakers.runs.size(), 3U);
    EXPECT_EQ(speakers.runs[0].person, 0U);
    EXPECT_EQ(speakers.runs[0].first, 0U);
    EXPECT_EQ(speakers.runs[1].person, 1U);
    EXPECT_EQ(speakers.runs[1].first, 200U);
    EXPECT_EQ(speakers.runs[1].end, 350U);
    EXPECT_EQ(speakers.runs[2].end, Steps);
    EXPECT_NEAR(speakers.margin, 0.3, 1e-9);
    EXPECT_NEAR(speakers.speechSeconds, 20.0, 1e-9);
}

TEST(KxSpeakerRuns, AnInterjectionIsNotFollowed)
{
    const KxSpeakerRuns speakers = Evidence().For(0, 0, 200).For(1, 200, 210, 2.0).For(0, 210, 500).Runs();
    ASSERT_EQ(speakers.runs.size(), 1U);
    EXPECT_EQ(speakers.runs[0].person, 0U);
}

TEST(KxSpeakerRuns, ARunShorterThanTheLeastIsDropped)
{
    // The evidence is worth two changes, but it lasts for 16 steps only.
    const KxSpeakerRuns speakers = Evidence().For(0, 0, 200).For(1, 200, 216, 2.5).For(0, 216, 500).Runs();
    ASSERT_EQ(speakers.runs.size(), 1U);
    EXPECT_EQ(speakers.runs[0].end, Steps);
}

TEST(KxSpeakerRuns, WhileNobodySpeaksTheLastOneStays)
{
    const KxSpeakerRuns speakers =
        Evidence().For(0, 0, 100, 0.4).For(0, 100, 400, -0.5).For(1, 100, 400, -0.5).For(1, 400, 500, 0.4).Runs();
    ASSERT_EQ(speakers.runs.size(), 2U);
    EXPECT_EQ(speakers.runs[0].end, 400U);
    EXPECT_EQ(speakers.runs[1].person, 1U);
}

TEST(KxSpeakerRuns, BeforeTheFirstOneSpeaksTheFirstOneIsShown)
{
    const KxSpeakerRuns speakers = Evidence().For(0, 0, 250, -0.5).For(1, 0, 250, -0.5).For(1, 250, 500).Runs();
    ASSERT_EQ(speakers.runs.size(), 1U);
    EXPECT_EQ(speakers.runs[0].person, 1U);
    EXPECT_EQ(speakers.runs[0].first, 0U);
}

TEST(KxSpeakerRuns, AChangeInASilenceComesWithTheFirstSound)
{
    std::vector<bool> gate = Open;
    std::fill(gate.begin() + 200, gate.begin() + 300, false);
    const KxSpeakerRuns speakers = Evidence().For(0, 0, 200).For(1, 300, 500).Runs(gate);
    ASSERT_EQ(speakers.runs.size(), 2U);
    EXPECT_EQ(speakers.runs[1].first, 300U);
}

TEST(KxSpeakerRuns, AnInterjectionBeforeAPauseStartsNoTurn)
{
    // A word, silence of a second and a half, and then the turn.
    std::vector<bool> gate = Open;
    std::fill(gate.begin() + 215, gate.begin() + 255, false);
    const Evidence evidence = Evidence().For(0, 0, 200).For(1, 200, 500);
    ASSERT_EQ(evidence.Runs(gate).runs.size(), 2U);
    EXPECT_EQ(evidence.Runs(gate).runs[1].first, 255U);
    std::fill(gate.begin() + 230, gate.begin() + 255, true);
    EXPECT_EQ(evidence.Runs(gate).runs[1].first, 200U) << "the pause is short: the word belongs to the turn";
}

TEST(KxSpeakerRuns, WithoutEvidenceThereAreNoRuns)
{
    const KxSpeakerRuns speakers = Evidence().For(0, 0, Steps, -0.1).For(1, 0, Steps, -0.2).Runs();
    EXPECT_TRUE(speakers.runs.empty());
    EXPECT_EQ(speakers.margin, 0.0);
    EXPECT_EQ(speakers.speechSeconds, 0.0);
}
