#include <KxSubject/Choice/KxShotConfidence.h>

#include <gtest/gtest.h>

#include <vector>

namespace
{

const KxSubjectOptions Options;
const KxCropGeometry Portrait({1920, 1080}, {9, 16}, {0.0, 0.0, 1.0, 1.0});
const KxCentreScore Score(Options.evidence, Portrait);

/// Evidence around one place, and of another weight around another.
KxSignalProfile Evidence(double at, double other = 0.0, double otherAt = 0.8)
{
    KxSignalProfile profile;
    profile.Add(at - 0.05, at + 0.05, 1.0);
    profile.Add(otherAt - 0.05, otherAt + 0.05, other);
    return profile;
}

/// Of a shot in which the crop is drawn at one place, with the signals as they are given.
float Confidence(const std::vector<KxSignalProfile>& signals, double drawn = 0.3, const KxCentreScore& score = Score,
                 double halfExtent = Portrait.Extent() / 2.0)
{
    KxSignalProfile evidence;
    for (const KxSignalProfile& signal : signals) {
        evidence.Add(signal, 1.0);
    }
    KxShotConfidence confidence(score, halfExtent);
    for (int i = 0; i < 20; ++i) {
        confidence.Add(drawn, evidence);
        for (const KxSignalProfile& signal : signals) {
            confidence.AddSignal(drawn, signal);
        }
    }
    return confidence.Value();
}

} // namespace

TEST(KxShotConfidence, OneSubjectInsideTheCropIsCertain)
{
    EXPECT_GT(Confidence({Evidence(0.3)}), 0.95F);
}

TEST(KxShotConfidence, WithoutEvidenceThereIsNone)
{
    EXPECT_EQ(Confidence({}), 0.0F);
}

TEST(KxShotConfidence, AnEqualSubjectElsewhereIsDoubtful)
{
    EXPECT_LT(Confidence({Evidence(0.3, 0.95)}), 0.55F) << "in one signal";
    EXPECT_LT(Confidence({Evidence(0.3), Evidence(0.8)}), 0.55F) << "one signal each";
}

TEST(KxShotConfidence, ASecondSubjectIsARivalOutsideTheCropAlone)
{
    EXPECT_GT(Confidence({Evidence(0.3, 0.7, 0.4)}, 0.35), 0.9F);
    KxSignalProfile beside = Evidence(0.3);
    beside.Add(0.595, 0.605, 0.1);
    EXPECT_LT(Confidence({beside}), 0.6F) << "small, but as tall";
}

TEST(KxShotConfidence, ASecondSubjectCostsMoreInOnePlaceThanSpread)
{
    KxSignalProfile spread = Evidence(0.3);
    spread.Add(0.6, 1.0, 0.6);
    EXPECT_LT(Confidence({Evidence(0.3, 0.6)}), Confidence({spread}) - 0.1F);
}

TEST(KxShotConfidence, AMuchTallerRivalIsNoWorseThanATallerOne)
{
    KxSignalProfile inside;
    inside.Add(0.2, 0.4, 0.6);
    KxSignalProfile taller;
    taller.Add(0.6, 0.7, 0.4);
    KxSignalProfile muchTaller;
    muchTaller.Add(0.645, 0.655, 0.4);
    EXPECT_NEAR(Confidence({inside, taller}), Confidence({inside, muchTaller}), 0.01F);
    EXPECT_GT(Confidence({inside, taller}), 0.2F) << "no other doubt hides the rival";
}

TEST(KxShotConfidence, SignalsThatWantTheCropElsewhereCostMoreThanOneThatIsUndecided)
{
    KxSignalProfile weak;
    weak.Add(Evidence(0.3), 0.4);
    KxSignalProfile other;
    other.Add(Evidence(0.8), 0.4);
    KxSignalProfile both = weak;
    both.Add(other, 1.0);
    const KxSignalProfile strong = Evidence(0.3);
    EXPECT_LT(Confidence({strong, weak, other}), Confidence({strong, both}) - 0.05F) << "of the same evidence in all";
}

TEST(KxShotConfidence, HowFarAwayAnotherCropIsDoesNotMatter)
{
    EXPECT_NEAR(Confidence({Evidence(0.3), Evidence(0.6)}), Confidence({Evidence(0.3), Evidence(0.9)}), 0.01F);
}

TEST(KxShotConfidence, APathThatStaysBehindIsLessCertain)
{
    EXPECT_LT(Confidence({Evidence(0.3)}, 0.4), Confidence({Evidence(0.3)}, 0.34) - 0.05F);
}

TEST(KxShotConfidence, WhereNoOtherCropIsPossibleOnlyTheEvidenceInsideCounts)
{
    const KxCropGeometry wide({1920, 1080}, {16, 10}, {0.0, 0.0, 1.0, 1.0});
    const KxCentreScore score(Options.evidence, wide);
    EXPECT_GT(Confidence({Evidence(0.3, 0.95)}, 0.5, score, wide.Extent() / 2.0), 0.85F);
}
