#pragma once

#include <KxSubject/KxCropGeometry.h>

#include <array>
#include <cstdint>

/// What a signal says along one axis of the whole picture: the share of its mass in each of equal bins. The sum is
/// between 0 (says nothing) and 1 (says all it has to say).
struct KXSUBJECT_API KxSignalProfile {
    static constexpr std::size_t Bins = 96;
    std::array<float, Bins> share{};

    /// `map` is CV_32FC1 and covers `region`, a part of a picture of `picturePx`; what exceeds the map's mean counts.
    /// `emptyFloor`: the mass, as a share of the area, at which a map says half of what it has to say.
    static KxSignalProfile Of(const cv::Mat& map, const cv::Rect& region, cv::Size picturePx, KxAxis axis,
                              double emptyFloor);

    /// Spreads `mass` evenly from `from` to `to`, fractions of the axis; what lies outside the axis is lost.
    void Add(double from, double to, double mass);
    /// Adds `weight` times the other.
    void Add(const KxSignalProfile& other, double weight);
    float Sum() const;
    /// The same sum, each bin's part of it raised to `power` (1 changes nothing): above 1 a peak gains and
    /// what lies spread out loses.
    KxSignalProfile Concentrated(double power) const;
};

/// A profile kept for every sample of a long video, in a fraction of the bytes: four bins as one, each exact to 1/255
/// of the largest. Unpacked it is a slope from group to group: without steps a crop can come to lie on any place.
class KXSUBJECT_API KxPackedProfile
{
public:
    KxPackedProfile() = default;
    explicit KxPackedProfile(const KxSignalProfile& profile);
    KxSignalProfile Unpacked() const;

private:
    static constexpr std::size_t BinsInGroup = 4;
    float m_largest = 0.0F;
    std::array<std::uint8_t, KxSignalProfile::Bins / BinsInGroup> m_groups{};
};
