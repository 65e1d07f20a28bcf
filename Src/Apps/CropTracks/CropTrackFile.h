#pragma once

#include <KxCore/KxRational.h>
#include <KxModel/IKxAutoReframeResult.h>

#include <KxCore/KxOutputFile.h>
#include <KxRender/KxRenderSource.h>
#include <KxSubject/KxUsedModel.h>

#include <QJsonValue>
#include <QList>
#include <QSize>

#include <optional>
#include <vector>

/// The crop of every frame of one video, as it is stored in a file (JSON or CSV, by the file's suffix).
struct CropTrack {
    QString sourcePath;
    QSize sourceSize;
    KxRational frameRate;
    QSize aspect;      ///< empty in a track that was read from CSV
    QString speedName; ///< empty in a track that was read from CSV
    QList<IKxAutoReframeResult> crops;
    /// How crops of another shape than the result are shown; a CSV file does not carry it.
    KxRenderSource::OtherShapes otherShapes = KxRenderSource::OtherShapes::Stretched;
    QString madeBy; ///< the run that made it (--if-needed); empty in a track that was read
    std::optional<std::vector<KxUsedModel>> models; ///< of the analysis; nothing in a track that was read
};

namespace CropTrackFile
{
/// The names and checksums of an analysis' networks; "none" if it used none.
QJsonValue ModelsAsJson(const std::vector<KxUsedModel>& models);

/// The whole content of a file for `path`.
QByteArray Format(const CropTrack& track, const QString& path);

/// CropTrack::madeBy of a JSON file as Format() writes it; empty if it has none, or there is no such file.
QString MadeBy(const QString& path);

/// Reads the crops of a video of `frameCount` frames, the aspect and the speed. Refuses a file of more frames, and one
/// of more than 64 KiB and 256 bytes a frame, before it is read; needs the memory of the crops and 256 KiB. The error
/// message names the file, the reason and the frame or line.
KxResult<CropTrack> Read(const QString& path, qint64 frameCount);
} // namespace CropTrackFile
