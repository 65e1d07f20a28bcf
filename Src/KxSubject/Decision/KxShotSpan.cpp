#include <KxSubject/Decision/KxShotSpan.h>

#include <KxSubject/KxSubjectRecord.h>

#include <algorithm>

namespace
{

/// The record's boundaries, and the ends of the pauses that have no boundary in them.
std::vector<KxShotBoundary> BoundariesAndPauses(const KxSubjectRecord& record, std::int64_t longestPauseFrames)
{
    std::vector<KxShotBoundary> boundaries = record.boundaries;
    const std::vector<KxSignalSample>& samples = record.samples;
    const auto isBefore = [](std::int64_t frame, const KxShotBoundary& boundary) { return frame < boundary.frame; };
    std::vector<KxShotBoundary> pauses;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        const std::int64_t frame = samples[i].frame;
        const std::int64_t before = samples[i - 1].frame;
        if (frame - before <= longestPauseFrames) {
            continue;
        }
        const auto found = std::upper_bound(boundaries.begin(), boundaries.end(), before, isBefore);
        if (found == boundaries.end() || found->frame > frame) {
            pauses.push_back({frame, frame, frame, KxShotBoundaryKind::Cut});
        }
    }
    boundaries.insert(boundaries.end(), pauses.begin(), pauses.end());
    std::sort(boundaries.begin(), boundaries.end(),
              [](const KxShotBoundary& a, const KxShotBoundary& b) { return a.frame < b.frame; });
    return boundaries;
}

void SetSamples(KxShotSpan& shot, const std::vector<KxSignalSample>& samples)
{
    const auto isBefore = [](const KxSignalSample& sample, std::int64_t frame) { return sample.frame < frame; };
    const auto from = std::lower_bound(samples.begin(), samples.end(), shot.first, isBefore);
    const auto to = std::lower_bound(from, samples.end(), shot.end, isBefore);
    shot.firstSample = static_cast<std::size_t>(from - samples.begin());
    shot.endSample = static_cast<std::size_t>(to - samples.begin());
}

} // namespace

std::vector<KxShotSpan> KxShotSpansOf(const KxSubjectRecord& record, std::int64_t longestPauseFrames)
{
    const std::int64_t frameCount = record.source.frameCount;
    std::vector<KxShotSpan> shots{{0, frameCount, 0, frameCount}};
    for (const KxShotBoundary& boundary : BoundariesAndPauses(record, longestPauseFrames)) {
        shots.back().end = boundary.frame;
        shots.back().clearEnd = std::min(boundary.first, boundary.frame);
        shots.push_back({boundary.frame, frameCount, std::max(boundary.frame, boundary.last), frameCount});
    }
    for (KxShotSpan& shot : shots) {
        SetSamples(shot, record.samples);
    }
    return shots;
}
