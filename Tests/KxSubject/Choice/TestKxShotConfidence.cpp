#include <KxSubject/Choice/KxShotConfidence.h>

#include <gtest/gtest.h>

#include <vector>

namespace
{

const KxSubjectOptions Options;
const KxCropGeometry Portrait({1920, 1080}, {9, 16}, {0.0, 0.0, 1.0, 1.0});
const KxCentreScore Score(Options.evidence, Portrait);
constexpr double CostPerPosition = 0.02;

/// Evidence around one place, and of another weight around another.
KxSignalProfile Evidence(double at, double other = 0.0, double otherAt = 0.8)
{
    KxSignalProfile profile;
    profile.Add(at - 0.05, at + 0.05, 1.0);
    profile.Add(otherAt - 0.05, otherAt + 0.05, other);
    return profile;
}

/// Of a shot in which the crop is chosen at .3 and the path is drawn beside it, with the signals as they are given.
float Confidence(const std::vector<KxSignalProfile>& signals, double behind = 0.0, const KxCentreScore& score = Score,
                 double halfExtent = Portrait.Extent() / 2.0)
{
    KxSignalProfile evidence;
    for (const KxSignalProfile& signal : signals) {
        evidence.Add(signal, 1.0);
    }
    KxShotConfidence confidence(score, halfExtent, CostPerPosition);
    double chosenTotal = 0.0;
    for (int i = 0; i < 20; ++i) {
        confidence.Add({0.3, 0.3 + behind}, evidence);
        for (const KxSignalProfile& signal : signals) {
            confidence.AddSignal(0.3 + behind, signal);
        }
        chosenTotal += static_cast<double>(score.Of(evidence)[score.PositionOf(0.3)]);
    }
    return confidence.Value(chosenTotal);
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
    EXPECT_LT(Confidence({Evidence(0.3, 0.95)}), Confidence({Evidence(0.3, 0.3)}));
    EXPECT_LT(Confidence({Evidence(0.3), Evidence(0.8)}), 0.55F) << "one signal each";
}

TEST(KxShotConfidence, ASecondSubjectCostsMoreInOnePlaceThanSpread)
{
    KxSignalProfile spread = Evidence(0.3);
    spread.Add(0.6, 1.0, 0.6);
    EXPECT_LT(Confidence({Evidence(0.3, 0.6)}), Confidence({spread}));
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

TEST(KxShotConfidence, APathThatStaysBehindIsLessCertain)
{
    EXPECT_LT(Confidence({Evidence(0.3)}, 0.1), Confidence({Evidence(0.3)}, 0.04) - 0.05F);
}

TEST(KxShotConfidence, WhereNoOtherCropIsPossibleOnlyTheEvidenceInsideCounts)
{
    const KxCropGeometry wide({1920, 1080}, {16, 10}, {0.0, 0.0, 1.0, 1.0});
    const KxCentreScore score(Options.evidence, wide);
    EXPECT_GT(Confidence({Evidence(0.3)}, 0.0, score, wide.Extent() / 2.0), 0.9F);
}
