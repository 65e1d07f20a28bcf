#pragma once

#include <KxMedia/Write/KxVideoEncoder.h>

/// What each of libavcodec's encoders needs to be told.
namespace KxEncoderOptions
{
/// Rate control, threads and options of the encoder that `settings` name, on a context that has its size and rate. 0,
/// or a negative libav* error.
int Set(AVCodecContext& context, const KxVideoEncoder::Settings& settings, const AVFrame& first);
} // namespace KxEncoderOptions
