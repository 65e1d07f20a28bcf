#include <KxSubject/Signals/KxLookSchedule.h>

#include <algorithm>

namespace
{

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

/// Whether each large thing of one look is in another: those of at least half the largest one's area. Smaller things
/// come and go, and weigh little.
bool AreIn(const std::vector<KxDetection>& things, const std::vector<KxDetection>& others, double leastOverlap)
{
    float largest = 0.0F;
    for (const KxDetection& thing : things) {
        largest = std::max(largest, AreaOf(thing));
    }
    return std::all_of(things.begin(), things.end(), [&](const KxDetection& thing) {
        return AreaOf(thing) < largest / 2.0F ||
               std::any_of(others.begin(), others.end(), [&](const KxDetection& other) {
                   return other.kind == thing.kind && static_cast<double>(Overlap(other, thing)) >= leastOverlap;
               });
    });
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
    return seconds >= (m_isSettled ? m_options.settledPeriodSeconds : m_options.periodSeconds);
}

void KxLookSchedule::Add(const KxDetectionLook& look, bool isNewScene)
{
    m_isSettled = !isNewScene && !look.found.empty() && !m_found.empty() &&
                  AreIn(look.found, m_found, m_options.settledOverlap) &&
                  AreIn(m_found, look.found, m_options.settledOverlap);
    m_found = look.found;
    m_lastFrame = look.frame;
}
