#include <Apps/Reframe/CropTrackFile.h>

#include <KxCore/KxSystemError.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cmath>

namespace
{

// Finer than a hundredth of a pixel in any picture that can be opened.
constexpr int decimals = 9;

bool IsCsv(const QString& path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("csv"), Qt::CaseInsensitive) == 0;
}

void AppendRect(QByteArray& text, const QRectF& rect)
{
    text += QByteArray::number(rect.x(), 'f', decimals) + ',' + QByteArray::number(rect.y(), 'f', decimals) + ',' +
            QByteArray::number(rect.width(), 'f', decimals) + ',' + QByteArray::number(rect.height(), 'f', decimals);
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
    // The frames are written by hand: one a line, and no tree of objects for hundreds of thousands of them.
    QByteArray text = "{\"version\":1,\n\"source\":" + QJsonDocument(source).toJson(QJsonDocument::Compact) +
                      ",\n\"aspect\":" + QJsonDocument(aspect).toJson(QJsonDocument::Compact) + ",\n\"speed\":\"" +
                      track.speedName.toUtf8() + "\",\n\"frames\":[";
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

bool AppendCrop(CropTrack& track, const std::array<double, 4>& values)
{
    const QRectF rect(values[0], values[1], values[2], values[3]);
    constexpr double slack = 1e-6;
    const bool finite = std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
    const bool inside = finite && rect.width() > 0.0 && rect.height() > 0.0 && rect.left() >= -slack &&
                        rect.top() >= -slack && rect.right() <= 1.0 + slack && rect.bottom() <= 1.0 + slack;
    if (inside) {
        track.crops.append(IKxAutoReframeResult(track.crops.size(), rect));
    }
    return inside;
}

QString BadFrame(const QString& name, int frame)
{
    return QStringLiteral("Cannot use %1: frame %2 is no rectangle inside the picture.")
        .arg(name, QString::number(frame));
}

KxResult<CropTrack> ReadCsv(const QByteArray& content, const QString& name)
{
    CropTrack track;
    const QList<QByteArray> lines = content.split('\n');
    for (int i = 1; i < lines.size(); ++i) {
        const QByteArray line = lines.at(i).trimmed();
        if (line.isEmpty()) {
            continue;
        }
        const QList<QByteArray> cells = line.split(',');
        std::array<double, 4> values{};
        bool ok = cells.size() == 5 && cells.at(0).toLongLong() == track.crops.size();
        for (std::size_t k = 0; ok && k < values.size(); ++k) {
            values[k] = cells.at(static_cast<int>(k) + 1).toDouble(&ok);
        }
        if (!ok || !AppendCrop(track, values)) {
            return KxResult<CropTrack>::Failure(BadFrame(name, track.crops.size()));
        }
    }
    return track;
}

KxResult<CropTrack> ReadJson(const QByteArray& content, const QString& name)
{
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(content, &problem);
    if (!document.isObject()) {
        return KxResult<CropTrack>::Failure(
            QStringLiteral("Cannot use %1: it is no crop track (%2).").arg(name, problem.errorString()));
    }
    CropTrack track;
    const QJsonObject root = document.object();
    const QJsonArray aspect = root.value(QStringLiteral("aspect")).toArray();
    if (aspect.size() == 2) {
        track.aspect = QSize(aspect.at(0).toInt(), aspect.at(1).toInt());
    }
    track.speedName = root.value(QStringLiteral("speed")).toString();
    for (const QJsonValue frame : root.value(QStringLiteral("frames")).toArray()) {
        const QJsonArray numbers = frame.toArray();
        std::array<double, 4> values{};
        for (std::size_t k = 0; k < values.size(); ++k) {
            values[k] = numbers.at(static_cast<int>(k)).toDouble(std::nan(""));
        }
        if (numbers.size() != 4 || !AppendCrop(track, values)) {
            return KxResult<CropTrack>::Failure(BadFrame(name, track.crops.size()));
        }
    }
    return track;
}

} // namespace

QByteArray CropTrackFile::Format(const CropTrack& track, const QString& path)
{
    return IsCsv(path) ? FormatCsv(track) : FormatJson(track);
}

KxResult<CropTrack> CropTrackFile::Read(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly)) {
        const QString reason = QFileInfo(path).isDir() ? QStringLiteral("it is a folder") : KxFileErrorText(file);
        return KxResult<CropTrack>::Failure(QStringLiteral("Cannot open %1: %2.").arg(path, reason));
    }
    constexpr qint64 largestBytes = 512LL * 1024 * 1024;
    if (file.size() > largestBytes) {
        return KxResult<CropTrack>::Failure(
            QStringLiteral("Cannot use %1: it is too large for a crop track.").arg(name));
    }
    const QByteArray content = file.readAll();
    KxResult<CropTrack> track = IsCsv(path) ? ReadCsv(content, name) : ReadJson(content, name);
    if (track && track->crops.isEmpty()) {
        return KxResult<CropTrack>::Failure(QStringLiteral("Cannot use %1: it holds no frames.").arg(name));
    }
    return track;
}
