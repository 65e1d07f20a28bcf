#include <Apps/Reframe/FoundSignals.h>

#include <KxSubject/KxShotDoubt.h>

#include <QCoreApplication>

#include <algorithm>
#include <numeric>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FoundSignals)
};

float SumOf(const KxSubjectFindings::Sample& sample)
{
    return std::accumulate(sample.scores.begin(), sample.scores.end(), 0.0F);
}

} // namespace

QString FoundSignals::Name(KxSignal signal)
{
    switch (signal) {
    case KxSignal::Motion:
        return Texts::tr("motion");
    case KxSignal::Movers:
        return Texts::tr("movers");
    case KxSignal::Saliency:
        return Texts::tr("saliency");
    case KxSignal::Faces:
        return Texts::tr("faces");
    case KxSignal::Detections:
        return Texts::tr("detected");
    }
    return {};
}

QString FoundSignals::Explanation(KxSignal signal)
{
    switch (signal) {
    case KxSignal::Motion:
        return Texts::tr("motion: what the camera's own movement does not explain");
    case KxSignal::Movers:
        return Texts::tr("movers: what travels through the shot, however small");
    case KxSignal::Saliency:
        return Texts::tr("saliency: what stands out in a still picture");
    case KxSignal::Faces:
        return Texts::tr("faces");
    case KxSignal::Detections:
        return Texts::tr("detected: people and animals");
    }
    return {};
}

QRgb FoundSignals::Colour(KxSignal signal)
{
    switch (signal) {
    case KxSignal::Motion:
        return 0xFFF08A4B;
    case KxSignal::Movers:
        return 0xFFE05C8A;
    case KxSignal::Saliency:
        return 0xFF6F7FD8;
    case KxSignal::Faces:
        return 0xFFF7E08A;
    case KxSignal::Detections:
        return 0xFF5CC8A0;
    }
    return 0;
}

const KxSubjectFindings::Sample* FoundSignals::SampleAt(const KxSubjectFindings& findings, qint64 frame)
{
    const auto& samples = findings.samples;
    if (samples.empty() || findings.shots.empty()) {
        return nullptr;
    }
    const auto after =
        std::upper_bound(samples.begin(), samples.end(), frame,
                         [](qint64 wanted, const KxSubjectFindings::Sample& sample) { return wanted < sample.frame; });
    const KxSubjectFindings::Shot& shot = findings.shots[ShotAt(findings, frame)];
    const bool hasBefore = after != samples.begin() && std::prev(after)->frame >= shot.first;
    const bool hasAfter = after != samples.end() && after->frame < shot.end;
    return hasBefore ? &*std::prev(after) : hasAfter ? &*after : nullptr;
}

std::size_t FoundSignals::ShotAt(const KxSubjectFindings& findings, qint64 frame)
{
    const auto& shots = findings.shots;
    const auto after =
        std::upper_bound(shots.begin(), shots.end(), frame,
                         [](qint64 wanted, const KxSubjectFindings::Shot& shot) { return wanted < shot.first; });
    return after == shots.begin() ? 0 : static_cast<std::size_t>(after - shots.begin()) - 1;
}

float FoundSignals::StrongestSum(const KxSubjectFindings& findings)
{
    float strongest = 1e-6F;
    for (const KxSubjectFindings::Sample& sample : findings.samples) {
        strongest = std::max(strongest, SumOf(sample));
    }
    return strongest;
}

double FoundSignals::DominantShare(const KxSubjectFindings& findings, const KxSubjectFindings::Shot& shot)
{
    double dominant = 0.0;
    double all = 0.0;
    for (const KxSubjectFindings::Sample& sample : findings.samples) {
        if (sample.frame >= shot.first && sample.frame < shot.end) {
            dominant += static_cast<double>(sample.scores[static_cast<std::size_t>(shot.dominantSignal)]);
            all += static_cast<double>(SumOf(sample));
        }
    }
    return all > 0.0 ? dominant / all : 0.0;
}

QString FoundSignals::Doubt(const KxSubjectFindings::Shot& shot)
{
    switch (KxDoubtOf(shot)) {
    case KxShotDoubt::None:
        return {};
    case KxShotDoubt::SpeakerUnclear:
        return Texts::tr("it is not clear who speaks");
    case KxShotDoubt::SpeakerHardlyClear:
        return Texts::tr("who speaks is hardly clear");
    case KxShotDoubt::NothingStandsOut:
        return Texts::tr("nothing stands out");
    case KxShotDoubt::SeveralPlaces:
        break;
    case KxShotDoubt::SeveralPeople:
        return Texts::tr("people or animals are in several places");
    }
    return Texts::tr("what stands out is in several places");
}

QString FoundSignals::Confidence(const KxSubjectFindings::Shot& shot)
{
    return Texts::tr("%1 %").arg(qRound(shot.confidence * 100.0F));
}

QString FoundSignals::Speech(const KxSubjectFindings::Shot& shot)
{
    switch (shot.speech) {
    case KxSpeech::None:
    case KxSpeech::Unclear:
        return {};
    case KxSpeech::Held:
        return Texts::tr("holds who speaks");
    case KxSpeech::Followed:
        break;
    }
    switch (shot.speakerChanges) {
    case 0:
        return Texts::tr("follows who speaks");
    case 1:
        return Texts::tr("follows who speaks, with 1 cut");
    default:
        return Texts::tr("follows who speaks, with %n cuts", nullptr, shot.speakerChanges);
    }
}
