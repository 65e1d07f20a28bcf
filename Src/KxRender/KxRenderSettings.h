#pragma once

#include <KxCore/KxOutputFile.h>

#include <QSize>
#include <QString>

/// How a rendered file is to be. A plain record.
struct KxRenderSettings {
    QString outputPath;
    KxOutputFile::Existing existing = KxOutputFile::Existing::AddNumber;
    /// An odd side becomes a pixel longer.
    QSize resolution;
    /// Frames a second; 0 is the source's, and so is what differs from it by no more than rounding (29.97 for
    /// 30000/1001).
    double frameRate = 0.0;
    int videoBitRate = 2000000; ///< bits a second
    int audioBitRate = 192000;  ///< bits a second
};
