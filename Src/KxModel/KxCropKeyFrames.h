#pragma once

#include <KxModel/IKxKeyFrameHelper.h>

#include <mutex>

/// The crop/pan/zoom keyframes of one clip: the list as it was set, and linear interpolation between its entries by
/// binary search. The cost of setting a list does not depend on its length: the storage is shared with the caller, and
/// the previous list is released, so that a caller with two lists can update one of them in place. Any thread.
class KXMODEL_API KxCropKeyFrames final : public IKxCropPanZoomKeyFrameHelper
{
public:
    KxCropKeyFrames();
    ~KxCropKeyFrames() override;

    void setKeyFrames(const QList<KxCropPanZoomKeyFrameParam>& keyFrames) override;
    bool interpolatedParam(qint64 frame, KxCropPanZoomKeyFrameParam* out) const override;

    /// The keyframes of this moment, sharing their storage.
    QList<KxCropPanZoomKeyFrameParam> KeyFrames() const;

    /// interpolatedParam for a copy of a list. False if `keyFrames` is empty.
    static bool Interpolate(const QList<KxCropPanZoomKeyFrameParam>& keyFrames, qint64 frame,
                            KxCropPanZoomKeyFrameParam* out);

private:
    mutable std::mutex m_mutex;
    QList<KxCropPanZoomKeyFrameParam> m_keyFrames;
    /// The number of keyframes at or before the frame of the last call: most calls are in the order of frames.
    mutable int m_passed = 0;
};
