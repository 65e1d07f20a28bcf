#pragma once

#include <KxMedia/Container/KxAvHandles.h>
#include <KxMedia/Read/KxAudioReader.h>

/// Turns decoded sound of one format into interleaved floats of another rate and channel count. What comes out begins
/// with the time of what went in; the last few samples stay inside until more comes or Drain(). One thread at a time.
class KxSampleConverter
{
public:
    /// Null when the format of `frame` cannot be converted.
    static std::unique_ptr<KxSampleConverter> Make(const AVFrame& frame, const KxAudioReader::Format& format);

    bool Takes(const AVFrame& frame) const;
    /// False when memory runs out.
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
