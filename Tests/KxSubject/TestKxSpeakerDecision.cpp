#include <KxSubject/KxSubjectDecision.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <Tests/KxSubject/MadeSpeech.h>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

KxSubjectRequest Request(KxIntSize aspect = {9, 16}, KxSpeakerMode speaker = KxSpeakerMode::Auto)
{
    return {aspect.width, aspect.height, KxMotionSpeed::Auto, true, {}, {}, speaker};
}

KxSubjectDecision Decide(const KxSubjectRecord& record, const KxSubjectRequest& request = Request())
{
    return KxDecide(record, request, KxSubjectOptions(), KxCancelToken());
}

/// Two people far apart who speak in turns.
MadeSpeech::Scene Interview()
{
    return {20.0, {0.25, 0.75}, {{0.0, 6.0, 0}, {6.0, 13.0, 1}, {13.0, 20.0, 0}}, {}};
}

bool Holds(const KxCropRect& crop, double place)
{
    return crop.x <= place - 0.08 && crop.x + crop.width >= place + 0.08;
}

bool AreEqual(const KxSubjectDecision& a, const KxSubjectDecision& b)
{
    return a.crops.size() == b.crops.size() && std::equal(a.crops.begin(), a.crops.end(), b.crops.begin(),
                                                          [](const KxCropRect& one, const KxCropRect& two) {
                                                              return one.x == two.x && one.y == two.y &&
                                                                     one.width == two.width && one.height == two.height;
                                                          });
}

} // namespace

TEST(KxSpeakerDecision, TheCropIsOnWhoSpeaks)
{
    const KxSubjectDecision decision = Decide(MadeSpeech::Record(Interview()));
    ASSERT_EQ(decision.crops.size(), 500U);
    for (const auto& [from, to, place] : {std::tuple(0.5, 5.5, 0.25), {6.7, 12.3, 0.75}, {13.7, 20.0, 0.25}}) {
        for (double seconds = from; seconds < to; seconds += 0.2) {
            EXPECT_TRUE(Holds(decision.crops[static_cast<std::size_t>(seconds * 25.0)], place)) << seconds;
        }
    }
    ASSERT_EQ(decision.findings.shots.size(), 1U);
    EXPECT_EQ(decision.findings.shots[0].speech, KxSpeech::Followed);
    EXPECT_EQ(decision.findings.shots[0].speakerChanges, 2);
    EXPECT_GT(decision.findings.shots[0].confidence, 0.55F);
}

TEST(KxSpeakerDecision, BetweenPeopleFarApartTheCropIsCutAndNotPanned)
{
    const KxSubjectDecision decision = Decide(MadeSpeech::Record(Interview()));
    int jumps = 0;
    for (std::size_t frame = 1; frame < decision.crops.size(); ++frame) {
        const double step = std::abs(decision.crops[frame].x - decision.crops[frame - 1].x);
        EXPECT_TRUE(step < 0.005 || step > 0.4) << frame << ": " << step;
        jumps += step > 0.4 ? 1 : 0;
    }
    EXPECT_EQ(jumps, 2);
}

TEST(KxSpeakerDecision, WithoutSoundNothingChanges)
{
    KxSubjectRecord record = MadeSpeech::Record(Interview());
    KxSubjectRecord withoutMouths = record;
    withoutMouths.mouths.clear();
    withoutMouths.sound.clear();
    const KxSubjectDecision plain = Decide(withoutMouths);
    EXPECT_FALSE(AreEqual(Decide(record), plain));
    EXPECT_TRUE(AreEqual(Decide(record, Request({9, 16}, KxSpeakerMode::Off)), plain));
    record.sound.clear();
    EXPECT_TRUE(AreEqual(Decide(record), plain));
    EXPECT_EQ(Decide(record).findings.shots[0].speech, KxSpeech::None);
}

TEST(KxSpeakerDecision, WithOneFaceNothingChanges)
{
    KxSubjectRecord record = MadeSpeech::Record({20.0, {0.25}, {{2.0, 18.0, 0}}, {}});
    const KxSubjectDecision decision = Decide(record);
    EXPECT_EQ(decision.findings.shots[0].speech, KxSpeech::None);
    EXPECT_TRUE(AreEqual(decision, Decide(record, Request({9, 16}, KxSpeakerMode::Off))));
}

TEST(KxSpeakerDecision, WhenItIsNotClearWhoSpeaksNothingChanges)
{
    // Both mouths move, neither with the sound.
    const KxSubjectRecord record =
        MadeSpeech::Record({20.0, {0.25, 0.75}, {{0.0, 20.0, MadeSpeech::Offscreen}}, {0, 1}});
    KxSubjectOptions strict;
    strict.speech.leastMargin = 10.0;
    const KxSubjectDecision decision = KxDecide(record, Request(), strict, KxCancelToken());
    EXPECT_EQ(decision.findings.shots[0].speech, KxSpeech::Unclear);
    EXPECT_TRUE(AreEqual(decision, Decide(record, Request({9, 16}, KxSpeakerMode::Off))));
}

TEST(KxSpeakerDecision, WhoChewsIsNotFollowed)
{
    MadeSpeech::Scene scene{20.0, {0.25, 0.75}, {{1.0, 8.0, 0}, {10.0, 18.0, 0}}, {1}};
    const KxSubjectDecision decision = Decide(MadeSpeech::Record(scene));
    for (const double seconds : {2.0, 5.0, 9.0, 12.0, 17.0}) {
        EXPECT_TRUE(Holds(decision.crops[static_cast<std::size_t>(seconds * 25.0)], 0.25)) << seconds;
    }
}

TEST(KxSpeakerDecision, PeopleWhoFitIntoTheCropAreShownTogether)
{
    MadeSpeech::Scene scene = Interview();
    scene.places = {0.5, 0.75};
    const KxSubjectDecision decision = Decide(MadeSpeech::Record(scene), Request({1, 1}));
    for (const KxCropRect& crop : decision.crops) {
        EXPECT_TRUE(Holds(crop, 0.5) && Holds(crop, 0.75)) << crop.x;
    }
}

TEST(KxSpeakerDecision, AShortInterjectionIsNotFollowed)
{
    MadeSpeech::Scene scene{20.0, {0.25, 0.75}, {{0.0, 6.0, 0}, {6.0, 6.4, 1}, {6.4, 13.0, 0}, {13.0, 20.0, 1}}, {}};
    const KxSubjectDecision decision = Decide(MadeSpeech::Record(scene));
    for (double seconds = 0.5; seconds < 12.0; seconds += 0.1) {
        EXPECT_TRUE(Holds(decision.crops[static_cast<std::size_t>(seconds * 25.0)], 0.25)) << seconds;
    }
}

TEST(KxSpeakerDecision, WhileNobodyVisibleSpeaksTheCropStays)
{
    MadeSpeech::Scene scene{
        20.0, {0.25, 0.75}, {{0.0, 6.0, 0}, {6.0, 12.0, MadeSpeech::Offscreen}, {14.0, 20.0, 1}}, {}};
    const KxSubjectDecision decision = Decide(MadeSpeech::Record(scene));
    EXPECT_TRUE(Holds(decision.crops[25 * 3], 0.25));
    EXPECT_TRUE(Holds(decision.crops[25 * 11], 0.25));
    EXPECT_TRUE(Holds(decision.crops[25 * 13], 0.25));
    EXPECT_TRUE(Holds(decision.crops[25 * 17], 0.75));
}

TEST(KxSpeakerDecision, ThePeopleOfEveryShotAreOthers)
{
    MadeSpeech::Scene scene = Interview();
    KxSubjectRecord record = MadeSpeech::Record(scene);
    record.boundaries = {{250, 250, 250, KxShotBoundaryKind::Cut}};
    const KxSubjectDecision decision = Decide(record);
    ASSERT_EQ(decision.crops.size(), 500U);
    ASSERT_EQ(decision.findings.shots.size(), 2U);
    EXPECT_TRUE(Holds(decision.crops[100], 0.25));
    EXPECT_TRUE(Holds(decision.crops[240], 0.75));
    EXPECT_TRUE(Holds(decision.crops[260], 0.75));
    EXPECT_TRUE(Holds(decision.crops[400], 0.25));
}

TEST(KxSpeakerDecision, WhereTheSecondFaceIsSeenBrieflyNothingChanges)
{
    KxSubjectRecord record = MadeSpeech::Record(Interview());
    record.mouths[1].looks.resize(75);
    const KxSubjectDecision decision = Decide(record);
    EXPECT_EQ(decision.findings.shots[0].speech, KxSpeech::None);
    EXPECT_TRUE(AreEqual(decision, Decide(record, Request({9, 16}, KxSpeakerMode::Off))));
}

TEST(KxSpeakerDecision, AFaceThatIsLostForAWhileIsStillFollowed)
{
    KxSubjectRecord record = MadeSpeech::Record(Interview());
    std::vector<KxMouthLook>& looks = record.mouths[1].looks;
    looks.erase(looks.begin() + 30, looks.begin() + 60);
    const KxSubjectDecision decision = Decide(record);
    EXPECT_TRUE(Holds(decision.crops[25 * 4], 0.25));
    EXPECT_TRUE(Holds(decision.crops[25 * 10], 0.75));
}
