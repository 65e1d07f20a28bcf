#include <KxSubject/Choice/KxSeries.h>

#include <algorithm>
#include <cmath>
#include <numeric>

KxSeries::Values KxSeries::MeansAround(const Values& values, std::size_t reach)
{
    Values sums(values.size() + 1, 0.0);
    std::partial_sum(values.begin(), values.end(), sums.begin() + 1);
    Values means(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::size_t from = i > reach ? i - reach : 0;
        const std::size_t to = std::min(values.size(), i + reach + 1);
        means[i] = (sums[to] - sums[from]) / static_cast<double>(to - from);
    }
    return means;
}

KxSeries::Values KxSeries::LocalScores(const Values& values, std::size_t meanReach, std::size_t deviationReach)
{
    constexpr double most = 3.0;
    Values scores = MeansAround(values, meanReach);
    std::transform(values.begin(), values.end(), scores.begin(), scores.begin(), std::minus<>());
    Values squares(scores.size());
    std::transform(scores.begin(), scores.end(), squares.begin(), [](double score) { return score * score; });
    const double variance = std::accumulate(squares.begin(), squares.end(), 0.0) /
                            static_cast<double>(std::max<std::size_t>(1, scores.size()));
    const Values variances = MeansAround(squares, deviationReach);
    for (std::size_t i = 0; i < scores.size(); ++i) {
        const double deviation = std::max(std::sqrt(std::max(variances[i], 0.0)), 0.5 * std::sqrt(variance));
        scores[i] = deviation > 0.0 ? std::clamp(scores[i] / deviation, -most, most) : 0.0;
    }
    return scores;
}

KxSeries::Values KxSeries::WithoutWhatFollows(const Values& values, const Values& other, std::size_t reach)
{
    constexpr double mostShare = 2.0; // more is due to chance in few values
    Values products(values.size());
    Values squares(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        products[i] = values[i] * other[i];
        squares[i] = other[i] * other[i];
    }
    products = MeansAround(products, reach);
    squares = MeansAround(squares, reach);
    const Values mean = MeansAround(values, reach);
    const Values otherMean = MeansAround(other, reach);
    Values left(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        constexpr double least = 1e-9;
        const double variance = squares[i] - otherMean[i] * otherMean[i];
        const double share = (products[i] - mean[i] * otherMean[i]) / std::max(variance, least);
        left[i] = values[i] - std::clamp(share, 0.0, mostShare) * (variance > least ? other[i] - otherMean[i] : 0.0);
    }
    return left;
}

double KxSeries::Percentile(Values values, double share)
{
    const auto at =
        values.begin() + static_cast<std::ptrdiff_t>(std::lround(share * static_cast<double>(values.size() - 1)));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}
