#include <KxSubject/KxSubjectSampling.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace
{

KxSubjectSampling SamplingAt(double frameRate, std::int64_t frames = 1000)
{
    return {{1920, 1080, frameRate, frames}, KxSubjectOptions().sampling};
}

/// The samples among the frames that are wanted, of which only one in `every` is there.
std::vector<std::int64_t> SamplesOf(const KxSubjectSampling& sampling, std::int64_t frames, std::int64_t every = 1)
{
    std::vector<std::int64_t> samples;
    std::optional<std::int64_t> before;
    for (std::int64_t frame = 0; frame < frames; frame += every) {
        if (sampling.Wants(frame)) {
            if (sampling.IsSample(frame, before)) {
                samples.push_back(frame);
            }
            before = frame;
        }
    }
    return samples;
}

} // namespace

TEST(KxSubjectSampling, TenSamplesASecondAreTaken)
{
    EXPECT_THAT(SamplesOf(SamplingAt(30.0), 13), testing::ElementsAre(0, 3, 6, 9, 12));
    EXPECT_THAT(SamplesOf(SamplingAt(25.0), 13), testing::ElementsAre(0, 3, 5, 8, 10));
    EXPECT_EQ(SamplesOf(SamplingAt(30000.0 / 1001.0), 900).size(), 301U);
    EXPECT_EQ(SamplesOf(SamplingAt(240.0), 960).size(), 40U);
}

TEST(KxSubjectSampling, EveryPictureOfASlowOrThinnedVideoIsASample)
{
    EXPECT_EQ(SamplesOf(SamplingAt(8.0), 40).size(), 40U);
    EXPECT_EQ(SamplesOf(SamplingAt(30.0), 120, 4).size(), 30U);
}

TEST(KxSubjectSampling, AfterAGapTheNextPictureIsASample)
{
    const KxSubjectSampling sampling = SamplingAt(30.0);
    EXPECT_FALSE(sampling.IsSample(1, 0));
    EXPECT_TRUE(sampling.IsSample(50, 0));
    EXPECT_TRUE(sampling.IsSample(1, std::nullopt));
}

TEST(KxSubjectSampling, AnImpossibleSourceIsReplacedByAPossibleOne)
{
    const KxSubjectSampling sampling({0, -3, std::nan(""), -1}, KxSubjectOptions().sampling);
    EXPECT_EQ(sampling.Source().frameCount, 0);
    EXPECT_GT(sampling.Source().frameRate, 0.0);
    EXPECT_EQ(sampling.WorkingSize(), (KxIntSize{320, 320}));
}
