#include <KxSubject/Signals/KxSoundMeter.h>

#include <opencv2/core.hpp>

#include <algorithm>
#include <cmath>

namespace
{

constexpr int WindowSamples = 512;
constexpr int StepSamples = KxSoundMeter::SamplesPerSecond / 100;
constexpr int LevelSamples = KxSoundMeter::SamplesPerSecond / KxSoundSpan::LevelsPerSecond;
/// Where the voice has most of its power and music's bass has little.
constexpr double LowestHz = 200.0;
constexpr double HighestHz = 3500.0;
constexpr double Silence = 1e-7;
constexpr double LevelsPerDecibel = 100.0;
constexpr double MarginSeconds = 5.0; ///< of sound kept before and after the mouths: what is quiet shows in it
constexpr double Pi = 3.1415926535897932384626433832795;

int BinOf(double hz)
{
    return static_cast<int>(std::lround(hz * WindowSamples / KxSoundMeter::SamplesPerSecond));
}

} // namespace

std::vector<std::pair<std::int64_t, std::int64_t>> KxSoundMeter::SpansOf(const KxSubjectRecord& record)
{
    std::vector<std::pair<std::int64_t, std::int64_t>> spans;
    const auto levelAt = [](double seconds) {
        return static_cast<std::int64_t>(std::max(0.0, std::floor(seconds * KxSoundSpan::LevelsPerSecond)));
    };
    for (const KxMouthTrack& mouth : record.mouths) {
        spans.emplace_back(levelAt(record.SecondsAt(mouth.looks.front().frame) - MarginSeconds),
                           levelAt(record.SecondsAt(mouth.looks.back().frame) + MarginSeconds));
    }
    std::sort(spans.begin(), spans.end());
    std::vector<std::pair<std::int64_t, std::int64_t>> apart;
    for (const auto& [first, last] : spans) {
        if (!apart.empty() && first <= apart.back().second + 1) {
            apart.back().second = std::max(apart.back().second, last);
        } else {
            apart.emplace_back(first, last);
        }
    }
    return apart;
}

KxSoundMeter::KxSoundMeter(std::int64_t first)
    : m_shape(WindowSamples)
{
    m_span.first = first;
    for (int i = 0; i < WindowSamples; ++i) {
        m_shape[static_cast<std::size_t>(i)] =
            static_cast<float>(0.5 - 0.5 * std::cos(2.0 * Pi * i / WindowSamples)) / WindowSamples;
    }
    // The first window's middle is at the first sample.
    m_samples.assign(WindowSamples / 2, 0.0F);
}

void KxSoundMeter::Add(const float* samples, std::size_t count)
{
    m_samples.insert(m_samples.end(), samples, samples + count);
    std::size_t from = 0;
    for (; from + WindowSamples <= m_samples.size(); from += StepSamples) {
        cv::Mat spectrum;
        const cv::Mat window(1, WindowSamples, CV_32FC1, m_samples.data() + from);
        cv::dft(window.mul(cv::Mat(1, WindowSamples, CV_32FC1, m_shape.data())), spectrum);
        double power = Silence;
        // Packed: the real part of bin k is at 2 k - 1, its imaginary part follows.
        for (int bin = BinOf(LowestHz); bin <= BinOf(HighestHz); ++bin) {
            const auto real = static_cast<double>(spectrum.at<float>(2 * bin - 1));
            const auto imaginary = static_cast<double>(spectrum.at<float>(2 * bin));
            power += real * real + imaginary * imaginary;
        }
        AddWindow(std::isfinite(power) ? 10.0 * std::log10(power) : 10.0 * std::log10(Silence));
    }
    m_samples.erase(m_samples.begin(), m_samples.begin() + static_cast<std::ptrdiff_t>(from));
}

void KxSoundMeter::AddWindow(double decibel)
{
    m_sum += decibel;
    ++m_inLevel;
    ++m_windows;
    if (m_windows * StepSamples % LevelSamples == 0) {
        EndLevel();
    }
}

void KxSoundMeter::EndLevel()
{
    constexpr double most = 30000.0;
    m_span.levels.push_back(
        static_cast<std::int16_t>(std::lround(std::clamp(m_sum / m_inLevel * LevelsPerDecibel, -most, most))));
    m_sum = 0.0;
    m_inLevel = 0;
}

KxSoundSpan KxSoundMeter::Finish()
{
    if (m_inLevel > 0) {
        EndLevel();
    }
    return std::move(m_span);
}
