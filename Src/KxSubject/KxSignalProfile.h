#pragma once

#include <KxCore/KxExport.h>

#include <array>
#include <cstddef>
#include <cstdint>

/// The evidence of a signal along one axis of the whole picture: the share of its mass in each of equal bins. The sum
/// is between 0 (no evidence) and 1 (all that a signal can give).
struct KXSUBJECT_API KxSignalProfile {
    static constexpr std::size_t Bins = 96;
    std::array<float, Bins> share{};

    /// Spreads `mass` evenly from `from` to `to`, fractions of the axis; what lies outside the axis is lost.
    void Add(double from, double to, double mass);
    /// Adds `weight` times the other.
    void Add(const KxSignalProfile& other, double weight);
    float Sum() const;
    /// The same sum, each bin's part of it raised to `power` (1 changes nothing): above 1, peaks gain and
    /// evidence that is spread out loses.
    KxSignalProfile Concentrated(double power) const;
};

/// A profile kept for every sample of a long video, in a fraction of the bytes: four bins as one, each exact to 1/255
/// of the largest. Unpacking interpolates between the groups: steps would restrict the positions of a crop.
class KXSUBJECT_API KxPackedProfile
{
public:
    static constexpr std::size_t BinsInGroup = 4;
    using Groups = std::array<std::uint8_t, KxSignalProfile::Bins / BinsInGroup>;

    KxPackedProfile() = default;
    explicit KxPackedProfile(const KxSignalProfile& profile);
    /// What LargestGroup() and GroupLevels() returned.
    KxPackedProfile(float largestGroup, const Groups& groupLevels);

    KxSignalProfile Unpacked() const;
    float LargestGroup() const { return m_largest; }
    /// In 255ths of the largest group.
    const Groups& GroupLevels() const { return m_groups; }

private:
    float m_largest = 0.0F;
    Groups m_groups{};
};
