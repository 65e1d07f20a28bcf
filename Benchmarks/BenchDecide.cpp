// Looks at videos once and decides often, to measure what the tuning values do:
//   BenchDecide observe CLIP RECORD [DETECTOR]
//       One pass over CLIP; DETECTOR is the file of the object detector.
//   BenchDecide truth RECORD TRUTH.csv OUT
//       RECORD with nothing in it but the boxes of TRUTH (frame,x,y,w,h in pixels).
//   BenchDecide boundaries RECORD
//       Each boundary's first frame of the new shot, its beginning, its end, its kind (0 cut, 1 dissolve, 2 fade).
//   BenchDecide shots RECORD=W:H
//       Each shot's first frame, its end, its confidence, its evidence.
//   BenchDecide names
//       The tuning values of the decision, with what they are now.
//   BenchDecide decide RECORD=W:H...
//       Decides on every record once for each line of the standard input: NAME=VALUE... Prints, for each line and
//       record, the number of frames (int32), the crop's width and height, and its left and top in each frame (float32,
//       fractions of the picture).

#include <KxMedia/Read/KxVideoScanner.h>
#include <KxModel/KxAnalysisPictures.h>
#include <KxModel/KxDetectorFiles.h>
#include <KxModel/KxSoundReading.h>
#include <KxModel/KxVideoObservation.h>
#include <KxSubject/KxSubjectDecision.h>
#include <KxSubject/KxSubjectObserver.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecordFormat.h>

#include <QCoreApplication>
#include <QFile>
#include <QMap>
#include <QTextStream>

#include <cstdio>

namespace
{

QMap<QString, double*> Values(KxSubjectOptions& options)
{
    KxSubjectOptions::Evidence& evidence = options.evidence;
    KxSubjectOptions::Path& path = options.path;
    KxSubjectOptions::Speech& speech = options.speech;
    KxSubjectOptions::Reaction& reaction = options.automatic;
    return {{QStringLiteral("motionWeight"), &evidence.motionWeight},
            {QStringLiteral("moverWeight"), &evidence.moverWeight},
            {QStringLiteral("saliencyWeight"), &evidence.saliencyWeight},
            {QStringLiteral("faceWeight"), &evidence.faceWeight},
            {QStringLiteral("emptyFloor"), &evidence.emptyFloor},
            {QStringLiteral("concentration"), &evidence.concentration},
            {QStringLiteral("windowFlatAcross"), &evidence.windowFlatAcross},
            {QStringLiteral("centrePriorAcross"), &evidence.centrePriorAcross},
            {QStringLiteral("centrePriorUpDown"), &evidence.centrePriorUpDown},
            {QStringLiteral("detectionWeight"), &evidence.detectionWeight},
            {QStringLiteral("detectionEmptyFloor"), &options.detections.emptyFloor},
            {QStringLiteral("detectionPersonUpperShare"), &options.detections.personUpperShare},
            {QStringLiteral("speechOpeningWeight"), &speech.openingWeight},
            {QStringLiteral("speechActivityWeight"), &speech.activityWeight},
            {QStringLiteral("speechChangeCost"), &speech.changeCost},
            {QStringLiteral("speechLeastMargin"), &speech.leastMargin},
            {QStringLiteral("moveCost"), &path.moveCost},
            {QStringLiteral("speedWeight"), &path.speedWeight},
            {QStringLiteral("accelerationWeight"), &path.accelerationWeight},
            {QStringLiteral("jerkWeight"), &path.jerkWeight},
            {QStringLiteral("stillSpeed"), &path.stillSpeed},
            {QStringLiteral("stillRange"), &reaction.stillRange},
            {QStringLiteral("deadZone"), &reaction.deadZone},
            {QStringLiteral("smoothing"), &reaction.smoothingSeconds}};
}

int Fail(const QString& message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    return 1;
}

std::optional<KxSubjectRecord> ReadRecord(const QString& path)
{
    QFile file(path);
    std::optional<KxSubjectRecord> record;
    if (file.open(QIODevice::ReadOnly)) {
        record = KxSubjectRecordFormat::Read(file.readAll().toStdString());
    }
    if (!record) {
        Fail(QStringLiteral("%1 is not a record of this version.").arg(path));
    }
    return record;
}

int WriteRecord(const KxSubjectRecord& record, const QString& path)
{
    QFile file(path);
    const std::string bytes = KxSubjectRecordFormat::Write(record);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), static_cast<qint64>(bytes.size())) < 0) {
        return Fail(QStringLiteral("Cannot write %1: %2.").arg(path, file.errorString()));
    }
    return 0;
}

int Observe(const QString& clip, const QString& recordPath, const QString& objectDetector)
{
    KxSubjectModels models = KxDetectorFiles::Read({}).models;
    if (!objectDetector.isEmpty()) {
        QFile file(objectDetector);
        if (!file.open(QIODevice::ReadOnly)) {
            return Fail(QStringLiteral("Cannot read %1: %2.").arg(objectDetector, file.errorString()));
        }
        models.objectDetector = file.readAll().toStdString();
    }
    const KxResult<std::unique_ptr<KxVideoScanner>> scanner = KxVideoScanner::Open(clip, KxCancelToken());
    if (!scanner) {
        return Fail(scanner.Message());
    }
    KxDecodedPictures pictures(**scanner);
    KxVideoObservation observation(pictures, *(*scanner)->Facts().video, KxCancelToken());
    if (const KxError problem = observation.Run(std::move(models), [](int) {})) {
        return Fail(QStringLiteral("Cannot observe %1: %2.").arg(clip, *problem));
    }
    KxSubjectRecord record = observation.TakeObserver()->Finish();
    KxSoundReading::AddTo(record, clip, (*scanner)->Facts().defaultAudio, (*scanner)->Clock(), KxCancelToken());
    return WriteRecord(record, recordPath);
}

int MakeTruth(const QString& recordPath, const QString& truthPath, const QString& outPath)
{
    std::optional<KxSubjectRecord> record = ReadRecord(recordPath);
    QFile truth(truthPath);
    if (!record || !truth.open(QIODevice::ReadOnly)) {
        return Fail(QStringLiteral("Cannot read %1 and %2.").arg(recordPath, truthPath));
    }
    const auto width = static_cast<float>(record->source.pictureWidthPx);
    const auto height = static_cast<float>(record->source.pictureHeightPx);
    QMap<int, std::vector<KxDetection>> boxes;
    truth.readLine();
    while (!truth.atEnd()) {
        const QList<QByteArray> fields = truth.readLine().split(',');
        const float left = qBound(0.0F, fields.value(1).toFloat() / width, 0.999F);
        const float top = qBound(0.0F, fields.value(2).toFloat() / height, 0.999F);
        boxes[fields.value(0).toInt()].push_back(
            {left, top, qBound(0.001F, fields.value(3).toFloat() / width, 1.0F - left),
             qBound(0.001F, fields.value(4).toFloat() / height, 1.0F - top), 1.0F, KxDetectionKind::Animal});
    }
    record->movers.clear();
    record->faces.clear();
    record->looks.clear();
    record->mouths.clear();
    record->sound.clear();
    for (KxSignalSample& sample : record->samples) {
        sample = {sample.frame, {}, {}};
        if (boxes.contains(sample.frame)) {
            record->looks.push_back({sample.frame, boxes[sample.frame]});
        }
    }
    return WriteRecord(*record, outPath);
}

/// A line for each boundary: the first frame of the new shot, where it begins, where it is complete, its kind (0 cut, 1
/// dissolve or wipe, 2 fade).
int PrintBoundaries(const QString& recordPath)
{
    const std::optional<KxSubjectRecord> record = ReadRecord(recordPath);
    for (const KxShotBoundary& boundary : record ? record->boundaries : std::vector<KxShotBoundary>()) {
        std::printf("%lld %lld %lld %d\n", static_cast<long long>(boundary.frame),
                    static_cast<long long>(boundary.first), static_cast<long long>(boundary.last),
                    static_cast<int>(boundary.kind));
    }
    return record ? 0 : 1;
}

struct Task {
    KxSubjectRecord record;
    KxSubjectRequest request;
};

/// Nothing after a message.
std::optional<Task> TaskOf(const QString& argument)
{
    const int separator = argument.lastIndexOf(QLatin1Char('='));
    const QStringList aspect = argument.mid(separator + 1).split(QLatin1Char(':'));
    std::optional<KxSubjectRecord> record = ReadRecord(argument.left(separator));
    if (aspect.size() != 2 || !record) {
        return std::nullopt;
    }
    return Task{std::move(*record), {aspect[0].toInt(), aspect[1].toInt()}};
}

/// A line for each shot: its first frame, its end, its confidence and its evidence.
int PrintShots(const QString& argument)
{
    std::optional<Task> task = TaskOf(argument);
    if (!task) {
        return 1;
    }
    task->request.wantsFindings = true;
    for (const KxSubjectFindings::Shot& shot :
         KxDecide(task->record, task->request, {}, KxCancelToken()).findings.shots) {
        std::printf("%lld %lld %.4f %.4f\n", static_cast<long long>(shot.first), static_cast<long long>(shot.end),
                    static_cast<double>(shot.confidence), static_cast<double>(shot.evidence));
    }
    return 0;
}

void Print(const std::vector<KxCropRect>& crops)
{
    const auto frames = static_cast<std::int32_t>(crops.size());
    std::vector<float> numbers;
    numbers.reserve(2 * crops.size() + 2);
    for (const KxCropRect& crop : crops) {
        if (numbers.empty()) {
            numbers = {static_cast<float>(crop.width), static_cast<float>(crop.height)};
        }
        numbers.push_back(static_cast<float>(crop.x));
        numbers.push_back(static_cast<float>(crop.y));
    }
    std::fwrite(&frames, sizeof(frames), 1, stdout);
    std::fwrite(numbers.data(), sizeof(float), numbers.size(), stdout);
}

int Decide(const QStringList& arguments)
{
    std::vector<Task> tasks;
    for (const QString& argument : arguments) {
        std::optional<Task> task = TaskOf(argument);
        if (!task) {
            return 1;
        }
        tasks.push_back(std::move(*task));
    }
    QTextStream input(stdin);
    for (QString line; input.readLineInto(&line);) {
        KxSubjectOptions options;
        const QMap<QString, double*> values = Values(options);
        for (const QString& change : line.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QStringList parts = change.split(QLatin1Char('='));
            if (parts.size() != 2 || !values.contains(parts[0])) {
                return Fail(QStringLiteral("There is no value of the name in %1.").arg(change));
            }
            *values[parts[0]] = parts[1].toDouble();
        }
        for (const Task& task : tasks) {
            Print(KxDecide(task.record, task.request, options, KxCancelToken()).crops);
        }
        std::fflush(stdout);
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString command = arguments.value(1);
    if (command == QLatin1String("observe") && (arguments.size() == 4 || arguments.size() == 5)) {
        return Observe(arguments[2], arguments[3], arguments.value(4));
    }
    if (command == QLatin1String("boundaries") && arguments.size() == 3) {
        return PrintBoundaries(arguments[2]);
    }
    if (command == QLatin1String("truth") && arguments.size() == 5) {
        return MakeTruth(arguments[2], arguments[3], arguments[4]);
    }
    if (command == QLatin1String("names") && arguments.size() == 2) {
        KxSubjectOptions options;
        const QMap<QString, double*> values = Values(options);
        for (auto value = values.begin(); value != values.end(); ++value) {
            std::printf("%s=%g\n", qPrintable(value.key()), **value);
        }
        return 0;
    }
    if (command == QLatin1String("shots") && arguments.size() == 3) {
        return PrintShots(arguments[2]);
    }
    if (command == QLatin1String("decide") && arguments.size() > 2) {
        return Decide(arguments.mid(2));
    }
    std::fputs("Usage: BenchDecide observe CLIP RECORD [DETECTOR] | truth RECORD TRUTH.csv OUT | boundaries RECORD | "
               "names | decide "
               "RECORD=W:H...\n",
               stderr);
    return 2;
}
