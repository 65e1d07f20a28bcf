#include <Tests/KrAutoReframe/FakeHost/FakeHost.h>

#include <algorithm>

namespace FakeHost
{

namespace
{

class VideoInfo : public IKxVideoMediaInfo
{
public:
    explicit VideoInfo(const Facts& facts)
        : m_facts(facts)
    {
    }

    bool hasVideoStream() const override { return true; }
    bool hasAudioStream() const override { return false; }
    qint64 frameCount() const override { return m_facts.frameCount; }
    KxRational frameRate() const override { return m_facts.frameRate; }
    QSize resolution() const override { return m_facts.resolution; }
    int bitRate() const override { return m_facts.videoBitRate; }

protected:
    const Facts& GetFacts() const { return m_facts; }

private:
    Facts m_facts;
};

class VideoAndSoundInfo : public VideoInfo, public IKxAudioMediaInfo
{
public:
    using VideoInfo::VideoInfo;

    bool hasVideoStream() const override { return true; }
    bool hasAudioStream() const override { return true; }
    int bitRate() const override { return VideoInfo::bitRate(); }
    int bitRate(int stream) const override { return GetFacts().audioBitRates.value(stream); }
};

class SoundInfo : public IKxMediaInfo
{
public:
    bool hasVideoStream() const override { return false; }
    bool hasAudioStream() const override { return true; }
};

class OtherKeyFrameHelper : public IKxKeyFrameHelper
{
};

std::unique_ptr<IKxMediaInfo> MakeInfo(const Facts& facts)
{
    if (facts.isVideo && !facts.audioBitRates.isEmpty()) {
        return std::make_unique<VideoAndSoundInfo>(facts);
    }
    if (facts.isVideo) {
        return std::make_unique<VideoInfo>(facts);
    }
    return std::make_unique<SoundInfo>();
}

} // namespace

void KeyFrameHelper::setKeyFrames(const QList<KxCropPanZoomKeyFrameParam>& keyFrames)
{
    std::function<void()> onPush;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_keyFrames = keyFrames;
        ++m_pushCount;
        onPush = m_onPush;
    }
    if (onPush) {
        onPush();
    }
}

bool KeyFrameHelper::interpolatedParam(qint64 frame, KxCropPanZoomKeyFrameParam* out) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_keyFrames.isEmpty()) {
        return false;
    }
    const auto next = std::upper_bound(
        m_keyFrames.cbegin(), m_keyFrames.cend(), frame,
        [](qint64 value, const KxCropPanZoomKeyFrameParam& keyFrame) { return value < keyFrame.frame; });
    if (next == m_keyFrames.cbegin() || next == m_keyFrames.cend()) {
        *out = next == m_keyFrames.cbegin() ? m_keyFrames.first() : m_keyFrames.last();
        out->frame = frame;
        return true;
    }
    const KxCropPanZoomKeyFrameParam& before = *std::prev(next);
    const double share = static_cast<double>(frame - before.frame) / static_cast<double>(next->frame - before.frame);
    const auto mix = [share](double a, double b) { return a + (b - a) * share; };
    const QRectF a = before.cropRect;
    const QRectF b = next->cropRect;
    out->frame = frame;
    out->kind = before.kind;
    out->cropRect =
        QRectF(mix(a.x(), b.x()), mix(a.y(), b.y()), mix(a.width(), b.width()), mix(a.height(), b.height()));
    return true;
}

QList<KxCropPanZoomKeyFrameParam> KeyFrameHelper::KeyFrames() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_keyFrames;
}

int KeyFrameHelper::PushCount() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_pushCount;
}

void KeyFrameHelper::SetOnPush(std::function<void()> onPush)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_onPush = std::move(onPush);
}

Clip::Clip(const Facts& facts)
    : m_facts(facts)
    , m_info(MakeInfo(facts))
    , m_otherKeyFrames(std::make_unique<OtherKeyFrameHelper>())
{
}

Clip::~Clip() = default;

QString Clip::filePath() const
{
    return m_facts.path;
}

const IKxMediaInfo* Clip::mediaInfo() const
{
    return m_info.get();
}

IKxKeyFrameHelper* Clip::keyFrameHelper(int kind)
{
    if (kind != IKxKeyFrameHelper::CropPanZoom) {
        return nullptr;
    }
    return m_facts.hasCropKeyFrames ? static_cast<IKxKeyFrameHelper*>(&m_cropKeyFrames) : m_otherKeyFrames.get();
}

} // namespace FakeHost
