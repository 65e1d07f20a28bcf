#include <Apps/CropTracks/CropTrackFile.h>

#include <Apps/CropTracks/CropTrackParser.h>
#include <KxCore/KxSystemError.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CropTrackFile)
};

// Finer than a hundredth of a pixel in any picture that can be opened.
constexpr int Decimals = 9;

bool IsCsv(const QString& path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("csv"), Qt::CaseInsensitive) == 0;
}

void AppendRect(QByteArray& text, const QRectF& rect)
{
    text += QByteArray::number(rect.x(), 'f', Decimals) + ',' + QByteArray::number(rect.y(), 'f', Decimals) + ',' +
            QByteArray::number(rect.width(), 'f', Decimals) + ',' + QByteArray::number(rect.height(), 'f', Decimals);
}

QByteArray FormatCsv(const CropTrack& track)
{
    QByteArray text = "frame,x,y,w,h\n";
    for (int frame = 0; frame < track.crops.size(); ++frame) {
        text += QByteArray::number(frame) + ',';
        AppendRect(text, track.crops.at(frame).cropRect());
        text += '\n';
    }
    return text;
}

QByteArray FormatJson(const CropTrack& track)
{
    const QJsonObject source{
        {QStringLiteral("path"), track.sourcePath},
        {QStringLiteral("width"), track.sourceSize.width()},
        {QStringLiteral("height"), track.sourceSize.height()},
        {QStringLiteral("frame_count"), track.crops.size()},
        {QStringLiteral("frame_rate"), QJsonArray{track.frameRate.numerator, track.frameRate.denominator}},
    };
    const QJsonArray aspect{track.aspect.width(), track.aspect.height()};
    // Written by hand: a line for each frame, without a tree of objects for hundreds of thousands of them.
    QByteArray text = "{\"version\":1,\n\"source\":" + QJsonDocument(source).toJson(QJsonDocument::Compact) +
                      ",\n\"aspect\":" + QJsonDocument(aspect).toJson(QJsonDocument::Compact) + ",\n\"speed\":\"" +
                      track.speedName.toUtf8() + "\",\n";
    if (!track.madeBy.isEmpty()) {
        const QJsonObject madeBy{{QStringLiteral("made_by"), track.madeBy}};
        const QByteArray object = QJsonDocument(madeBy).toJson(QJsonDocument::Compact);
        text += object.mid(1, object.size() - 2) + ",\n";
    }
    if (track.models) {
        const QJsonObject models{{QStringLiteral("models"), CropTrackFile::ModelsAsJson(*track.models)}};
        const QByteArray object = QJsonDocument(models).toJson(QJsonDocument::Compact);
        text += object.mid(1, object.size() - 2) + ",\n";
    }
    if (track.otherShapes == KxRenderSource::OtherShapes::Fitted) {
        text += "\"other_shapes\":\"fitted\",\n";
    }
    text += "\"frames\":[";
    const char* separator = "\n[";
    for (const IKxAutoReframeResult& crop : track.crops) {
        text += separator;
        AppendRect(text, crop.cropRect());
        text += ']';
        separator = ",\n[";
    }
    text += "\n]}\n";
    return text;
}

} // namespace

QJsonValue CropTrackFile::ModelsAsJson(const std::vector<KxUsedModel>& models)
{
    if (models.empty()) {
        return QStringLiteral("none");
    }
    QJsonArray array;
    for (const KxUsedModel& model : models) {
        array += QJsonObject{{QStringLiteral("name"), QString::fromStdString(model.name)},
                             {QStringLiteral("sha256"), QString::fromStdString(model.sha256)}};
    }
    return array;
}

QByteArray CropTrackFile::Format(const CropTrack& track, const QString& path)
{
    return IsCsv(path) ? FormatCsv(track) : FormatJson(track);
}

QString CropTrackFile::MadeBy(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    // Before the crops, on a line of its own.
    constexpr int lastLine = 8;
    constexpr qint64 longestBytes = 64 * 1024;
    for (int line = 0; line < lastLine && !file.atEnd(); ++line) {
        const QByteArray text = file.readLine(longestBytes).trimmed();
        if (text.startsWith("\"made_by\":") && text.endsWith(',')) {
            const QJsonDocument object = QJsonDocument::fromJson('{' + text.left(text.size() - 1) + '}');
            return object.object().value(QStringLiteral("made_by")).toString();
        }
    }
    return {};
}

KxResult<CropTrack> CropTrackFile::Read(const QString& path, qint64 frameCount)
{
    using Result = KxResult<CropTrack>;
    const QFileInfo info(path);
    const QString name = info.fileName();
    QFile file(path);
    // Opening a pipe would wait for its writer.
    if (info.exists() && !info.isFile()) {
        const QString reason = info.isDir() ? Texts::tr("it is a folder") : Texts::tr("it is not a regular file");
        return Result::Failure(Texts::tr("Cannot open %1: %2.").arg(path, reason));
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return Result::Failure(Texts::tr("Cannot open %1: %2.").arg(path, KxFileErrorText(file)));
    }
    // Four numbers of 17 digits, indented by an editor, take less.
    constexpr qint64 baseBytes = 64 * 1024;
    constexpr qint64 bytesPerFrame = 256;
    if (file.size() > baseBytes + bytesPerFrame * frameCount) {
        return Result::Failure(Texts::tr("Cannot use %1: it is too large for a crop track of a video of %2 frames.")
                                   .arg(name, QString::number(frameCount)));
    }
    CropTrackParser parser(name, frameCount);
    if (const KxError problem = IsCsv(path) ? parser.ReadCsv(file) : parser.ReadJson(file)) {
        return Result::Failure(*problem);
    }
    if (file.error() != QFileDevice::NoError) {
        return Result::Failure(Texts::tr("Cannot read %1: %2.").arg(path, KxFileErrorText(file)));
    }
    if (parser.Track().crops.isEmpty()) {
        return Result::Failure(Texts::tr("Cannot use %1: it holds no frames.").arg(name));
    }
    return parser.Track();
}
