#include <KxSubject/Decision/KxShotFindings.h>

#include <KxSubject/Choice/KxShotConfidence.h>

#include <algorithm>
#include <array>

void KxAddFindings(KxSubjectFindings& findings, const KxDecidedShot& shot, const KxEvidenceCentres& centres,
                   const KxCropGeometry& geometry)
{
    KxShotConfidence confidence(centres.Score(), geometry.Extent() / 2.0);
    std::array<float, KxSignalCount> totals{};
    float whole = 0.0F;
    for (std::size_t i = 0; i < shot.wanted.size(); ++i) {
        const std::size_t index = shot.span.firstSample + i;
        const KxEvidence::Parts parts = shot.evidence.signals.At(index);
        KxSubjectFindings::Sample sample;
        sample.frame = shot.wanted[i].frame;
        sample.wanted = shot.wanted[i].centre;
        const KxSignalProfile combined = centres.Combined(parts, shot.evidence, index);
        whole += combined.Sum();
        const double drawn = shot.path[static_cast<std::size_t>(sample.frame - shot.span.first)];
        confidence.Add(drawn, combined);
        sample.evidence = KxPackedProfile(combined);
        const std::array<const KxSignalProfile*, KxSignalCount> signals{&parts.motion, &parts.movers, &parts.saliency,
                                                                        &parts.faces, &parts.detections};
        for (std::size_t signal = 0; signal < KxSignalCount; ++signal) {
            sample.scores[signal] = centres.Score().Excess(sample.wanted, *signals[signal]);
            totals[signal] += sample.scores[signal];
            // What a person points at need not be what the signals prefer.
            if (!shot.evidence.chosen.Follows()) {
                confidence.AddSignal(drawn, *signals[signal]);
            }
        }
        findings.samples.push_back(sample);
    }
    const auto dominant = std::max_element(totals.begin(), totals.end()) - totals.begin();
    const bool followsSpeaker = !shot.speaker.centres.empty();
    // A short shot may have no sample.
    const float evidence = shot.wanted.empty() ? 0.0F : whole / static_cast<float>(shot.wanted.size());
    findings.shots.push_back({shot.span.first, shot.span.end, static_cast<KxSignal>(dominant),
                              followsSpeaker ? shot.speaker.confidence : confidence.Value(), evidence,
                              shot.speaker.speech, shot.speaker.changes});
}
