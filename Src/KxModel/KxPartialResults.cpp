#include <KxModel/KxPartialResults.h>

#include <KxSubject/KxSubjectDecision.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <algorithm>

namespace
{

/// Between the points of a track that reaches over both; what it has not reached yet is farther.
constexpr double LongestGapSeconds = 1.0;

QList<IKxAutoReframeResult> Reached(const KxFollowTrack& track, const std::vector<KxCropRect>& crops, double frameRate)
{
    QList<IKxAutoReframeResult> results;
    for (std::size_t i = 0; i < track.points.size(); ++i) {
        const qint64 here = track.points[i].frame;
        const qint64 before = i > 0 ? track.points[i - 1].frame : here - 1;
        const bool isReached = static_cast<double>(here - before) <= LongestGapSeconds * frameRate;
        for (qint64 frame = isReached ? before + 1 : here; frame <= here; ++frame) {
            const KxCropRect& crop = crops[static_cast<std::size_t>(frame)];
            results.append(IKxAutoReframeResult(frame, QRectF(crop.x, crop.y, crop.width, crop.height)));
        }
    }
    return results;
}

} // namespace

KxPartialResults::KxPartialResults(const KxSubjectRecord& record, const KxSubjectRequest& request,
                                   const KxPartialTaker& taker, const KxCancelToken& cancel)
    : m_record(record)
    , m_request(request)
    , m_choice(request.tracks.size())
    , m_taker(taker)
    , m_cancel(cancel)
    , m_next(Clock::now() + taker.first)
{
    m_request.wantsFindings = false;
    m_request.tracks.resize(m_request.choices.size());
}

void KxPartialResults::HandleFollowed(const std::function<KxFollowTrack()>& track)
{
    const Clock::time_point start = Clock::now();
    if (!m_taker.take || start < m_next) {
        return;
    }
    Decide(track());
    const Clock::time_point end = Clock::now();
    m_next = end + std::max<Clock::duration>(m_taker.between, m_taker.pause * (end - start));
}

void KxPartialResults::Decide(KxFollowTrack track)
{
    // A seed that is only a point has no box before it is reached.
    track.points.erase(std::remove_if(track.points.begin(), track.points.end(),
                                      [](const KxFollowTrack::Point& point) { return point.box.width <= 0.0; }),
                       track.points.end());
    if (track.points.size() == m_request.tracks[m_choice].points.size()) {
        return;
    }
    m_request.frames = {track.points.front().frame, track.points.back().frame + 1};
    m_request.tracks[m_choice] = std::move(track);
    const KxSubjectDecision decision = KxDecide(m_record, m_request, {}, m_cancel);
    if (!decision.crops.empty()) {
        m_taker.take(Reached(m_request.tracks[m_choice], decision.crops, m_record.source.frameRate));
    }
}
