#include <Apps/AutoReframe/Backend/ExportRecord.h>

#include <QCoreApplication>
#include <QDir>

KxResult<ExportOrder> ExportRecord::Read(const QVariant& record)
{
    const QVariantMap values = record.toMap();
    const QString name = values.value(QStringLiteral("name")).toString();
    const QString folder = QDir::fromNativeSeparators(values.value(QStringLiteral("path")).toString());
    if (name.isEmpty() || folder.isEmpty()) {
        return KxResult<ExportOrder>::Failure(
            QCoreApplication::translate("ExportRecord", "Cannot export: no name or no folder was given."));
    }
    ExportOrder order;
    // Not QDir::filePath: a name is never a path, whatever it begins with.
    order.filePath = QDir::cleanPath(folder + QLatin1Char('/') + name + QStringLiteral(".mp4"));
    order.resolution = values.value(QStringLiteral("resolution")).toSize();
    order.frameRate = values.value(QStringLiteral("frame_rate")).toDouble();
    order.videoBitRate = values.value(QStringLiteral("video_bit_rate")).toInt();
    order.audioBitRate = values.value(QStringLiteral("audio_bit_rate")).toInt();
    if (order.resolution.isEmpty()) {
        return KxResult<ExportOrder>::Failure(
            QCoreApplication::translate("ExportRecord", "Cannot export %1: no picture size was given.").arg(name));
    }
    return order;
}
