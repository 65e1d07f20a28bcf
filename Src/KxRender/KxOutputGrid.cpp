#include <KxRender/KxOutputGrid.h>

#include <KxCore/KxFrameTime.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{

constexpr double SameRate = 0.0005;
constexpr double HighestRate = 1000.0;

std::optional<KxRational> Rationalized(double rate)
{
    if (!std::isfinite(rate) || rate < 0.001 || rate > HighestRate) {
        return std::nullopt;
    }
    const double whole = std::round(rate);
    constexpr double nameRounding = 0.005; // rates are written with two decimals or more
    const double video = std::round(rate * 1.001);
    if (std::abs(rate - whole) > nameRounding && std::abs(rate - video / 1.001) < nameRounding) {
        return KxRational{static_cast<int>(video) * 1000, 1001};
    }
    const int thousandths = static_cast<int>(std::lround(rate * 1000));
    const int divisor = std::gcd(thousandths, 1000);
    return KxRational{thousandths / divisor, 1000 / divisor};
}

} // namespace

std::optional<KxOutputGrid> KxOutputGrid::Make(const KxRational& sourceRate, qint64 sourceFrames, double wantedRate)
{
    const double source = sourceRate.ToDouble();
    const bool isSame = std::abs(wantedRate) < 1e-9 || std::abs(wantedRate - source) <= source * SameRate;
    const std::optional<KxRational> rate = isSame ? sourceRate : Rationalized(wantedRate);
    if (!rate) {
        return std::nullopt;
    }
    return KxOutputGrid(sourceRate, sourceFrames, *rate);
}

KxOutputGrid::KxOutputGrid(const KxRational& sourceRate, qint64 sourceFrames, const KxRational& rate)
    : m_rate(rate)
    , m_sourceFrames(sourceFrames)
{
    const qint64 numerator = static_cast<qint64>(sourceRate.numerator) * rate.denominator;
    const qint64 denominator = static_cast<qint64>(sourceRate.denominator) * rate.numerator;
    const qint64 divisor = std::gcd(numerator, denominator);
    m_stepNumerator = numerator / divisor;
    m_stepDenominator = denominator / divisor;
    m_frames = std::max<qint64>(
        1, KxFrameTime::Rescale(sourceFrames, m_stepDenominator, m_stepNumerator, KxFrameTime::Rounding::Nearest));
}

qint64 KxOutputGrid::SourceFrame(qint64 frame) const
{
    return std::min(KxFrameTime::Rescale(frame, m_stepNumerator, m_stepDenominator, KxFrameTime::Rounding::Down),
                    m_sourceFrames - 1);
}

KxFrameRange KxOutputGrid::FramesOf(const KxFrameRange& source) const
{
    // The first frame of the output that shows this frame of the source, or a later one.
    const auto begin = [this](qint64 frame) {
        const qint64 first = KxFrameTime::Rescale(frame, m_stepDenominator, m_stepNumerator, KxFrameTime::Rounding::Up);
        return frame >= m_sourceFrames ? m_frames : std::min(first, m_frames);
    };
    return {begin(source.first), begin(source.end)};
}
