// Follows what simulated clicks point at, to measure what following does:
//   BenchFollow CLIP RECORD W:H [NAME=VALUE...]
//       RECORD is one of BenchDecide. For each line of the standard input (SECONDS,X,Y,W,H;... in seconds and fractions
//       of the picture; W and H are 0 for a point) prints the track (the number of points as int32; frame as int32 and
//       left, top, width, height and confidence as float32 of each), then the crops as BenchDecide does. An empty line
//       follows nothing.

#include <KxModel/KxFollowPass.h>
#include <KxSubject/KxSubjectDecision.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecordFormat.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QTextStream>

#include <cstdio>

namespace
{

QMap<QString, double*> Values(KxSubjectOptions& options)
{
    KxSubjectOptions::Follow& follow = options.follow;
    return {{QStringLiteral("gateWidth"), &follow.gateWidth},
            {QStringLiteral("gateGrowth"), &follow.gateGrowth},
            {QStringLiteral("denial"), &follow.denial},
            {QStringLiteral("weight"), &follow.weight},
            {QStringLiteral("seedWeight"), &follow.seedWeight},
            {QStringLiteral("seedSeconds"), &follow.seedSeconds},
            {QStringLiteral("boxError"), &follow.boxError},
            {QStringLiteral("heldShare"), &follow.heldShare},
            {QStringLiteral("smoothingSeconds"), &follow.smoothingSeconds},
            {QStringLiteral("goodConfidence"), &follow.goodConfidence}};
}

KxSubjectChoice ChoiceOf(const QString& line)
{
    KxSubjectChoice choice;
    choice.kind = KxChoiceKind::Follow;
    for (const QString& text : line.split(QLatin1Char(';'))) {
        const QStringList numbers = text.split(QLatin1Char(','));
        const KxSubjectBox box{numbers.value(1).toDouble(), numbers.value(2).toDouble(), numbers.value(3).toDouble(),
                               numbers.value(4).toDouble()};
        choice.seeds.push_back({numbers.value(0).toDouble(), box,
                                box.width > 0.0 ? KxSubjectSeed::Extent::Drawn : KxSubjectSeed::Extent::Guessed});
    }
    return choice;
}

void Write(std::int32_t number)
{
    std::fwrite(&number, sizeof(number), 1, stdout);
}

void Write(double number)
{
    const auto value = static_cast<float>(number);
    std::fwrite(&value, sizeof(value), 1, stdout);
}

void Print(const KxFollowTrack& track)
{
    Write(static_cast<std::int32_t>(track.points.size()));
    for (const KxFollowTrack::Point& point : track.points) {
        Write(point.frame);
        for (const double number :
             {point.box.x, point.box.y, point.box.width, point.box.height, static_cast<double>(point.confidence)}) {
            Write(number);
        }
    }
}

void Print(const std::vector<KxCropRect>& crops)
{
    Write(static_cast<std::int32_t>(crops.size()));
    Write(crops.front().width);
    Write(crops.front().height);
    for (const KxCropRect& crop : crops) {
        Write(crop.x);
        Write(crop.y);
    }
}

int Fail(const QString& message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    return 1;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile file(arguments.value(2));
    if (arguments.size() < 4 || !file.open(QIODevice::ReadOnly)) {
        return Fail(QStringLiteral("Usage: BenchFollow CLIP RECORD W:H [NAME=VALUE...]"));
    }
    const std::optional<KxSubjectRecord> record = KxSubjectRecordFormat::Read(file.readAll().toStdString());
    const QStringList aspect = arguments[3].split(QLatin1Char(':'));
    if (!record || aspect.size() != 2) {
        return Fail(QStringLiteral("%1 is not a record of this version.").arg(arguments[2]));
    }
    KxSubjectOptions options;
    for (int i = 4; i < arguments.size(); ++i) {
        const QStringList parts = arguments[i].split(QLatin1Char('='));
        if (parts.size() != 2 || !Values(options).contains(parts[0])) {
            return Fail(QStringLiteral("There is no value of the name in %1.").arg(arguments[i]));
        }
        *Values(options)[parts[0]] = parts[1].toDouble();
    }
    QTextStream input(stdin);
    for (QString line; input.readLineInto(&line);) {
        KxSubjectRequest request;
        request.aspectWidth = aspect[0].toInt();
        request.aspectHeight = aspect[1].toInt();
        KxFollowTrack track;
        if (!line.isEmpty()) {
            request.choices = {ChoiceOf(line)};
            QElapsedTimer timer;
            timer.start();
            const KxFollowPass::Result pass =
                KxFollowPass::Run(arguments[1], *record, request.choices[0],
                                  {[](double) {}, [](const KxSubjectFollower&) {}}, KxCancelToken());
            if (pass.outcome != KxOutcome::Done) {
                return Fail(pass.message);
            }
            std::fprintf(stderr, "%lld ms, %zu points\n", static_cast<long long>(timer.elapsed()),
                         pass.track.points.size());
            track = pass.track;
            request.tracks = {pass.track};
        }
        Print(track);
        Print(KxDecide(*record, request, options, KxCancelToken()).crops);
        std::fflush(stdout);
    }
    return 0;
}
