#pragma once

#include <KxModel/IKxKeyFrameHelper.h>

#include <mutex>

/// The crop/pan/zoom keyframes of one clip: the list as it was set, and linear interpolation between its entries by
/// binary search. Any thread.
class KXMODEL_API KxCropKeyFrames final : public IKxCropPanZoomKeyFrameHelper
{
public:
    KxCropKeyFrames();
    ~KxCropKeyFrames() override;

    void setKeyFrames(const QList<KxCropPanZoomKeyFrameParam>& keyFrames) override;
    bool interpolatedParam(qint64 frame, KxCropPanZoomKeyFrameParam* out) const override;

    /// The keyframes of this moment, sharing their storage.
    QList<KxCropPanZoomKeyFrameParam> KeyFrames() const;

    /// The rule of interpolatedParam over a list, for whoever holds a copy of it. False when `keyFrames` is empty.
    static bool Interpolate(const QList<KxCropPanZoomKeyFrameParam>& keyFrames, qint64 frame,
                            KxCropPanZoomKeyFrameParam* out);

private:
    mutable std::mutex m_mutex;
    QList<KxCropPanZoomKeyFrameParam> m_keyFrames;
    /// The number of keyframes at or before the frame that was asked for last: frames are mostly asked for in order.
    mutable int m_passed = 0;
};
