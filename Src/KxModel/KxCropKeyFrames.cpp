#include <KxModel/KxCropKeyFrames.h>

#include <algorithm>

namespace
{

QRectF Between(const QRectF& a, const QRectF& b, double part)
{
    const auto mix = [part](double from, double to) { return from + (to - from) * part; };
    return QRectF(mix(a.x(), b.x()), mix(a.y(), b.y()), mix(a.width(), b.width()), mix(a.height(), b.height()));
}

/// The number of keyframes at or before `frame`.
int Passed(const QList<KxCropPanZoomKeyFrameParam>& keyFrames, qint64 frame)
{
    const auto after =
        std::upper_bound(keyFrames.cbegin(), keyFrames.cend(), frame,
                         [](qint64 wanted, const KxCropPanZoomKeyFrameParam& key) { return wanted < key.frame; });
    return static_cast<int>(after - keyFrames.cbegin());
}

/// Whether exactly `passed` keyframes are at or before `frame`.
bool HasPassed(const QList<KxCropPanZoomKeyFrameParam>& keyFrames, int passed, qint64 frame)
{
    return passed <= keyFrames.size() && (passed == 0 || keyFrames.at(passed - 1).frame <= frame) &&
           (passed == keyFrames.size() || frame < keyFrames.at(passed).frame);
}

/// The interpolated keyframe at `frame`; `passed` keyframes are at or before it. The list is not empty.
KxCropPanZoomKeyFrameParam Between(const QList<KxCropPanZoomKeyFrameParam>& keyFrames, int passed, qint64 frame)
{
    KxCropPanZoomKeyFrameParam param = keyFrames.at(std::max(passed - 1, 0));
    if (passed > 0 && passed < keyFrames.size()) {
        const KxCropPanZoomKeyFrameParam& after = keyFrames.at(passed);
        const double part = static_cast<double>(frame - param.frame) / static_cast<double>(after.frame - param.frame);
        param.cropRect = Between(param.cropRect, after.cropRect, part);
    }
    param.frame = frame;
    return param;
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
    if (m_keyFrames.isEmpty()) {
        return false;
    }
    if (HasPassed(m_keyFrames, m_passed + 1, frame)) {
        ++m_passed;
    } else if (!HasPassed(m_keyFrames, m_passed, frame)) {
        m_passed = Passed(m_keyFrames, frame);
    }
    *out = Between(m_keyFrames, m_passed, frame);
    return true;
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
    *out = Between(keyFrames, Passed(keyFrames, frame), frame);
    return true;
}
