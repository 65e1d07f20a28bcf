#pragma once

#include <KxMedia/Container/KxAvHandles.h>
#include <KxMedia/Read/KxAudioReader.h>

/// Converts decoded sound of one format to interleaved floats of another rate and channel count. The first output
/// sample has the time of the first input sample; the last few samples stay inside until the next Convert() or Drain().
/// One thread at a time.
class KxSampleConverter
{
public:
    /// Null if the format of `frame` cannot be converted.
    static std::unique_ptr<KxSampleConverter> Make(const AVFrame& frame, const KxAudioReader::Format& format);

    bool Takes(const AVFrame& frame) const;
    /// False if memory runs out.
    bool Convert(const AVFrame& frame, std::vector<float>& samples);
    bool Drain(std::vector<float>& samples);

private:
    KxSampleConverter(const AVFrame& frame, int channels, KxAvResampler resampler);
    bool Append(const uint8_t** data, int inputSamples, std::vector<float>& samples);

    int m_rateHz;
    int m_inputChannels;
    int m_sampleFormat;
    int m_channels;
    KxAvResampler m_resampler;
};
