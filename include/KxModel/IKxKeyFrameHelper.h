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

/// Crop, pan and zoom keyframes. The two operations may be called from any thread; each sees a consistent
/// state of the keyframes.
class KXMODEL_API IKxCropPanZoomKeyFrameHelper : public IKxKeyFrameHelper
{
public:
    ~IKxCropPanZoomKeyFrameHelper() override;

    /// Replaces all keyframes of the clip. `keyFrames` are in ascending order of frames.
    virtual void setKeyFrames(const QList<KxCropPanZoomKeyFrameParam>& keyFrames) = 0;

    /// Fills `out` with the values at `frame`: between two keyframes the rectangle is interpolated linearly, before the
    /// first and after the last one that keyframe's rectangle is held. False if there are none; `out`
    /// is unchanged then.
    virtual bool interpolatedParam(qint64 frame, KxCropPanZoomKeyFrameParam* out) const = 0;
};
