#include <KxSubject/KxShotDoubt.h>
#include <Tests/KxSubject/DecidedScenes.h>

using namespace DecidedScenes;

TEST(KxSubjectFindings, FindingsNameTheShotsAndTheirDominantSignals)
{
    Task task = MakeTask(200);
    task.request.wantsFindings = true;
    KxSubjectObserver observer = Observer(task);
    for (std::int64_t frame = 0; frame < 200; ++frame) {
        observer.AddPicture(frame, ViewOf(frame < 150 ? Walk(frame) : Picture(0.76, 40.0, 22)));
    }
    const auto [crops, findings] = Decide(observer, task);
    ASSERT_EQ(findings.shots.size(), 2U);
    EXPECT_EQ(findings.shots[0].first, 0);
    EXPECT_EQ(findings.shots[0].end, 150);
    EXPECT_EQ(findings.shots[1].end, 200);
    EXPECT_TRUE(findings.shots[0].dominantSignal == KxSignal::Movers ||
                findings.shots[0].dominantSignal == KxSignal::Motion);
    EXPECT_EQ(findings.shots[1].dominantSignal, KxSignal::Saliency) << "nothing moves";
    ASSERT_FALSE(findings.samples.empty());
    for (const KxSubjectFindings::Sample& sample : findings.samples) {
        EXPECT_NEAR(sample.wanted, Middle(crops[static_cast<std::size_t>(sample.frame)]), 0.1) << sample.frame;
    }
}

TEST(KxSubjectFindings, AShotIsDoubtfulWhenTheCropCannotHoldWhatWasFound)
{
    const auto confidence = [](const std::vector<float>& lefts) {
        Task task = MakeTask(50);
        task.request.wantsFindings = true;
        KxSubjectRecord record;
        record.source = task.source;
        record.workingSizePx = {320, 180};
        for (std::int32_t frame = 0; frame < 50; frame += 5) {
            record.samples.push_back({frame, {}, {}});
            KxDetectionLook look{frame, {}};
            for (const float left : lefts) {
                look.found.push_back({left, 0.2F, 0.1F, 0.5F, 0.9F, KxDetectionKind::Person});
            }
            record.looks.push_back(look);
        }
        return KxDecide(record, task.request, {}, KxCancelToken()).findings.shots.at(0).confidence;
    };
    EXPECT_GT(confidence({0.4F}), 0.9F);
    EXPECT_LT(confidence({0.05F, 0.85F}), 0.6F);
    EXPECT_EQ(confidence({}), 0.0F);
}

TEST(KxSubjectFindings, NothingStandsOutInAShotWithoutSamples)
{
    Task task = MakeTask(50);
    task.request.wantsFindings = true;
    KxSubjectRecord record;
    record.source = task.source;
    record.workingSizePx = {320, 180};
    record.boundaries = {{30, 30, 30, KxShotBoundaryKind::Cut}};
    record.samples = {{0, {}, {}}, {15, {}, {}}};
    const KxSubjectFindings findings = KxDecide(record, task.request, {}, KxCancelToken()).findings;
    ASSERT_EQ(findings.shots.size(), 2U);
    EXPECT_EQ(findings.samples.size(), 2U);
    EXPECT_EQ(findings.shots[1].evidence, 0.0F);
    EXPECT_EQ(findings.shots[1].confidence, 0.0F);
    EXPECT_EQ(KxDoubtOf(findings.shots[1]), KxShotDoubt::NothingStandsOut);
}

TEST(KxSubjectFindings, FindingsContainTheEvidenceThatWasUsed)
{
    const auto peak = [](double concentration) {
        Task task = MakeTask(50);
        task.request.wantsFindings = true;
        KxSubjectOptions options;
        options.evidence.concentration = concentration;
        KxSubjectObserver observer(task.source, NoModels, options);
        for (std::int64_t frame = 0; frame < 50; ++frame) {
            observer.AddPicture(frame, ViewOf(Walk(frame)));
        }
        const KxSignalProfile evidence = Decide(observer, task, options).findings.samples.at(10).evidence.Unpacked();
        return *std::max_element(evidence.share.begin(), evidence.share.end());
    };
    EXPECT_GT(peak(2.0), 1.3F * peak(1.0));
}

TEST(KxSubjectFindings, FindingsAreKeptOnlyOnRequest)
{
    const Task task = MakeTask(30);
    KxSubjectObserver observer = Observer(task);
    observer.AddPicture(0, ViewOf(Walk(0)));
    EXPECT_TRUE(Decide(observer, task).findings.samples.empty());
}
