#include <Tests/KxMedia/Write/WrittenClips.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>

KxMp4Writer::Settings WrittenClips::SettingsFor(const QString& path)
{
    KxMp4Writer::Settings settings;
    settings.path = path;
    settings.size = Size;
    settings.frameRate = {25, 1};
    settings.videoPreset = QStringLiteral("veryfast");
    return settings;
}

int WrittenClips::FlatLuma(qint64 index)
{
    return 30 + static_cast<int>(index % 60) * 3;
}

KxVideoFrame WrittenClips::FlatPicture(qint64 index)
{
    KxAvFrame picture = MadePicture::Make(AV_PIX_FMT_YUV420P, Size,
                                          [index](int plane, int, int) { return plane == 0 ? FlatLuma(index) : 128; });
    return MadePicture::Wrap(std::move(picture), index);
}

KxVideoFrame WrittenClips::BusyPicture(qint64 index)
{
    unsigned state = static_cast<unsigned>(index) * 2654435761U + 1U;
    KxAvFrame picture = MadePicture::Make(AV_PIX_FMT_YUV420P, Size, [&state](int, int, int) {
        state = state * 1664525U + 1013904223U;
        return static_cast<int>(state >> 24);
    });
    return MadePicture::Wrap(std::move(picture), index);
}

KxError WrittenClips::AddPictures(KxMp4Writer& writer, qint64 count, KxVideoFrame (*make)(qint64))
{
    for (qint64 index = 0; index < count; ++index) {
        if (KxError error = writer.AddPicture(make(index), index)) {
            return error;
        }
    }
    return std::nullopt;
}

KxAudioBlock WrittenClips::Clicks(double lengthS, const std::vector<double>& timesS, int channels)
{
    KxAudioBlock block;
    block.channels = channels;
    block.samples.assign(static_cast<size_t>(lengthS * SampleRateHz) * static_cast<size_t>(channels), 0.0F);
    for (const double timeS : timesS) {
        const auto first = static_cast<size_t>(timeS * SampleRateHz) * static_cast<size_t>(channels);
        for (size_t i = 0; i < 64 * static_cast<size_t>(channels); ++i) {
            block.samples[first + i] = 0.9F;
        }
    }
    return block;
}

QByteArray WrittenClips::OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

QJsonObject WrittenClips::Probe(const QString& path)
{
    return QJsonDocument::fromJson(
               OutputOf(QStringLiteral("ffprobe"),
                        {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_streams"),
                         QStringLiteral("-show_format"), QStringLiteral("-of"), QStringLiteral("json"),
                         QStringLiteral("file:") + path}))
        .object();
}

QString WrittenClips::Field(const QJsonObject& probed, int stream, const char* name)
{
    const QJsonValue value =
        probed.value(QLatin1String("streams")).toArray().at(stream).toObject().value(QLatin1String(name));
    return value.isDouble() ? QString::number(value.toDouble()) : value.toString();
}

std::vector<double> WrittenClips::DecodedLuma(const QString& path)
{
    const QByteArray grey =
        OutputOf(QStringLiteral("ffmpeg"), {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), path,
                                            QStringLiteral("-vf"), QStringLiteral("extractplanes=y"),
                                            QStringLiteral("-f"), QStringLiteral("rawvideo"), QStringLiteral("-")});
    const int pictureBytes = Size.width() * Size.height();
    std::vector<double> means;
    for (int at = 0; at + pictureBytes <= grey.size(); at += pictureBytes) {
        double sum = 0;
        for (int i = 0; i < pictureBytes; ++i) {
            sum += static_cast<unsigned char>(grey[at + i]);
        }
        means.push_back(sum / pictureBytes);
    }
    return means;
}

std::vector<double> WrittenClips::HeardClicks(const QString& path)
{
    const QByteArray sound =
        OutputOf(QStringLiteral("ffmpeg"),
                 {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), path, QStringLiteral("-vn"),
                  QStringLiteral("-af"), QStringLiteral("aresample=async=1:first_pts=0"), QStringLiteral("-ac"),
                  QStringLiteral("1"), QStringLiteral("-f"), QStringLiteral("f32le"), QStringLiteral("-")});
    std::vector<double> times;
    for (int at = 0; at + 4 <= sound.size(); at += 4) {
        float value = 0;
        std::memcpy(&value, sound.constData() + at, sizeof value);
        const double timeS = at / 4.0 / SampleRateHz;
        if (std::abs(value) > 0.4F && (times.empty() || timeS > times.back() + 0.05)) {
            times.push_back(timeS);
        }
    }
    return times;
}

QStringList WrittenClips::FilesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QByteArray WrittenClips::Content(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QStringList WrittenClips::Boxes(const QString& path)
{
    const QByteArray content = Content(path);
    QStringList names;
    for (int at = 0; at + 8 <= content.size();) {
        const auto bytes = static_cast<int>(qFromBigEndian<quint32>(content.constData() + at));
        names += QString::fromLatin1(content.mid(at + 4, 4));
        at += std::max(bytes, 8);
    }
    return names;
}
