#include <KxSubject/Signals/KxLookSchedule.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace
{

constexpr double PeriodSeconds = 1.0; ///< between looks, besides one at the start of each scene

float AreaOf(const KxDetection& box)
{
    return box.width * box.height;
}

/// Intersection over union.
float Overlap(const KxDetection& a, const KxDetection& b)
{
    const float width = std::min(a.x + a.width, b.x + b.width) - std::max(a.x, b.x);
    const float height = std::min(a.y + a.height, b.y + b.height) - std::max(a.y, b.y);
    const float common = std::max(width, 0.0F) * std::max(height, 0.0F);
    return common / (AreaOf(a) + AreaOf(b) - common);
}

} // namespace

KxLookSchedule::KxLookSchedule(const KxSubjectOptions::Detections& options, double frameRate)
    : m_options(options)
    , m_frameRate(frameRate)
{
}

bool KxLookSchedule::IsDue(std::int64_t frame, bool isNewScene) const
{
    if (isNewScene || !m_lastFrame) {
        return true;
    }
    constexpr double tolerance = 0.25; // of a frame
    const double seconds = (static_cast<double>(frame - *m_lastFrame) + tolerance) / m_frameRate;
    return seconds >= (m_isSettled ? m_options.settledPeriodSeconds : PeriodSeconds);
}

void KxLookSchedule::Add(const KxDetectionLook& look, bool isNewScene)
{
    std::vector<KxDetection> subjects;
    std::copy_if(look.found.begin(), look.found.end(), std::back_inserter(subjects),
                 [](const KxDetection& found) { return KxIsSubject(found.kind); });
    const auto largest =
        std::max_element(subjects.begin(), subjects.end(),
                         [](const KxDetection& a, const KxDetection& b) { return AreaOf(a) < AreaOf(b); });
    const bool isFound = largest != subjects.end();
    m_isSettled = !isNewScene && isFound && m_largest && largest->kind == m_largest->kind &&
                  static_cast<double>(Overlap(*largest, *m_largest)) >= m_options.settledOverlap;
    m_largest = isFound ? std::optional(*largest) : std::nullopt;
    m_lastFrame = look.frame;
}
