#include "KxCropKeyFrames.h"

#include <algorithm>

namespace
{

QRectF Between(const QRectF& a, const QRectF& b, double part)
{
    const auto mix = [part](double from, double to) { return from + (to - from) * part; };
    return QRectF(mix(a.x(), b.x()), mix(a.y(), b.y()), mix(a.width(), b.width()), mix(a.height(), b.height()));
}

} // namespace

KxCropKeyFrames::KxCropKeyFrames() = default;

KxCropKeyFrames::~KxCropKeyFrames() = default;

void KxCropKeyFrames::setKeyFrames(const QList<KxCropPanZoomKeyFrameParam>& keyFrames)
{
    QList<KxCropPanZoomKeyFrameParam> incoming = keyFrames;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_keyFrames.swap(incoming);
    }
    // The old list is freed here, outside the lock: hundreds of thousands of entries take a while.
}

bool KxCropKeyFrames::interpolatedParam(qint64 frame, KxCropPanZoomKeyFrameParam* out) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return Interpolate(m_keyFrames, frame, out);
}

QList<KxCropPanZoomKeyFrameParam> KxCropKeyFrames::KeyFrames() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_keyFrames;
}

bool KxCropKeyFrames::Interpolate(const QList<KxCropPanZoomKeyFrameParam>& keyFrames, qint64 frame,
                                  KxCropPanZoomKeyFrameParam* out)
{
    if (keyFrames.isEmpty()) {
        return false;
    }
    const auto after =
        std::upper_bound(keyFrames.cbegin(), keyFrames.cend(), frame,
                         [](qint64 wanted, const KxCropPanZoomKeyFrameParam& key) { return wanted < key.frame; });
    if (after == keyFrames.cbegin()) {
        *out = *after;
    } else {
        const KxCropPanZoomKeyFrameParam& before = *(after - 1);
        *out = before;
        if (after != keyFrames.cend() && before.frame != frame) {
            const double part =
                static_cast<double>(frame - before.frame) / static_cast<double>(after->frame - before.frame);
            out->cropRect = Between(before.cropRect, after->cropRect, part);
        }
    }
    out->frame = frame;
    return true;
}
