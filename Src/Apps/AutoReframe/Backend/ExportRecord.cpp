#include <Apps/AutoReframe/Backend/ExportRecord.h>

#include <QCoreApplication>
#include <QDir>

KxResult<KxRenderSettings> ExportRecord::Read(const QVariant& record, int soundBitRate)
{
    const QVariantMap values = record.toMap();
    const QString name = values.value(QStringLiteral("name")).toString();
    const QString folder = QDir::fromNativeSeparators(values.value(QStringLiteral("path")).toString());
    if (name.isEmpty() || folder.isEmpty()) {
        return KxResult<KxRenderSettings>::Failure(
            QCoreApplication::translate("ExportRecord", "Cannot export: no name or no folder was given."));
    }
    KxRenderSettings settings;
    // QDir::filePath would take a name that begins with a separator for a path; two separators would begin the name of
    // another computer on Windows.
    const QString separator = folder.endsWith(QLatin1Char('/')) ? QString() : QStringLiteral("/");
    settings.outputPath = QDir::cleanPath(folder + separator + name + QStringLiteral(".mp4"));
    settings.existing = KxOutputFile::Existing::AddNumber;
    settings.resolution = values.value(QStringLiteral("resolution")).toSize();
    settings.frameRate = values.value(QStringLiteral("frame_rate")).toDouble();
    settings.videoBitRate = values.value(QStringLiteral("video_bit_rate")).toInt();
    settings.audioBitRate = values.value(QStringLiteral("audio_bit_rate")).toInt();
    using Sound = KxOutputFormat::Sound;
    const bool mustShrink = settings.audioBitRate > 0 && soundBitRate > settings.audioBitRate;
    settings.format.sound = mustShrink ? Sound::Encoded : Sound::Automatic;
    if (settings.resolution.isEmpty()) {
        return KxResult<KxRenderSettings>::Failure(
            QCoreApplication::translate("ExportRecord", "Cannot export %1: no picture size was given.").arg(name));
    }
    return settings;
}
