#pragma once

#include <KxCore/KxExport.h>

#include <QRectF>

/// One crop/pan/zoom keyframe.
class KXMODEL_API KxCropPanZoomKeyFrameParam
{
public:
    /// The kind of a keyframe with linear interpolation to its neighbours.
    static constexpr int Linear = 2;

    KxCropPanZoomKeyFrameParam();
    KxCropPanZoomKeyFrameParam(const KxCropPanZoomKeyFrameParam& other);
    KxCropPanZoomKeyFrameParam& operator=(const KxCropPanZoomKeyFrameParam& other);
    virtual ~KxCropPanZoomKeyFrameParam();

    /// Frame index within the clip.
    qint64 frame = 0;
    int kind = 0;
    /// Fractions of the picture.
    QRectF cropRect = QRectF(0.0, 0.0, 1.0, 1.0);
};
