#include <KxSubject/Decision/KxSpeakerCentres.h>

#include <KxSubject/Choice/KxSpeakerChoice.h>
#include <KxSubject/Path/KxCropPath.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double EnoughHeld = 0.95; ///< of the time that the crop holds the speaker anyway: it stays

std::vector<double> CentresOn(const std::vector<KxSpeakerChoice::Part>& parts, const KxSpeakerChoice& choice,
                              const KxDecisionTask& task, const KxCancelToken& cancel)
{
    const double frameRate = task.record.source.frameRate;
    const KxCropPath path(task.options.path, task.options.For(task.request.speed), task.geometry);
    const auto step = std::max<std::int64_t>(1, std::llround(frameRate / task.options.sampling.samplesPerSecond));
    std::vector<double> centres;
    for (const KxSpeakerChoice::Part& part : parts) {
        std::vector<KxPathPoint> points;
        for (std::int64_t frame = part.first; frame < part.end; frame += step) {
            points.push_back({frame, choice.CentreAt(part, frame, task.geometry.FreeAxis())});
        }
        const std::vector<double> drawn = path.Draw(points, {part.first, part.end, frameRate}, 0.5, cancel);
        centres.insert(centres.end(), drawn.begin(), drawn.end());
    }
    return centres;
}

} // namespace

KxSpeakerCentres KxSpeakerCentresOf(const KxDecisionTask& task, const KxShotSpan& shot,
                                    const std::vector<double>& silent, const KxCancelToken& cancel)
{
    if (task.request.speaker == KxSpeakerMode::Off || task.record.mouths.empty() || task.record.sound.empty()) {
        return {};
    }
    const KxSpeakerChoice choice(task.record, task.options.speech, shot.first, shot.end);
    if (!choice.HasSeveral()) {
        return {};
    }
    if (!choice.IsClear()) {
        return {KxSpeech::Unclear};
    }
    if (choice.ShareHeld(silent, task.geometry) >= EnoughHeld) {
        return {KxSpeech::Held};
    }
    const std::vector<KxSpeakerChoice::Part> parts = choice.Parts(task.geometry);
    return {KxSpeech::Followed, CentresOn(parts, choice, task, cancel), static_cast<int>(parts.size()) - 1,
            static_cast<float>(choice.Confidence())};
}
