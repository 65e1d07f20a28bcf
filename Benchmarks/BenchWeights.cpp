// Analyses a file with some tuning values changed, to measure their effect:
//   BenchWeights CLIP W:H OUT.json [NAME=FACTOR]...
//   BenchWeights names
// Each named value is multiplied by FACTOR. The crop track is written to OUT.json.

#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoScanner.h>
#include <KxModel/KxFaceModelFiles.h>
#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectDecision.h>
#include <KxSubject/KxSubjectObserver.h>
#include <KxSubject/KxSubjectOptions.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <cstdio>

namespace
{

QMap<QString, double*> Values(KxSubjectOptions& options)
{
    KxSubjectOptions::Evidence& evidence = options.evidence;
    KxSubjectOptions::Path& path = options.path;
    KxSubjectOptions::Movers& movers = options.movers;
    KxSubjectOptions::Reaction& reaction = options.automatic;
    return {{QStringLiteral("motionWeight"), &evidence.motionWeight},
            {QStringLiteral("moverWeight"), &evidence.moverWeight},
            {QStringLiteral("saliencyWeightAcross"), &evidence.saliencyWeightAcross},
            {QStringLiteral("saliencyWeightUpDown"), &evidence.saliencyWeightUpDown},
            {QStringLiteral("faceWeight"), &evidence.faceWeight},
            {QStringLiteral("emptyFloor"), &evidence.emptyFloor},
            {QStringLiteral("concentration"), &evidence.concentration},
            {QStringLiteral("windowFlatAcross"), &evidence.windowFlatAcross},
            {QStringLiteral("windowFlatUpDown"), &evidence.windowFlatUpDown},
            {QStringLiteral("centrePriorAcross"), &evidence.centrePriorAcross},
            {QStringLiteral("centrePriorUpDown"), &evidence.centrePriorUpDown},
            {QStringLiteral("moverExtentShare"), &movers.extentShare},
            {QStringLiteral("moverReach"), &movers.reachPerSecond},
            {QStringLiteral("moverSecondsToFull"), &movers.secondsToFull},
            {QStringLiteral("moverFullTravel"), &movers.fullTravel},
            {QStringLiteral("moverEmptyFloor"), &movers.emptyFloor},
            {QStringLiteral("moveCost"), &path.moveCost},
            {QStringLiteral("speedWeight"), &path.speedWeight},
            {QStringLiteral("accelerationWeight"), &path.accelerationWeight},
            {QStringLiteral("jerkWeight"), &path.jerkWeight},
            {QStringLiteral("stillRange"), &reaction.stillRange},
            {QStringLiteral("deadZone"), &reaction.deadZone}};
}

QJsonArray Track(KxVideoScanner& scanner, const QSize& aspect, const KxSubjectOptions& options)
{
    const KxMediaFacts facts = scanner.Facts();
    const KxSubjectSource source{facts.video->resolution.width(), facts.video->resolution.height(),
                                 facts.video->frameRate.ToDouble(), facts.video->frameCount};
    KxSubjectObserver observer(source, KxFaceModelFiles::Read({}).models, options);
    const QSize size(observer.WorkingSize().width, observer.WorkingSize().height);
    KxPictureScaler scaler(KxPictureScaler::Detail::Coarse);
    KxVideoFrame picture;
    while (scanner.Next(picture) == KxReadStatus::Delivered) {
        const QImage image = scaler.Scale(picture, size, QImage::Format_BGR888);
        observer.AddPicture(
            picture.Index(),
            {image.constBits(), {image.width(), image.height()}, static_cast<std::size_t>(image.bytesPerLine())});
    }
    QJsonArray frames;
    for (const KxCropRect& crop :
         KxDecide(observer.Finish(), {aspect.width(), aspect.height()}, options, KxCancelToken()).crops) {
        frames.append(QJsonArray{crop.x, crop.y, crop.width, crop.height});
    }
    return frames;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    KxSubjectOptions options;
    const QMap<QString, double*> values = Values(options);
    if (arguments.size() == 2 && arguments[1] == QLatin1String("names")) {
        std::puts(qPrintable(QStringList(values.keys()).join(QLatin1Char('\n'))));
        return 0;
    }
    const QStringList aspect = arguments.value(2).split(QLatin1Char(':'));
    if (arguments.size() < 4 || aspect.size() != 2) {
        std::fputs("Usage: BenchWeights CLIP W:H OUT.json [NAME=FACTOR]...\n", stderr);
        return 2;
    }
    for (const QString& change : arguments.mid(4)) {
        const QStringList parts = change.split(QLatin1Char('='));
        if (parts.size() != 2 || !values.contains(parts[0])) {
            std::fprintf(stderr, "There is no value of the name in %s.\n", qPrintable(change));
            return 2;
        }
        *values[parts[0]] *= parts[1].toDouble();
    }
    const KxResult<std::unique_ptr<KxVideoScanner>> scanner = KxVideoScanner::Open(arguments[1], KxCancelToken());
    if (!scanner) {
        std::fprintf(stderr, "%s\n", qPrintable(scanner.Message()));
        return 1;
    }
    const QJsonArray frames = Track(**scanner, QSize(aspect[0].toInt(), aspect[1].toInt()), options);
    QFile file(arguments[3]);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(QJsonDocument(QJsonObject{{QStringLiteral("frames"), frames}}).toJson(QJsonDocument::Compact)) < 0) {
        std::fprintf(stderr, "Cannot write %s: %s.\n", qPrintable(arguments[3]), qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
