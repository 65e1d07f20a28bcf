#pragma once

#include <KxCore/KxExport.h>

#include <vector>

/// Turns a nervous line into one of still spans and constant pans with eased ends: the least sum of the distance to the
/// wanted line and of the absolute first three derivatives, found by reweighted least squares over a banded matrix.
class KXSUBJECT_API KxTrendFilter
{
public:
    struct Settings {
        double stepSeconds = 0.1; ///< between two values
        double foot = 0.02;       ///< a distance below this counts by its square, so small moves are not followed
        double speedWeight = 0.4; ///< per unit a second
        double accelerationWeight = 0.15; ///< per unit a second squared
        double jerkWeight = 0.03;         ///< per unit a second cubed
        double stillSpeed = 0.0;          ///< units a second: slower spans are made to stand exactly
        double topSpeed = 0.5;            ///< units a second, above 0: what exceeds it costs extra
        double hasteWeight = 1.0;         ///< of that extra, per unit a second
        double lowest = 0.0;              ///< what the line must not leave; it is bent back with ease, not cut off
        double highest = 1.0;
        double wallWeight = 200.0; ///< on the distance to the end that the line would leave by
        int iterations = 60;
    };

    explicit KxTrendFilter(const Settings& settings);

    /// As many values as `wanted`, which lie between `lowest` and `highest`, as these do. Cost: linear in their number.
    std::vector<double> Smooth(const std::vector<double>& wanted) const;

private:
    struct Weights;
    struct Walls;
    Weights WeightsOf(const std::vector<double>& line, const std::vector<double>& wanted, double precision) const;
    void HoldStillSpans(std::vector<double>& line, const std::vector<double>& wanted, const Walls& walls) const;
    /// Keeps the line off the ends from now on where it has left by them.
    void Build(Walls& walls, const std::vector<double>& line) const;

    Settings m_settings;
};
