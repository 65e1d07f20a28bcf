#include <KxSubject/Choice/KxCentreScore.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double Pi = 3.1415926535897932384626433832795;
constexpr double LeastSpacing = 1e-6; ///< of the picture; positions nearer than this are one position

/// The window at a distance from its middle: 1 up to the margin beside its edge, where it falls as a squared cosine.
double HeightAt(double distance, double half, double margin, double flat)
{
    const double wave = std::cos(Pi / 2.0 * std::max(distance - (half - margin), 0.0) / margin);
    return flat + (1.0 - flat) * wave * wave;
}

} // namespace

KxCentreScore::KxCentreScore(const KxSubjectOptions::Evidence& options, const KxCropGeometry& geometry)
    : m_first(geometry.MinimumCentre())
    , m_spacing((geometry.MaximumCentre() - geometry.MinimumCentre()) / static_cast<double>(Positions - 1))
{
    const double half = geometry.Extent() / 2.0;
    const bool across = geometry.FreeAxis() == KxAxis::Across;
    const double priorWeight = across ? options.centrePriorAcross : options.centrePriorUpDown;
    const double flat = across ? options.windowFlatAcross : 1.0;
    const double margin = half * geometry.NarrowShare();
    constexpr double binExtent = 1.0 / KxSignalProfile::Bins;
    m_meanWindow = {{}, 0, KxSignalProfile::Bins};
    for (std::size_t position = 0; position < Positions; ++position) {
        const double centre = CentreAt(position);
        const double offCentre = (centre - 0.5) / 0.5;
        m_prior[position] = static_cast<float>(-priorWeight * offCentre * offCentre);
        for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
            const double from = static_cast<double>(bin) * binExtent;
            const double low = std::max(from, centre - half);
            const double high = std::min(from + binExtent, centre + half);
            if (high > low) {
                const double share = (high - low) / binExtent;
                const double distance = std::abs((low + high) / 2.0 - centre);
                const double height = HeightAt(distance, half, half, flat);
                m_windows[position].Set(bin, share * height);
                m_wholeGains[position].Set(bin, share * (HeightAt(distance, half, margin, flat) - height));
            }
        }
        m_meanWindow.heights.Add(m_windows[position].heights, 1.0 / static_cast<double>(Positions));
    }
}

KxCentreScore::Scores KxCentreScore::Of(const KxSignalProfile& profile) const
{
    Scores scores = m_prior;
    for (std::size_t position = 0; position < Positions; ++position) {
        scores[position] += m_windows[position].Sum(profile);
    }
    return scores;
}

KxCentreScore::Scores KxCentreScore::Of(const KxSignalProfile& profile, const KxSignalProfile& whole) const
{
    Scores scores = Of(profile);
    for (std::size_t position = 0; position < Positions; ++position) {
        scores[position] += m_wholeGains[position].Sum(whole);
    }
    return scores;
}

void KxCentreScore::Window::Set(std::size_t bin, double height)
{
    if (height > 0.0) {
        heights.share[bin] = static_cast<float>(height);
        firstBin = std::min(firstBin, bin);
        endBin = bin + 1;
    }
}

float KxCentreScore::Window::Sum(const KxSignalProfile& profile) const
{
    float sum = 0.0F;
    for (std::size_t bin = firstBin; bin < endBin; ++bin) {
        sum += heights.share[bin] * profile.share[bin];
    }
    return sum;
}

float KxCentreScore::Excess(double centre, const KxSignalProfile& profile) const
{
    if (m_spacing < LeastSpacing) {
        return 0.0F;
    }
    return std::max(Inside(centre, profile) - m_meanWindow.Sum(profile), 0.0F);
}

float KxCentreScore::Inside(double centre, const KxSignalProfile& profile) const
{
    return m_windows[PositionOf(centre)].Sum(profile);
}

double KxCentreScore::Preferred(const KxSignalProfile& profile, std::size_t stride) const
{
    std::size_t best = 0;
    float most = m_prior[0] + m_windows[0].Sum(profile);
    for (std::size_t position = stride; position < Positions; position += stride) {
        const float score = m_prior[position] + m_windows[position].Sum(profile);
        if (score > most) {
            most = score;
            best = position;
        }
    }
    return CentreAt(best);
}

std::size_t KxCentreScore::PositionOf(double centre) const
{
    if (m_spacing < LeastSpacing) {
        return 0;
    }
    const double position = (centre - m_first) / m_spacing;
    return static_cast<std::size_t>(std::lround(std::clamp(position, 0.0, Positions - 1.0)));
}

double KxCentreScore::CentreAt(std::size_t position) const
{
    return m_first + m_spacing * static_cast<double>(position);
}
