#include <KxSubject/Choice/KxCentreScore.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace
{

const KxCropGeometry Portrait({1920, 1080}, {9, 16}, {});

double BestCentre(const KxCentreScore& score, const KxSignalProfile& profile)
{
    const KxCentreScore::Scores scores = score.Of(profile);
    const auto best = std::max_element(scores.begin(), scores.end());
    return score.CentreAt(static_cast<std::size_t>(best - scores.begin()));
}

} // namespace

TEST(KxCentreScore, PositionsRunFromEdgeToEdge)
{
    const KxCentreScore score(KxSubjectOptions().evidence, Portrait);
    EXPECT_DOUBLE_EQ(score.CentreAt(0), Portrait.MinimumCentre());
    EXPECT_NEAR(score.CentreAt(KxCentreScore::Positions - 1), Portrait.MaximumCentre(), 1e-12);
}

TEST(KxCentreScore, WithoutEvidenceTheMiddleIsBest)
{
    const KxCentreScore score(KxSubjectOptions().evidence, Portrait);
    EXPECT_NEAR(BestCentre(score, {}), 0.5, score.Spacing());
}

TEST(KxCentreScore, AnObjectIsBestInTheMiddleOfTheCrop)
{
    KxSubjectOptions::Evidence options;
    options.centrePriorAcross = 0.0;
    const KxCentreScore score(options, Portrait);
    KxSignalProfile profile;
    profile.Add(0.30, 0.34, 0.8);
    EXPECT_NEAR(BestCentre(score, profile), 0.32, 2.0 * score.Spacing());
}

TEST(KxCentreScore, AScoreIsTheMassUnderTheWindowLessThePrior)
{
    const KxSubjectOptions::Evidence options;
    const KxCentreScore score(options, Portrait);
    KxSignalProfile profile;
    const double centre = score.CentreAt(20);
    profile.Add(centre - 0.001, centre + 0.001, 0.5);
    const double off = (centre - 0.5) / 0.5;
    EXPECT_NEAR(score.Of(profile)[20], 0.5 - options.centrePriorAcross * off * off, 0.01);
    EXPECT_NEAR(score.Of(profile)[90], -options.centrePriorAcross * std::pow((score.CentreAt(90) - 0.5) / 0.5, 2.0),
                1e-5);
}

TEST(KxCentreScore, TheWindowFallsAsTheSquaredCosineToItsFlatPart)
{
    constexpr std::size_t middle = KxCentreScore::Positions / 2;
    constexpr double pi = 3.14159265358979;
    for (const double flat : {0.0, 0.4}) {
        KxSubjectOptions::Evidence options;
        options.centrePriorAcross = 0.0;
        options.windowFlatAcross = flat;
        const KxCentreScore score(options, Portrait);
        for (const std::size_t bin : {48U, 52U, 55U, 58U, 61U}) {
            KxSignalProfile profile;
            profile.share[bin] = 1.0F;
            const double offset = (static_cast<double>(bin) + 0.5) / KxSignalProfile::Bins - score.CentreAt(middle);
            const double cosine = std::cos(pi * offset / Portrait.Extent());
            EXPECT_NEAR(score.Of(profile)[middle], flat + (1.0 - flat) * cosine * cosine, 1e-4) << bin << ", " << flat;
        }
    }
}

TEST(KxCentreScore, ForWholeThingsTheWindowFallsBesideTheEdgesOfAWideCrop)
{
    constexpr std::size_t middle = KxCentreScore::Positions / 2;
    constexpr double pi = 3.14159265358979;
    KxSubjectOptions::Evidence options;
    options.centrePriorAcross = 0.0;
    options.windowFlatAcross = 0.4;
    const double margin = Portrait.Extent() / 2.0;
    for (const KxIntSize aspect : {KxIntSize{1, 1}, KxIntSize{4, 5}, KxIntSize{4, 3}}) {
        const KxCropGeometry wide({1920, 1080}, aspect, {});
        const KxCentreScore score(options, wide);
        for (std::size_t bin = 48; bin < 96; bin += 3) {
            KxSignalProfile profile;
            profile.share[bin] = 1.0F;
            const double offset = (static_cast<double>(bin) + 0.5) / KxSignalProfile::Bins - score.CentreAt(middle);
            const double fromEdge = wide.Extent() / 2.0 - offset;
            if (std::abs(fromEdge) > 0.5 / KxSignalProfile::Bins) {
                const double sine = std::sin(pi / 2.0 * std::min(fromEdge / margin, 1.0));
                EXPECT_NEAR(score.Of(profile, profile)[middle], fromEdge > 0.0 ? 0.4 + 0.6 * sine * sine : 0.0, 1e-4)
                    << bin << ", " << aspect.width << ":" << aspect.height;
            }
        }
    }
}

TEST(KxCentreScore, ANarrowCropHasOneWindowForAllEvidence)
{
    for (const KxIntSize aspect : {KxIntSize{9, 16}, KxIntSize{1, 2}}) {
        const KxCentreScore score(KxSubjectOptions().evidence, KxCropGeometry({1920, 1080}, aspect, {}));
        KxSignalProfile profile;
        profile.Add(0.3, 0.7, 0.8);
        EXPECT_EQ(score.Of(profile, profile), score.Of(profile));
    }
}

TEST(KxCentreScore, EvenlySpreadEvidencePrefersNoPosition)
{
    const KxCentreScore score(KxSubjectOptions().evidence, Portrait);
    KxSignalProfile even;
    even.Add(0.0, 1.0, 1.0);
    EXPECT_NEAR(score.Excess(0.3, even), 0.0F, 1e-4F);

    KxSignalProfile object = even;
    const double centre = score.CentreAt(20);
    object.Add(centre - 0.001, centre + 0.001, 0.5);
    const KxCentreScore::Scores scores = score.Of(object);
    const KxCentreScore::Scores without = score.Of(even);
    double mean = 0.0;
    for (std::size_t i = 0; i < scores.size(); ++i) {
        mean += static_cast<double>(scores[i] - without[i]) / static_cast<double>(scores.size());
    }
    EXPECT_NEAR(score.Excess(centre, object), static_cast<double>(scores[20] - without[20]) - mean, 1e-4);
    EXPECT_EQ(score.Excess(score.CentreAt(90), object), 0.0F) << "less than on average";
}

TEST(KxCentreScore, ACropThatFillsThePictureHasOnePosition)
{
    const KxCentreScore score(KxSubjectOptions().evidence, KxCropGeometry({1920, 1080}, {16, 9}, {}));
    EXPECT_NEAR(score.Spacing(), 0.0, 1e-12);
    KxSignalProfile profile;
    profile.Add(0.1, 0.2, 1.0);
    EXPECT_NEAR(BestCentre(score, profile), 0.5, 1e-9);
    for (int bin = 0; bin < 96; ++bin) {
        profile.Add(bin / 96.0, (bin + 1) / 96.0, 0.01 * bin);
        EXPECT_EQ(score.Excess(0.5, profile), 0.0F) << "only this place, after " << bin;
    }
}
