// How long a person waits for the crop of a video that was looked at before, by the engine of the dialog, from the
// click to the last keyframe:
//   BenchAnswer VIDEO RECORDS SECONDS X,Y,W,H [ROUNDS]
//       RECORDS is the folder of what analyses saw, so that only the first run looks at the video. The box, in
//       fractions of the picture at the time SECONDS, is what a person points at; by turns without and with partial
//       results, as the dialog wants them (growing). Prints one line of JSON:
//       milliseconds, of each kind the median and the longest.

#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>
#include <KxModel/KxAutoReframeService.h>
#include <KxModel/KxDetectorFiles.h>
#include <KxModel/KxMediaItem.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>

namespace
{

constexpr int Automatic = 16;
constexpr int Fast = 8;
constexpr int Slow = 24;

/// In milliseconds.
struct Taken {
    double waited = 0.0;
    double processor = 0.0;
};

/// Negative if there is no result.
Taken Answer(KrAutoReframeProcess& process, const QSize& aspect, int speed)
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    const std::clock_t processorStart = std::clock();
    QEventLoop loop;
    bool hasSucceeded = false;
    QObject::connect(&process, &KrAutoReframeProcess::sigProcessFinished, &loop, [&](bool success) {
        hasSucceeded = success;
        loop.quit();
    });
    if (process.StartAnalyze(aspect.width(), aspect.height(), speed) == 0) {
        loop.exec();
    }
    const std::chrono::duration<double, std::milli> waited = Clock::now() - start;
    const double processor = 1000.0 * static_cast<double>(std::clock() - processorStart) / CLOCKS_PER_SEC;
    const bool hasResult = hasSucceeded && !process.GetHelper()->GetDisplayResults().isEmpty();
    return hasResult ? Taken{waited.count(), processor} : Taken{-1.0, -1.0};
}

void Add(QJsonObject& found, const QString& what, const std::vector<Taken>& answers)
{
    std::vector<double> waited;
    std::vector<double> processor;
    for (const Taken& answer : answers) {
        waited.push_back(answer.waited);
        processor.push_back(answer.processor);
    }
    std::sort(waited.begin(), waited.end());
    std::sort(processor.begin(), processor.end());
    found.insert(what + QStringLiteral("MedianMs"), waited[waited.size() / 2]);
    found.insert(what + QStringLiteral("MaxMs"), waited.back());
    found.insert(what + QStringLiteral("ProcessorMs"), processor[processor.size() / 2]);
}

/// `round` moves the box by a hair: what was followed before is not followed again.
QList<KxAutoReframeChoice> Follow(const QRectF& box, double seconds, double end, int round)
{
    KxAutoReframeChoice choice;
    choice.kind = KxAutoReframeChoice::Kind::Follow;
    choice.toSeconds = end;
    choice.seeds = {{seconds, box.translated(0.0001 * round, 0.0), false}};
    return {choice};
}

QJsonObject Measure(KrAutoReframeProcess& process, const QRectF& box, double seconds, int rounds)
{
    KxAutoReframeService& service = KxAutoReframeService::Instance();
    const QSize tall(9, 16);
    QJsonObject found{{QStringLiteral("frames"), process.GetHelper()->GetDuration()},
                      {QStringLiteral("firstMs"), Answer(process, tall, Automatic).waited}};
    std::vector<Taken> aspects;
    std::vector<Taken> speeds;
    std::vector<Taken> choices;
    std::vector<Taken> growing;
    for (int round = 1; round <= rounds; ++round) {
        aspects.push_back(Answer(process, round % 2 == 0 ? QSize(1, 1) : QSize(4, 5), Automatic));
        speeds.push_back(Answer(process, tall, round % 2 == 0 ? Fast : Slow));
        const auto* const media = static_cast<const KxClip*>(process.GetHelper()->GetSourceTimeline()->clips().first());
        const double end = process.GetHelper()->GetDuration() / media->StreamInfo().frameRate().ToDouble();
        for (const bool isPartial : {round % 2 == 0, round % 2 != 0}) {
            static_cast<IKxAutoReframeChoices&>(service).SetChoices(Follow(box, seconds, end, 2 * round + isPartial));
            service.CollectPartialResults(isPartial);
            (isPartial ? growing : choices).push_back(Answer(process, tall, Automatic));
        }
        static_cast<IKxAutoReframeChoices&>(service).SetChoices({});
    }
    Add(found, QStringLiteral("aspect"), aspects);
    Add(found, QStringLiteral("speed"), speeds);
    Add(found, QStringLiteral("choice"), choices);
    Add(found, QStringLiteral("growingChoice"), growing);
    return found;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    const QStringList arguments = QCoreApplication::arguments();
    const QStringList sides = arguments.value(4).split(QLatin1Char(','));
    if (arguments.size() < 5 || sides.size() != 4) {
        std::fputs("Usage: BenchAnswer VIDEO RECORDS SECONDS X,Y,W,H [ROUNDS]\n", stderr);
        return 2;
    }
    const KxResult<std::unique_ptr<KxMediaItem>> media = KxMediaItem::Open(arguments[1], KxCancelToken());
    if (!media) {
        std::fprintf(stderr, "%s\n", qPrintable(media.Message()));
        return 1;
    }
    KxAutoReframeService::PrepareProgram();
    KxAutoReframeService& service = KxAutoReframeService::Instance();
    service.SetNetworkFolder(KxDetectorFiles::FindNetworks().path);
    service.SetRecordFolder(arguments[2]);
    service.CollectShots(true);
    KrAutoReframeProcess process(nullptr);
    process.OpenMedia(media->get());
    const QRectF box(sides[0].toDouble(), sides[1].toDouble(), sides[2].toDouble(), sides[3].toDouble());
    constexpr int usualRounds = 5;
    const int rounds = arguments.size() > 5 ? std::max(1, arguments[5].toInt()) : usualRounds;
    const QJsonObject found = Measure(process, box, arguments[3].toDouble(), rounds);
    std::puts(QJsonDocument(found).toJson(QJsonDocument::Compact).constData());
    return 0;
}
