#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>

#include <vector>

/// Turns a noisy line into one of still spans and constant pans with eased ends: the least sum of the distance to the
/// wanted line and of the absolute first three derivatives, found by iteratively reweighted least squares over a banded
/// matrix.
class KXSUBJECT_API KxTrendFilter
{
public:
    struct Settings {
        double stepSeconds = 0.1; ///< between two values
        double huberDelta = 0.02; ///< a distance below this counts by its square, so small moves are not followed
        double speedWeight = 0.4; ///< per unit a second
        double accelerationWeight = 0.15; ///< per unit a second squared
        double jerkWeight = 0.03;         ///< per unit a second cubed
        double stillSpeed = 0.0;          ///< units a second: slower spans are made exactly still
        double lowest = 0.0;              ///< bounds of the line; it is eased back inside, not clipped
        double highest = 1.0;
        int iterations = 60;
    };

    explicit KxTrendFilter(const Settings& settings);

    /// As many values as `wanted`, all between `lowest` and `highest`, as those of `wanted` must be. Cost: linear in
    /// their number. Once cancelled, returns soon, with an unfinished line.
    std::vector<double> Smooth(const std::vector<double>& wanted, const KxCancelToken& cancel) const;

private:
    struct Weights;
    struct BoundsPenalty;
    Weights WeightsOf(const std::vector<double>& line, const std::vector<double>& wanted, double precision) const;
    void HoldStillSpans(std::vector<double>& line, const std::vector<double>& wanted,
                        const BoundsPenalty& penalty) const;
    /// Penalises the values that lie outside the bounds from now on.
    void Extend(BoundsPenalty& penalty, const std::vector<double>& line) const;

    Settings m_settings;
};
