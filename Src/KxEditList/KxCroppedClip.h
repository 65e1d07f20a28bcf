#pragma once

#include <KxCore/KxRational.h>

#include <QRectF>
#include <QSize>
#include <QString>
#include <QtGlobal>

#include <vector>

/// One video with the crop of each of its frames, as another program needs to know it.
struct KxCroppedClip {
    QString path;
    QSize size;           ///< of the upright picture with square pixels, positive
    KxRational frameRate; ///< of the frame grid, positive
    bool hasSound = false;
    QSize outputSize;               ///< positive; its shape may differ slightly from that of the crops
    bool fitsOtherShapes = false;   ///< crops of other shapes are shown whole, not stretched
    std::vector<QRectF> crops;      ///< one a frame, at least one, in fractions of the picture
    std::vector<qint64> shotStarts; ///< first frames of shots, growing; frame 0 may be missing
    std::vector<qint64> edits;      ///< frames that a person edited, growing

    qint64 FrameCount() const { return static_cast<qint64>(crops.size()); }
};
