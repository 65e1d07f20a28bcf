#include <KxSubject/Choice/KxAvoidedThing.h>

#include <KxSubject/Choice/KxDetectionTracks.h>

#include <algorithm>
#include <cmath>

namespace
{

/// A track of a signal, compared with the thing.
class Match
{
public:
    Match(const KxChoiceRanges::Range& range, const KxFollowEvidence& thing)
        : m_range(range)
        , m_thing(thing)
    {
    }

    void Add(std::int64_t frame, const KxSubjectBox& box)
    {
        const bool isInRange = frame >= m_range.first && frame < m_range.end;
        const std::optional<KxSubjectBox> thing = isInRange ? m_thing.BoxAt(frame) : std::nullopt;
        if (thing) {
            const double x = box.x + box.width / 2.0 - thing->x;
            const double y = box.y + box.height / 2.0 - thing->y;
            const bool isInside = x >= 0.0 && x <= thing->width && y >= 0.0 && y <= thing->height &&
                                  box.width * box.height <= MostArea * thing->width * thing->height;
            ++m_known;
            m_inside += isInside ? 1 : 0;
        }
    }
    bool IsTheThing() const { return 2 * m_inside > m_known; }

private:
    /// Of the thing: what is larger holds more than the thing.
    static constexpr double MostArea = 2.5;

    const KxChoiceRanges::Range& m_range;
    const KxFollowEvidence& m_thing;
    int m_known = 0;
    int m_inside = 0;
};

/// The part of a motion profile that a mover causes.
void Damp(KxPackedProfile& packed, double from, double to, double share)
{
    KxSignalProfile profile = packed.Unpacked();
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        const double x = (static_cast<double>(bin) + 0.5) / KxSignalProfile::Bins;
        profile.share[bin] *= static_cast<float>(x >= from && x <= to ? share : 1.0);
    }
    packed = KxPackedProfile(profile);
}

void RemoveMovers(KxSubjectRecord& record, double leftShare, const KxChoiceRanges::Range& range,
                  const KxFollowEvidence& thing)
{
    const auto removed = [&](const KxMover& mover) {
        Match match(range, thing);
        const auto first = static_cast<std::size_t>(mover.firstSample);
        const std::size_t end = first + mover.boxes.size();
        for (std::size_t sample = first; sample < end; ++sample) {
            const KxMover::Box box = mover.At(sample);
            match.Add(record.samples[sample].frame, {box.x, box.y, box.width, box.height});
        }
        for (std::size_t sample = first; sample < end && match.IsTheThing(); ++sample) {
            const KxMover::Box box = mover.At(sample);
            std::array<KxPackedProfile, 2>& motion = record.samples[sample].motion;
            Damp(motion[static_cast<std::size_t>(KxAxis::Across)], box.x, box.x + box.width, leftShare);
            Damp(motion[static_cast<std::size_t>(KxAxis::UpDown)], box.y, box.y + box.height, leftShare);
        }
        return match.IsTheThing();
    };
    record.movers.erase(std::remove_if(record.movers.begin(), record.movers.end(), removed), record.movers.end());
}

/// The tracks stay, since mouths refer to them, but without hits.
void RemoveFaces(KxSubjectRecord& record, const KxChoiceRanges::Range& range, const KxFollowEvidence& thing)
{
    const auto frameOf = [&record](const KxFaceLook& look) {
        return KxChoiceRanges::FrameAt(static_cast<double>(look.timeSeconds), record.source.frameRate);
    };
    const KxIntSize size = record.workingSizePx;
    for (KxFaceTrack& face : record.faces) {
        Match match(range, thing);
        for (const KxFaceLook& look : face.looks) {
            if (look.IsFace()) {
                match.Add(frameOf(look),
                          {static_cast<double>(look.x) / size.width, static_cast<double>(look.y) / size.height,
                           static_cast<double>(look.width) / size.width,
                           static_cast<double>(look.height) / size.height});
            }
        }
        for (KxFaceLook& look : face.looks) {
            if (match.IsTheThing() && frameOf(look) >= range.first && frameOf(look) < range.end) {
                look.width = 0;
            }
        }
    }
}

void RemoveDetections(KxSubjectRecord& record, const KxSubjectOptions::Detections& options,
                      const KxChoiceRanges::Range& range, const KxFollowEvidence& thing)
{
    const auto boxOf = [](const KxDetection& box) {
        return KxSubjectBox{static_cast<double>(box.x), static_cast<double>(box.y), static_cast<double>(box.width),
                            static_cast<double>(box.height)};
    };
    const KxDetectionTracks tracks(record, options, range.first, range.end);
    for (const KxDetectionTracks::Track& track : tracks.Tracks()) {
        Match match(range, thing);
        for (const KxDetectionTracks::Track::Point& point : track.points) {
            match.Add(KxChoiceRanges::FrameAt(point.seconds, record.source.frameRate), boxOf(point.box));
        }
        for (const KxDetectionTracks::Track::Point& point : track.points) {
            const std::int64_t frame = KxChoiceRanges::FrameAt(point.seconds, record.source.frameRate);
            const auto look = std::find_if(record.looks.begin(), record.looks.end(),
                                           [frame](const KxDetectionLook& one) { return one.frame == frame; });
            if (match.IsTheThing() && look != record.looks.end()) {
                look->found.erase(
                    std::remove_if(look->found.begin(), look->found.end(),
                                   [&](const KxDetection& found) { return boxOf(found) == boxOf(point.box); }),
                    look->found.end());
            }
        }
    }
}

} // namespace

void KxRemoveAvoidedThing(KxSubjectRecord& record, const KxSubjectOptions& options, const KxChoiceRanges::Range& range,
                          const KxFollowEvidence& thing)
{
    RemoveMovers(record, options.follow.avoidedShare, range, thing);
    RemoveFaces(record, range, thing);
    RemoveDetections(record, options.detections, range, thing);
}
