#include <KxMedia/Read/KxSampleConverter.h>

extern "C" {
#include <libavutil/channel_layout.h>
}

std::unique_ptr<KxSampleConverter> KxSampleConverter::Make(const AVFrame& frame, const KxAudioReader::Format& format)
{
    AVChannelLayout from{};
    AVChannelLayout to{};
    if (frame.ch_layout.order == AV_CHANNEL_ORDER_UNSPEC) {
        av_channel_layout_default(&from, frame.ch_layout.nb_channels);
    } else if (av_channel_layout_copy(&from, &frame.ch_layout) < 0) {
        return nullptr;
    }
    av_channel_layout_default(&to, format.channels);
    SwrContext* context = nullptr;
    const int error = swr_alloc_set_opts2(&context, &to, AV_SAMPLE_FMT_FLT, format.sampleRateHz, &from,
                                          static_cast<AVSampleFormat>(frame.format), frame.sample_rate, 0, nullptr);
    KxAvResampler resampler(context);
    av_channel_layout_uninit(&from);
    av_channel_layout_uninit(&to);
    if (error < 0 || swr_init(resampler.get()) < 0) {
        return nullptr;
    }
    return std::unique_ptr<KxSampleConverter>(new KxSampleConverter(frame, format.channels, std::move(resampler)));
}

KxSampleConverter::KxSampleConverter(const AVFrame& frame, int channels, KxAvResampler resampler)
    : m_rateHz(frame.sample_rate)
    , m_inputChannels(frame.ch_layout.nb_channels)
    , m_sampleFormat(frame.format)
    , m_channels(channels)
    , m_resampler(std::move(resampler))
{
}

bool KxSampleConverter::Takes(const AVFrame& frame) const
{
    return frame.sample_rate == m_rateHz && frame.ch_layout.nb_channels == m_inputChannels &&
           frame.format == m_sampleFormat;
}

bool KxSampleConverter::Convert(const AVFrame& frame, std::vector<float>& samples)
{
    return Append(const_cast<const uint8_t**>(frame.extended_data), frame.nb_samples, samples);
}

bool KxSampleConverter::Drain(std::vector<float>& samples)
{
    return Append(nullptr, 0, samples);
}

bool KxSampleConverter::Append(const uint8_t** data, int inputSamples, std::vector<float>& samples)
{
    const int room = swr_get_out_samples(m_resampler.get(), inputSamples);
    if (room < 0) {
        return false;
    }
    const size_t before = samples.size();
    const auto channels = static_cast<size_t>(m_channels);
    samples.resize(before + static_cast<size_t>(room) * channels);
    auto* target = reinterpret_cast<uint8_t*>(samples.data() + before);
    const int made = swr_convert(m_resampler.get(), &target, room, data, inputSamples);
    samples.resize(before + static_cast<size_t>(made < 0 ? 0 : made) * channels);
    return made >= 0;
}
