#include <KxSubject/KxSubjectDecision.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

constexpr std::int64_t Frames = 300;
constexpr double FrameRate = 30.0;
constexpr int FramesOfSample = 3;

KxPackedProfile MotionAt(double place)
{
    KxSignalProfile profile;
    profile.Add(place - 0.05, place + 0.05, 1.0);
    return KxPackedProfile(profile);
}

/// Movement on the left, but from the 150th frame on at `place` for `frames`.
KxSubjectRecord Excursion(double place, int frames)
{
    KxSubjectRecord record;
    record.source = {1280, 720, FrameRate, Frames};
    record.workingSizePx = {320, 180};
    for (int frame = 0; frame < Frames; frame += FramesOfSample) {
        const bool isAway = frame >= 150 && frame < 150 + frames;
        record.samples.push_back({frame, {MotionAt(isAway ? place : 0.2), MotionAt(0.5)}, {}});
    }
    return record;
}

/// How far apart the centres are that the evidence asks for.
double Range(const KxSubjectRecord& record, KxIntSize aspect)
{
    KxSubjectRequest request;
    request.aspectWidth = aspect.width;
    request.aspectHeight = aspect.height;
    request.wantsFindings = true;
    const KxSubjectDecision decision = KxDecide(record, request, KxSubjectOptions(), KxCancelToken());
    double low = 1.0;
    double high = 0.0;
    for (const KxSubjectFindings::Sample& sample : decision.findings.samples) {
        low = std::min(low, sample.wanted);
        high = std::max(high, sample.wanted);
    }
    return high - low;
}

} // namespace

TEST(KxWiderCrops, AMoveCostsAsMuchInWidthsOfTheCrop)
{
    const KxSubjectRecord excursion = Excursion(0.8, 42);
    EXPECT_LT(Range(excursion, {9, 16}), 0.01);
    EXPECT_GT(Range(excursion, {1, 1}), 0.2);
    EXPECT_LT(Range(Excursion(0.8, 24), {1, 1}), 0.01);
}
