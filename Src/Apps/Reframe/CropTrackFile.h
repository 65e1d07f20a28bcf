#pragma once

#include <KxCore/KxRational.h>
#include <KxModel/IKxAutoReframeResult.h>

#include <KxCore/KxOutputFile.h>

#include <QList>
#include <QSize>

/// The crop of every frame of one video, as it stands in a file (JSON or CSV, by the file's suffix).
struct CropTrack {
    QString sourcePath;
    QSize sourceSize;
    KxRational frameRate;
    QSize aspect;      ///< empty in what was read from CSV
    QString speedName; ///< empty in what was read from CSV
    QList<IKxAutoReframeResult> crops;
};

namespace CropTrackFile
{
/// The whole content of a file for `path`.
QByteArray Format(const CropTrack& track, const QString& path);

/// Reads the crops and what else the file says. The error message names the file, the reason, and the place.
KxResult<CropTrack> Read(const QString& path);
} // namespace CropTrackFile
