#include <KxSubject/Path/KxHeldRanges.h>

#include <algorithm>
#include <cmath>

namespace
{

/// 1 at 0, 0 from 1 on, without a bend at either end.
double Ease(double part)
{
    const double rest = 1.0 - std::min(part, 1.0);
    return rest * rest * (3.0 - 2.0 * rest);
}

/// What the path lacks at a held frame is added to the frames of a free stretch beside it, less with the distance.
struct Correction {
    std::int64_t frame;
    double missing;
};

} // namespace

void KxHoldRanges(std::vector<double>& centres, const KxFrameSpan& shot, const std::vector<KxHeldRange>& held,
                  double easeSeconds)
{
    const std::vector<double> drawn = centres;
    const auto missingAt = [&](const KxHeldRange& range, std::int64_t frame) {
        return range.centre - drawn[static_cast<std::size_t>(frame - shot.first)];
    };
    for (std::size_t i = 0; i <= held.size(); ++i) {
        const std::int64_t first = i == 0 ? shot.first : held[i - 1].end;
        const std::int64_t end = i == held.size() ? shot.end : held[i].first;
        std::vector<Correction> corrections;
        if (i > 0) {
            corrections.push_back({first - 1, missingAt(held[i - 1], first - 1)});
        }
        if (i < held.size()) {
            corrections.push_back({end, missingAt(held[i], end)});
        }
        const double gap =
            static_cast<double>(end - first) / static_cast<double>(std::max<std::size_t>(1, corrections.size()));
        const double easeFrames = std::max(1.0, std::min(easeSeconds * shot.frameRate, gap));
        for (const Correction& correction : corrections) {
            for (std::int64_t frame = first; frame < end; ++frame) {
                const double distance = static_cast<double>(std::abs(frame - correction.frame));
                centres[static_cast<std::size_t>(frame - shot.first)] +=
                    correction.missing * Ease(distance / easeFrames);
            }
        }
    }
    for (const KxHeldRange& range : held) {
        std::fill(centres.begin() + (range.first - shot.first), centres.begin() + (range.end - shot.first),
                  range.centre);
    }
}
