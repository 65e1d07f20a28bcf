#include <KxSubject/KxSignalProfile.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{

constexpr float PackedOne = 255.0F;

} // namespace

void KxSignalProfile::Add(double from, double to, double mass)
{
    if (!(to > from) || !(mass > 0.0)) {
        return;
    }
    const double scale = mass / (to - from);
    const double first = std::clamp(from, 0.0, 1.0) * Bins;
    const double end = std::clamp(to, 0.0, 1.0) * Bins;
    for (auto bin = static_cast<std::size_t>(first); bin < Bins && static_cast<double>(bin) < end; ++bin) {
        const double low = std::max(first, static_cast<double>(bin));
        const double high = std::min(end, static_cast<double>(bin + 1));
        share[bin] += static_cast<float>((high - low) / Bins * scale);
    }
}

void KxSignalProfile::Add(const KxSignalProfile& other, double weight)
{
    for (std::size_t bin = 0; bin < Bins; ++bin) {
        share[bin] += static_cast<float>(weight) * other.share[bin];
    }
}

float KxSignalProfile::Sum() const
{
    return std::accumulate(share.begin(), share.end(), 0.0F);
}

KxSignalProfile KxSignalProfile::Concentrated(double power) const
{
    KxSignalProfile raised;
    std::transform(share.begin(), share.end(), raised.share.begin(),
                   [power](float part) { return part > 0.0F ? std::pow(part, static_cast<float>(power)) : 0.0F; });
    const float whole = raised.Sum();
    KxSignalProfile concentrated;
    if (whole > 0.0F) {
        concentrated.Add(raised, static_cast<double>(Sum() / whole));
    }
    return concentrated;
}

KxPackedProfile::KxPackedProfile(const KxSignalProfile& profile)
{
    std::array<float, std::tuple_size_v<Groups>> groups{};
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        groups[bin / BinsInGroup] += std::max(0.0F, profile.share[bin]);
    }
    m_largest = *std::max_element(groups.begin(), groups.end());
    for (std::size_t group = 0; m_largest > 0.0F && group < groups.size(); ++group) {
        m_groups[group] = static_cast<std::uint8_t>(std::lround(groups[group] / m_largest * PackedOne));
    }
}

KxPackedProfile::KxPackedProfile(float largestGroup, const Groups& groupLevels)
    : m_largest(largestGroup)
    , m_groups(groupLevels)
{
}

KxSignalProfile KxPackedProfile::Unpacked() const
{
    constexpr std::size_t half = BinsInGroup / 2;
    const float scale = m_largest / PackedOne / static_cast<float>(BinsInGroup);
    KxSignalProfile profile;
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        // A bin between the middles of two groups takes from both; at the ends there is one.
        const std::size_t right = (bin + half) / BinsInGroup;
        const std::size_t left = right - (right > 0 ? 1 : 0);
        const float part = (static_cast<float>((bin + half) % BinsInGroup) + 0.5F) / static_cast<float>(BinsInGroup);
        const float height = (1.0F - part) * static_cast<float>(m_groups[left]) +
                             part * static_cast<float>(m_groups[std::min(right, m_groups.size() - 1)]);
        profile.share[bin] = height * scale;
    }
    return profile;
}
