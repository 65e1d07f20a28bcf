// Measures an edit on a clip of two hours at 30 frames a second: from the call until the keyframes have been passed to
// the host and the display rectangles are rebuilt. The limit is one frame of a 60 Hz display.

#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KxModel/KxSimpleTimeline.h>

#include <QCoreApplication>
#include <QEventLoop>

#include <benchmark/benchmark.h>

#include <memory>

namespace
{

constexpr int FrameCount = 216000;

std::shared_ptr<const KxMediaFacts> LongClip()
{
    KxMediaFacts facts;
    facts.path = QStringLiteral("long.mp4");
    KxVideoFacts video;
    video.resolution = QSize(1920, 1080);
    video.frameRate = {30, 1};
    video.frameCount = FrameCount;
    facts.video = video;
    return std::make_shared<const KxMediaFacts>(facts);
}

QList<IKxAutoReframeResult> Results()
{
    QList<IKxAutoReframeResult> results;
    results.reserve(FrameCount);
    for (int frame = 0; frame < FrameCount; ++frame) {
        results.append(IKxAutoReframeResult(frame, QRectF((frame % 600) / 1000.0, 0.0, 0.31640625, 1.0)));
    }
    return results;
}

void Apply(KrAutoReframeHelper& helper)
{
    QEventLoop loop;
    QObject::connect(&helper, &KrAutoReframeHelper::sigApplyFinished, &loop, &QEventLoop::quit);
    if (helper.ApplyResults(Results())) {
        loop.exec();
    }
}

/// A clip of that length, analysed once, as a person edits it.
struct EditedClip {
    EditedClip()
    {
        helper.SetTimeline(timeline.get());
        Apply(helper);
    }

    KxClip clip{LongClip()};
    std::unique_ptr<IKxTimeline, void (*)(IKxTimeline*)> timeline{IKxTimeline::createSimpleTimeline(&clip),
                                                                  &IKxTimeline::releaseInstance};
    KrAutoReframeHelper helper;
    uint frame = 5000;
};

/// Each repetition is one more edit of the same clip, so that the median over repetitions is that over edits.
void AddKeyFrame(benchmark::State& state)
{
    static EditedClip edited;
    for (auto _ : state) {
        edited.helper.AddKeyFrame(edited.frame, QRectF(0.3, 0.0, 0.31640625, 1.0));
        benchmark::DoNotOptimize(edited.helper.GetDisplayResults().size());
    }
    edited.frame = (edited.frame + 7919) % FrameCount;
}
BENCHMARK(AddKeyFrame)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(101)->ReportAggregatesOnly();

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
