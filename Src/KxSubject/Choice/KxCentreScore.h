#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxSignalProfile.h>
#include <KxSubject/KxSubjectOptions.h>

#include <array>
#include <cstddef>

/// Scores the positions that a crop's centre can take along its free axis: the evidence under a soft window of the
/// crop's extent, less a penalty for leaving the picture's middle.
///
/// The window falls from its middle on, because most evidence shows a part of a thing, and what is around it belongs to
/// the crop, too. A detected box is the whole thing. For such evidence the window falls only beside the crop's edges,
/// so that a wide crop holds two things instead of having the heavier one in its middle. The margin is the same in
/// every ratio, because things are as large and move as fast; at 9:16 and below, both windows are the same.
class KXSUBJECT_API KxCentreScore
{
public:
    static constexpr std::size_t Positions = 97;
    using Scores = std::array<float, Positions>;

    KxCentreScore(const KxSubjectOptions::Evidence& options, const KxCropGeometry& geometry);

    Scores Of(const KxSignalProfile& profile) const;
    /// `whole`: the part of the evidence that shows whole things.
    Scores Of(const KxSignalProfile& profile, const KxSignalProfile& whole) const;
    /// The evidence under the window at the position nearest to a centre, less the average over all positions; not
    /// below 0. Evidence that is spread evenly prefers no position, however much it is.
    float Excess(double centre, const KxSignalProfile& profile) const;
    /// The evidence under the window at the position nearest to a centre.
    float Inside(double centre, const KxSignalProfile& profile) const;
    /// The centre with the best score among every `stride`th position.
    double Preferred(const KxSignalProfile& profile, std::size_t stride) const;
    /// The position nearest to a centre.
    std::size_t PositionOf(double centre) const;
    /// The centre at a position, in fractions of the picture; positions are equally spaced between the geometry's ends.
    double CentreAt(std::size_t position) const;
    /// Between two neighbouring positions, in fractions of the picture; 0 when the crop cannot move.
    double Spacing() const { return m_spacing; }

private:
    struct Window {
        KxSignalProfile heights;
        std::size_t firstBin = KxSignalProfile::Bins; ///< heights are 0 before this
        std::size_t endBin = 0;                       ///< and from here on

        /// Bins come in ascending order.
        void Set(std::size_t bin, double height);
        float Sum(const KxSignalProfile& profile) const;
    };

    double m_first;
    double m_spacing;
    std::array<Window, Positions> m_windows{};
    std::array<Window, Positions> m_wholeGains{}; ///< by how much the window for whole things is higher
    Window m_meanWindow;
    Scores m_prior{};
};
