#include <KxSubject/KxSubjectSampling.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr int LeastShortSidePx = 32; ///< keeps a very flat picture usable
/// Pictures beyond this rate only cost; 25 or more keep cuts on their frame.
constexpr double WantedPicturesPerSecond = 60.0;
constexpr double UsualFrameRate = 25.0;

KxSubjectSource Checked(KxSubjectSource source)
{
    source.pictureWidthPx = std::max(source.pictureWidthPx, 1);
    source.pictureHeightPx = std::max(source.pictureHeightPx, 1);
    source.frameCount = std::max<std::int64_t>(source.frameCount, 0);
    if (!std::isfinite(source.frameRate) || source.frameRate <= 0.0) {
        source.frameRate = UsualFrameRate;
    }
    return source;
}

KxIntSize WorkingSizeOf(const KxSubjectSource& source, const KxSubjectOptions::Sampling& options)
{
    const double scale =
        static_cast<double>(options.workingLongSidePx) / std::max(source.pictureWidthPx, source.pictureHeightPx);
    const auto side = [scale, &options](int px) {
        return std::max(static_cast<int>(std::lrint(px * scale)), LeastShortSidePx);
    };
    return {side(source.pictureWidthPx), side(source.pictureHeightPx)};
}

} // namespace

KxSubjectSampling::KxSubjectSampling(const KxSubjectSource& source, const KxSubjectOptions::Sampling& options)
    : m_source(Checked(source))
    , m_workingSize(WorkingSizeOf(m_source, options))
    , m_samplesPerSecond(options.samplesPerSecond)
    , m_step(std::max<std::int64_t>(
          1, static_cast<std::int64_t>(std::floor(m_source.frameRate / WantedPicturesPerSecond + 0.01))))
{
}

bool KxSubjectSampling::Wants(std::int64_t frame) const
{
    return frame >= 0 && frame < m_source.frameCount && frame % m_step == 0;
}

std::int64_t KxSubjectSampling::SlotOf(std::int64_t frame) const
{
    constexpr double tolerance = 0.25; // of a frame
    const double seconds = (static_cast<double>(frame) + tolerance) / m_source.frameRate;
    return static_cast<std::int64_t>(std::floor(seconds * m_samplesPerSecond));
}

bool KxSubjectSampling::IsSample(std::int64_t frame, std::optional<std::int64_t> before) const
{
    return !before || SlotOf(frame) > SlotOf(*before);
}
