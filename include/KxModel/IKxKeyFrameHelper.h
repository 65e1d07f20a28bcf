#pragma once

#include <KxCore/KxExport.h>
#include <KxModel/KxCropPanZoomKeyFrameParam.h>

#include <QList>

/// The keyframes of one kind that a clip carries. Belongs to the clip.
class KXMODEL_API IKxKeyFrameHelper
{
public:
    /// The kind number of crop/pan/zoom keyframes.
    static constexpr int CropPanZoom = 3;

    virtual ~IKxKeyFrameHelper();
};

/// Crop, pan and zoom keyframes. The two operations may be called from any thread; each sees the keyframes of one
/// moment.
class KXMODEL_API IKxCropPanZoomKeyFrameHelper : public IKxKeyFrameHelper
{
public:
    ~IKxCropPanZoomKeyFrameHelper() override;

    /// Replaces all keyframes of the clip. `keyFrames` stand in ascending order of frames.
    virtual void setKeyFrames(const QList<KxCropPanZoomKeyFrameParam>& keyFrames) = 0;

    /// Fills `out` with what holds at `frame`: between two keyframes the rectangle is interpolated linearly, before the
    /// first and after the last one that keyframe's rectangle is held. False, with `out` as it was, when there are
    /// none.
    virtual bool interpolatedParam(qint64 frame, KxCropPanZoomKeyFrameParam* out) const = 0;
};
