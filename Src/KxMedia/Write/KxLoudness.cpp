#include <KxMedia/Write/KxLoudness.h>

#include <KxMedia/Write/KxSoundChain.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double AbsoluteGateLufs = -70.0;
constexpr double RelativeGateLu = 10.0;
/// Room for what a lossy codec and a player's resampling add.
constexpr double HighestPeakDb = -1.5;
// The ranges of the filter's options.
constexpr double LeastRangeLu = 1.0;
constexpr double LargestRangeLu = 50.0;
constexpr double UsualRangeLu = 11.0;

std::optional<double> Metadata(const AVFrame& frame, const char* key)
{
    const AVDictionaryEntry* const entry = av_dict_get(frame.metadata, key, nullptr, 0);
    return entry != nullptr ? std::optional(QByteArray(entry->value).toDouble()) : std::nullopt;
}

double EnergyOf(double lufs)
{
    return std::pow(10.0, lufs / 10.0);
}

/// Passes on what the filters have ready.
template<typename Use>
KxError TakeEach(KxSoundChain& chain, const Use& use)
{
    for (;;) {
        const KxResult<KxAvFrame> frame = chain.Take();
        if (!frame) {
            return frame.Message();
        }
        if (*frame == nullptr) {
            return std::nullopt;
        }
        use(**frame);
    }
}

} // namespace

KxLoudnessMeter::KxLoudnessMeter(std::unique_ptr<KxSoundChain> chain)
    : m_chain(std::move(chain))
{
}

KxLoudnessMeter::~KxLoudnessMeter() = default;

KxResult<std::unique_ptr<KxLoudnessMeter>> KxLoudnessMeter::Make(const KxAudioReader::Format& format)
{
    using Made = KxResult<std::unique_ptr<KxLoudnessMeter>>;
    KxResult<KxSoundChain> chain = KxSoundChain::Make(QStringLiteral("ebur128=metadata=1:peak=true"), format);
    if (!chain) {
        return Made::Failure(chain.Message());
    }
    return std::unique_ptr<KxLoudnessMeter>(new KxLoudnessMeter(std::make_unique<KxSoundChain>(std::move(*chain))));
}

KxError KxLoudnessMeter::Add(const KxAudioBlock& block)
{
    const KxError error = m_chain->Add(block);
    return error ? error : TakeAll();
}

KxError KxLoudnessMeter::TakeAll()
{
    return TakeEach(*m_chain, [this](const AVFrame& frame) {
        const std::optional<double> momentary = Metadata(frame, "lavfi.r128.M");
        if (!momentary) {
            return;
        }
        if (*momentary > AbsoluteGateLufs) {
            m_energy += EnergyOf(*momentary);
            ++m_blocks;
        }
        m_last.integratedLufs = Metadata(frame, "lavfi.r128.I").value_or(AbsoluteGateLufs);
        m_last.rangeLu = Metadata(frame, "lavfi.r128.LRA").value_or(0.0);
        const double peak = Metadata(frame, "lavfi.r128.true_peak").value_or(1.0);
        m_last.truePeakDb = 20.0 * std::log10(std::max(peak, 1e-5));
    });
}

KxResult<std::optional<KxLoudness>> KxLoudnessMeter::Result()
{
    using Measured = KxResult<std::optional<KxLoudness>>;
    KxError error = m_chain->End();
    error = error ? error : TakeAll();
    if (error) {
        return Measured::Failure(*error);
    }
    if (m_blocks == 0 || m_last.integratedLufs <= AbsoluteGateLufs) {
        return Measured(std::nullopt);
    }
    m_last.thresholdLufs = 10.0 * std::log10(m_energy / static_cast<double>(m_blocks)) - RelativeGateLu;
    return Measured(m_last);
}

KxLoudnessFilter::KxLoudnessFilter(std::unique_ptr<KxSoundChain> chain, int channels)
    : m_chain(std::move(chain))
    , m_channels(channels)
{
}

KxLoudnessFilter::~KxLoudnessFilter() = default;

KxResult<std::unique_ptr<KxLoudnessFilter>> KxLoudnessFilter::Make(const KxLoudness& measured, double targetLufs,
                                                                   const KxAudioReader::Format& format)
{
    using Made = KxResult<std::unique_ptr<KxLoudnessFilter>>;
    const auto number = [](double value) { return QString::number(value, 'f', 2); };
    // A range as large as the sound's own lets the filter treat all of it alike.
    const double range = std::clamp(std::max(UsualRangeLu, measured.rangeLu), LeastRangeLu, LargestRangeLu);
    // 0 would mean that the range was not measured.
    constexpr double leastMeasured = 0.01;
    const QString steps =
        QStringLiteral("loudnorm=linear=true:I=%1:LRA=%2:TP=%3:measured_I=%4:measured_LRA=%5:measured_TP=%6:"
                       "measured_thresh=%7")
            .arg(number(targetLufs), number(range), number(HighestPeakDb), number(measured.integratedLufs),
                 number(std::max(leastMeasured, measured.rangeLu)), number(measured.truePeakDb),
                 number(measured.thresholdLufs));
    KxResult<KxSoundChain> chain = KxSoundChain::Make(steps, format);
    if (!chain) {
        return Made::Failure(chain.Message());
    }
    return std::unique_ptr<KxLoudnessFilter>(
        new KxLoudnessFilter(std::make_unique<KxSoundChain>(std::move(*chain)), format.channels));
}

KxError KxLoudnessFilter::Add(const KxAudioBlock& block)
{
    return m_chain->Add(block);
}

KxError KxLoudnessFilter::End()
{
    return m_chain->End();
}

KxError KxLoudnessFilter::TakeInto(std::vector<float>& samples)
{
    return TakeEach(*m_chain, [&](const AVFrame& frame) {
        const auto* const first = reinterpret_cast<const float*>(frame.data[0]);
        samples.insert(samples.end(), first, first + std::ptrdiff_t{1} * frame.nb_samples * m_channels);
    });
}
