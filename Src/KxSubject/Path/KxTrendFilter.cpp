#include <KxSubject/Path/KxTrendFilter.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

constexpr double FirstPrecision = 1e-2;
constexpr double LastPrecision = 1e-6;
constexpr double PrecisionGain = 0.75;
constexpr double Rigid = 1e8;
constexpr double BoundsWeight = 200.0; ///< on the distance to the bound that the line would cross; 1000 does the same
constexpr int PartWithoutBounds =
    3; ///< the bounds wait for this part of the iterations: first the line finds its shape

/// The lower half of a symmetric matrix of seven diagonals: row i holds columns i-3 to i.
using Band = std::vector<std::array<double, 4>>;

void AddSquare(Band& band, std::size_t first, const std::array<double, 4>& factors, std::size_t count, double weight)
{
    for (std::size_t row = 0; row < count; ++row) {
        for (std::size_t column = 0; column <= row; ++column) {
            band[first + row][3 - (row - column)] += weight * factors[row] * factors[column];
        }
    }
}

/// Solves by an LDL factorisation in place; `right` becomes the solution.
void Solve(Band& band, std::vector<double>& right)
{
    const std::size_t size = right.size();
    for (std::size_t i = 0; i < size; ++i) {
        for (std::size_t back = std::min<std::size_t>(i, 3); back > 0; --back) {
            const std::size_t j = i - back;
            double value = band[i][3 - back];
            for (std::size_t k = i > 3 ? i - 3 : 0; k < j; ++k) {
                if (j - k <= 3) {
                    value -= band[i][3 - (i - k)] * band[j][3 - (j - k)] * band[k][3];
                }
            }
            band[i][3 - back] = value / band[j][3];
        }
        for (std::size_t back = 1; back <= std::min<std::size_t>(i, 3); ++back) {
            band[i][3] -= band[i][3 - back] * band[i][3 - back] * band[i - back][3];
            right[i] -= band[i][3 - back] * right[i - back];
        }
    }
    for (std::size_t i = size; i > 0; --i) {
        right[i - 1] /= band[i - 1][3];
    }
    for (std::size_t i = size; i > 0; --i) {
        for (std::size_t back = 1; back <= std::min<std::size_t>(i - 1, 3); ++back) {
            right[i - 1 - back] -= band[i - 1][3 - back] * right[i - 1];
        }
    }
}

double FirstDifference(const std::vector<double>& line, std::size_t i)
{
    return line[i + 1] - line[i];
}
double SecondDifference(const std::vector<double>& line, std::size_t i)
{
    return FirstDifference(line, i + 1) - FirstDifference(line, i);
}
double ThirdDifference(const std::vector<double>& line, std::size_t i)
{
    return SecondDifference(line, i + 1) - SecondDifference(line, i);
}

} // namespace

struct KxTrendFilter::BoundsPenalty {
    std::vector<double> weight;
    std::vector<double> bound;
};

struct KxTrendFilter::Weights {
    std::vector<double> data;
    std::vector<double> speed;
    std::vector<double> acceleration;
    std::vector<double> jerk;

    std::vector<double> SolveFor(const std::vector<double>& wanted, const BoundsPenalty& penalty) const
    {
        Band band(wanted.size(), {0.0, 0.0, 0.0, 0.0});
        std::vector<double> line(wanted.size());
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            band[i][3] += data[i] + penalty.weight[i];
            line[i] = data[i] * wanted[i] + penalty.weight[i] * penalty.bound[i];
        }
        for (std::size_t i = 0; i < speed.size(); ++i) {
            AddSquare(band, i, {-1.0, 1.0, 0.0, 0.0}, 2, speed[i]);
        }
        for (std::size_t i = 0; i < acceleration.size(); ++i) {
            AddSquare(band, i, {1.0, -2.0, 1.0, 0.0}, 3, acceleration[i]);
        }
        for (std::size_t i = 0; i < jerk.size(); ++i) {
            AddSquare(band, i, {-1.0, 3.0, -3.0, 1.0}, 4, jerk[i]);
        }
        Solve(band, line);
        return line;
    }
};

KxTrendFilter::KxTrendFilter(const Settings& settings)
    : m_settings(settings)
{
}

KxTrendFilter::Weights KxTrendFilter::WeightsOf(const std::vector<double>& line, const std::vector<double>& wanted,
                                                double precision) const
{
    const double step = m_settings.stepSeconds;
    const auto inverse = [precision](double value) { return 1.0 / std::max(std::abs(value), precision); };
    const std::size_t size = line.size();
    Weights weights;
    for (std::size_t i = 0; i < size; ++i) {
        weights.data.push_back(1.0 / std::max(std::abs(line[i] - wanted[i]), m_settings.huberDelta));
    }
    for (std::size_t i = 0; i + 1 < size; ++i) {
        weights.speed.push_back(m_settings.speedWeight / step * inverse(FirstDifference(line, i)));
    }
    for (std::size_t i = 0; i + 2 < size; ++i) {
        weights.acceleration.push_back(m_settings.accelerationWeight / (step * step) *
                                       inverse(SecondDifference(line, i)));
    }
    for (std::size_t i = 0; i + 3 < size; ++i) {
        weights.jerk.push_back(m_settings.jerkWeight / (step * step * step) * inverse(ThirdDifference(line, i)));
    }
    return weights;
}

void KxTrendFilter::Extend(BoundsPenalty& penalty, const std::vector<double>& line) const
{
    for (std::size_t i = 0; i < line.size(); ++i) {
        penalty.bound[i] = std::clamp(line[i], m_settings.lowest, m_settings.highest);
        if (line[i] != penalty.bound[i]) {
            penalty.weight[i] = BoundsWeight;
        }
    }
}

void KxTrendFilter::HoldStillSpans(std::vector<double>& line, const std::vector<double>& wanted,
                                   const BoundsPenalty& penalty) const
{
    std::vector<bool> still(line.size(), false);
    Weights weights = WeightsOf(line, wanted, LastPrecision);
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        still[i] = std::abs(FirstDifference(line, i)) < m_settings.stillSpeed * m_settings.stepSeconds;
        if (still[i]) {
            weights.speed[i] = Rigid;
        }
    }
    line = weights.SolveFor(wanted, penalty);
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        if (still[i]) {
            line[i + 1] = line[i];
        }
    }
}

std::vector<double> KxTrendFilter::Smooth(const std::vector<double>& wanted, const KxCancelToken& cancel) const
{
    if (wanted.size() < 2) {
        return wanted;
    }
    std::vector<double> line = wanted;
    BoundsPenalty penalty{std::vector<double>(wanted.size(), 0.0), std::vector<double>(wanted.size(), 0.0)};
    double precision = FirstPrecision;
    for (int i = 0; i < m_settings.iterations && !cancel.IsCancelled(); ++i) {
        line = WeightsOf(line, wanted, precision).SolveFor(wanted, penalty);
        precision = std::max(precision * PrecisionGain, LastPrecision);
        if (i > m_settings.iterations / PartWithoutBounds) {
            Extend(penalty, line);
        }
    }
    HoldStillSpans(line, wanted, penalty);
    for (double& value : line) {
        value = std::clamp(value, m_settings.lowest, m_settings.highest);
    }
    return line;
}
