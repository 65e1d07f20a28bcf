#include <KxSubject/KxSubjectDecision.h>

#include <KxSubject/Decision/KxEvidenceCentres.h>
#include <KxSubject/Decision/KxPlacedCrops.h>
#include <KxSubject/Decision/KxShotFindings.h>
#include <KxSubject/Decision/KxSpeakerCentres.h>
#include <KxSubject/Path/KxHeldRanges.h>

#include <algorithm>

namespace
{

constexpr double EaseSeconds = 1.0; ///< for coming to a place that a person chose

class Decider
{
public:
    Decider(const KxSubjectRecord& record, const KxSubjectRequest& request, const KxSubjectOptions& options)
        : m_task{record, request, options}
        , m_shots(KxShotSpansOf(record, m_task.LongestHoldFrames()))
        , m_centres(m_task, m_shots)
    {
    }

    KxSubjectDecision Run(const KxCancelToken& cancel);

private:
    std::vector<double> CentresOf(const KxShotSpan& shot, const KxChoiceRanges& choices,
                                  const std::vector<KxHeldRange>& held, const KxCancelToken& cancel);
    void AddCrops(const KxShotSpan& shot, const KxCancelToken& cancel, std::vector<KxCropRect>& crops);

    KxDecisionTask m_task;
    std::vector<KxShotSpan> m_shots;
    KxEvidenceCentres m_centres;
    KxSubjectFindings m_findings;
};

std::vector<double> Decider::CentresOf(const KxShotSpan& shot, const KxChoiceRanges& choices,
                                       const std::vector<KxHeldRange>& held, const KxCancelToken& cancel)
{
    const KxShotEvidence evidence = m_centres.EvidenceIn(shot, choices, cancel);
    std::vector<KxPathPoint> wanted = m_centres.Wanted(shot, evidence, cancel);
    for (const KxHeldRange& range : held) {
        for (KxPathPoint& point : wanted) {
            point.centre = point.frame >= range.first && point.frame < range.end ? range.centre : point.centre;
        }
    }
    std::vector<double> centres = m_centres.Drawn(shot, evidence, wanted, cancel);
    const bool isChosen = !choices.Placed().empty() || !choices.Avoided().empty();
    KxSpeakerCentres speaker = isChosen ? KxSpeakerCentres() : KxSpeakerCentresOf(m_task, shot, centres, cancel);
    if (m_task.request.wantsFindings && !cancel.IsCancelled()) {
        KxAddFindings(m_findings, {shot, evidence, wanted, centres, speaker}, m_centres, m_task.geometry);
    }
    if (!speaker.centres.empty()) {
        centres = std::move(speaker.centres);
    }
    if (!cancel.IsCancelled()) {
        KxHoldRanges(centres, {shot.first, shot.end, m_task.record.source.frameRate}, held, EaseSeconds);
    }
    return centres;
}

void Decider::AddCrops(const KxShotSpan& shot, const KxCancelToken& cancel, std::vector<KxCropRect>& crops)
{
    const KxChoiceRanges choices(m_task.request.choices, m_task.record.source.frameRate, shot.first, shot.end);
    const KxPlacedCrops placed = KxPlacedCropsOf(m_task.request.choices, choices, m_task.geometry);
    for (const double centre : CentresOf(shot, choices, placed.held, cancel)) {
        crops.push_back(m_task.geometry.At(centre));
    }
    for (const KxChoiceRanges::Range& range : placed.whole) {
        std::fill(crops.begin() + range.first, crops.begin() + range.end, m_task.record.content);
    }
}

KxSubjectDecision Decider::Run(const KxCancelToken& cancel)
{
    KxSubjectDecision decision;
    decision.crops.reserve(static_cast<std::size_t>(m_task.record.source.frameCount));
    m_findings.freeAxis = m_task.geometry.FreeAxis();
    m_findings.content = m_task.record.content;
    for (const KxShotSpan& shot : m_shots) {
        if (shot.first < m_task.request.frames.end && shot.end > m_task.request.frames.first) {
            AddCrops(shot, cancel, decision.crops);
        } else {
            decision.crops.insert(decision.crops.end(), static_cast<std::size_t>(shot.end - shot.first),
                                  m_task.geometry.At(0.5));
        }
        if (cancel.IsCancelled()) {
            return {};
        }
    }
    decision.findings = std::move(m_findings);
    return decision;
}

} // namespace

KxSubjectDecision KxDecide(const KxSubjectRecord& record, const KxSubjectRequest& request,
                           const KxSubjectOptions& options, const KxCancelToken& cancel)
{
    return Decider(record, request, options).Run(cancel);
}
