#pragma once

#include <KxCore/KxFrameRange.h>
#include <KxCore/KxOutputFile.h>
#include <KxMedia/Write/KxOutputFormat.h>

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

/// What to render to.
struct KxRenderSettings {
    QString outputPath;
    KxOutputFile::Existing existing = KxOutputFile::Existing::AddNumber;
    /// An odd side becomes one pixel longer.
    QSize resolution;
    /// Frames a second. 0, or the source's rate as it is rounded for people (29.97), gives exactly the source's rate.
    double frameRate = 0.0;
    int videoBitRate = 2000000; ///< bits per second
    int audioBitRate = 192000;  ///< bits per second
    KxOutputFormat format;
    QString comment; ///< stored in the file; may be empty
    /// A part of the source, without sound, to be joined with others. Nothing: all of it.
    std::optional<KxFrameRange> frames;
    /// The files of all parts in order; their pictures are copied instead of rendered.
    QStringList parts;
};
