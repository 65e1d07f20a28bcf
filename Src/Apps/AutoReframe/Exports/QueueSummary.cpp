#include <Apps/AutoReframe/Exports/QueueSummary.h>

#include <algorithm>
#include <cmath>

namespace
{

using State = ExportItem::State;

constexpr double WholeProgress = 10000.0;
/// What finding the crops takes of a planned export, by measurement.
constexpr double AnalysisShare = 0.1;

double DoneShare(const ExportItem& item)
{
    const double progress = item.progress / WholeProgress;
    switch (item.state) {
    case State::Analyzing:
        return AnalysisShare * progress;
    case State::Running:
        return item.plan ? AnalysisShare + (1.0 - AnalysisShare) * progress : progress;
    case State::Done:
        return 1.0;
    default:
        return 0.0;
    }
}

} // namespace

QueueSummary QueueSummary::Of(const std::vector<ExportItem>& items)
{
    QueueSummary summary;
    for (const ExportItem& item : items) {
        if (!item.plan || item.state == State::Interrupted) {
            continue;
        }
        ++summary.planned;
        summary.active += item.IsActive() ? 1 : 0;
        summary.done += item.state == State::Done ? 1 : 0;
        summary.failed += item.state == State::Failed ? 1 : 0;
        summary.cancelled += item.state == State::Cancelled ? 1 : 0;
        summary.toLookAt += item.state == State::Done && !item.shotsToLookAt.isEmpty() ? 1 : 0;
        summary.withoutEdits += item.state == State::Done && item.missingEdits > 0 ? 1 : 0;
    }
    return summary;
}

void QueueWork::Add(const ExportItem& item)
{
    const auto frames = static_cast<double>(std::max<qint64>(item.frames, 1));
    all += frames;
    done += frames * DoneShare(item);
}

std::optional<qint64> QueueWork::SecondsLeft(qint64 activeMs) const
{
    // An estimate from less would jump about.
    constexpr qint64 enoughMs = 2000;
    if (activeMs < enoughMs || done <= 0.0) {
        return std::nullopt;
    }
    return 1 + static_cast<qint64>(static_cast<double>(activeMs) * (all - done) / done / 1000.0);
}

int QueueWork::Progress() const
{
    return all > 0.0 ? static_cast<int>(std::lround(WholeProgress * done / all)) : 0;
}
