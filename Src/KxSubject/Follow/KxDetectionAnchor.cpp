#include <KxSubject/Follow/KxDetectionAnchor.h>

#include <algorithm>
#include <cmath>

namespace
{

/// As a relation: the box is the detection.
constexpr KxSubjectBox WholeThing{0.0, 0.0, 1.0, 1.0};

KxSubjectBox BoxOf(const KxDetection& detection)
{
    return {static_cast<double>(detection.x), static_cast<double>(detection.y), static_cast<double>(detection.width),
            static_cast<double>(detection.height)};
}

double AreaOf(const KxSubjectBox& box)
{
    return box.width * box.height;
}

/// The part that lies in the picture, as that of a detection does.
KxSubjectBox Inside(const KxSubjectBox& box)
{
    const double left = std::clamp(box.x, 0.0, 1.0);
    const double top = std::clamp(box.y, 0.0, 1.0);
    return {left, top, std::clamp(box.x + box.width, 0.0, 1.0) - left, std::clamp(box.y + box.height, 0.0, 1.0) - top};
}

/// The intersection over the union.
double Overlap(const KxSubjectBox& a, const KxSubjectBox& b)
{
    const double width = std::min(a.x + a.width, b.x + b.width) - std::max(a.x, b.x);
    const double height = std::min(a.y + a.height, b.y + b.height) - std::max(a.y, b.y);
    const double both = std::max(0.0, width) * std::max(0.0, height);
    const double either = AreaOf(a) + AreaOf(b) - both;
    return either > 0.0 ? both / either : 0.0;
}

/// The logarithm of the ratio of two areas.
double Growth(const KxDetection& a, const KxDetection& b)
{
    return std::abs(std::log(AreaOf(BoxOf(a)) / AreaOf(BoxOf(b))));
}

} // namespace

KxDetectionAnchor::KxDetectionAnchor(const KxSubjectRecord& record, const KxSubjectOptions& options)
    : m_record(record)
    , m_options(options.follow)
    , m_linking(options.detections)
{
}

const KxDetectionLook* KxDetectionAnchor::LookAt(std::int64_t frame) const
{
    const auto found =
        std::lower_bound(m_record.looks.begin(), m_record.looks.end(), frame,
                         [](const KxDetectionLook& look, std::int64_t time) { return look.frame < time; });
    return found != m_record.looks.end() && found->frame == frame ? &*found : nullptr;
}

KxSubjectBox KxDetectionAnchor::Mapped(const KxDetection& detection) const
{
    const KxSubjectBox box = BoxOf(detection);
    return {box.x + m_relation.x * box.width, box.y + m_relation.y * box.height, m_relation.width * box.width,
            m_relation.height * box.height};
}

bool KxDetectionAnchor::WasBeside(const KxDetection& detection) const
{
    const double own = m_thing ? Overlap(BoxOf(*m_thing), BoxOf(detection)) : 1.0;
    return std::any_of(m_bystanders.begin(), m_bystanders.end(), [&](const KxDetection& bystander) {
        const double overlap = Overlap(BoxOf(bystander), BoxOf(detection));
        return overlap >= m_options.stillOverlap && overlap > own;
    });
}

const KxDetection* KxDetectionAnchor::Overlapping(const KxDetectionLook& look, const KxSubjectBox& box) const
{
    double most = m_isRelated ? m_options.stillOverlap : m_options.firstOverlap;
    // Looks are about a second apart, but a look may miss the thing, which comes nearer or goes away meanwhile.
    const double mostGrowth = m_options.stillGrowth * std::max(1.0, std::abs(m_record.SecondsAt(look.frame - m_frame)));
    const KxDetection* best = nullptr;
    for (const KxDetection& detection : look.found) {
        const KxSubjectBox expected = m_isRelated ? Mapped(detection) : BoxOf(detection);
        const double overlap = Overlap(Inside(expected), Inside(box));
        const bool isOther = m_thing && (WasBeside(detection) || Growth(*m_thing, detection) > mostGrowth);
        if (overlap >= most && !isOther) {
            most = overlap;
            best = &detection;
        }
    }
    return best;
}

const KxDetection* KxDetectionAnchor::FoundAgain(const KxDetectionLook& look) const
{
    const KxSubjectBox last = BoxOf(*m_thing);
    const double gapSeconds = std::abs(m_record.SecondsAt(look.frame - m_frame));
    double nearest = 1.0;
    const KxDetection* best = nullptr;
    for (const KxDetection& detection : look.found) {
        const KxSubjectBox box = BoxOf(detection);
        const double reach = m_linking.reachBySize * std::sqrt(std::max(AreaOf(box), AreaOf(last))) +
                             m_linking.reachPerSecond * gapSeconds;
        const double distance = std::hypot(box.x + box.width / 2.0 - last.x - last.width / 2.0,
                                           box.y + box.height / 2.0 - last.y - last.height / 2.0) /
                                reach;
        const bool isOther = WasBeside(detection) || detection.kind != m_thing->kind ||
                             Growth(*m_thing, detection) > m_linking.mostGrowth;
        if (distance < nearest && !isOther) {
            nearest = distance;
            best = &detection;
        }
    }
    return best;
}

bool KxDetectionAnchor::IsRival(const KxDetection& other, const KxDetection& thing, const KxSubjectBox& box) const
{
    const KxSubjectBox before = BoxOf(*m_thing);
    const double stayed = Overlap(BoxOf(other), before);
    return Overlap(Inside(Mapped(other)), Inside(box)) >= m_options.stillOverlap ||
           (stayed >= m_options.stillOverlap && stayed > Overlap(BoxOf(thing), before));
}

std::optional<KxSubjectBox> KxDetectionAnchor::Correct(const Tracked& tracked)
{
    const KxDetectionLook* look = LookAt(tracked.frame);
    if (look == nullptr) {
        return std::nullopt;
    }
    const bool isSeen = tracked.confidence >= m_options.goodConfidence;
    const KxDetection* thing = isSeen ? Overlapping(*look, tracked.box) : nullptr;
    const bool isOverlapping = thing != nullptr;
    if (!isOverlapping && m_thing && !(isSeen && m_wasMissed)) {
        thing = FoundAgain(*look);
    }
    m_wasMissed = thing == nullptr;
    if (m_wasMissed) {
        return std::nullopt;
    }
    if (isOverlapping && !m_isRelated) {
        m_isRelated = true;
        const KxSubjectBox box = BoxOf(*thing);
        m_relation = AreSame(tracked.box, box, m_options)
                         ? WholeThing
                         : KxSubjectBox{(tracked.box.x - box.x) / box.width, (tracked.box.y - box.y) / box.height,
                                        tracked.box.width / box.width, tracked.box.height / box.height};
    }
    m_isAmbiguous = m_thing && std::any_of(look->found.begin(), look->found.end(), [&](const KxDetection& other) {
                        return &other != thing && IsRival(other, *thing, tracked.box);
                    });
    m_bystanders.clear();
    std::copy_if(
        look->found.begin(), look->found.end(), std::back_inserter(m_bystanders),
        [&](const KxDetection& other) { return Overlap(BoxOf(other), BoxOf(*thing)) < m_options.firstOverlap; });
    m_thing = *thing;
    m_frame = tracked.frame;
    return Mapped(*thing);
}

bool KxDetectionAnchor::AreSame(const KxSubjectBox& a, const KxSubjectBox& b, const KxSubjectOptions::Follow& options)
{
    return Overlap(Inside(a), Inside(b)) >= options.sameOverlap;
}
