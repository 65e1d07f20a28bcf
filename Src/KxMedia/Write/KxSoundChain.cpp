#include <KxMedia/Write/KxSoundChain.h>

#include <KxMedia/Container/KxAvError.h>

extern "C" {
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
}

#include <algorithm>
#include <cmath>

namespace
{

KxError ErrorOf(int error)
{
    return error < 0 ? KxError(KxAvErrorText(error)) : std::nullopt;
}

} // namespace

KxResult<KxSoundChain> KxSoundChain::Make(const QString& steps, const KxAudioReader::Format& format)
{
    using Result = KxResult<KxSoundChain>;
    KxSoundChain chain;
    chain.m_format = format;
    chain.m_graph.reset(avfilter_graph_alloc());
    if (chain.m_graph == nullptr) {
        return Result::Failure(KxAvErrorText(AVERROR(ENOMEM)));
    }
    const QString whole =
        QStringLiteral("abuffer@in=sample_rate=%1:sample_fmt=flt:channel_layout=%2:time_base=1/%1,%3,aresample=%1,"
                       "aformat=sample_rates=%1:channel_layouts=%2:sample_fmts=flt,abuffersink@out")
            .arg(QString::number(format.sampleRateHz),
                 format.channels == 1 ? QStringLiteral("mono") : QStringLiteral("stereo"), steps);
    AVFilterInOut* inputs = nullptr;
    AVFilterInOut* outputs = nullptr;
    int error = avfilter_graph_parse2(chain.m_graph.get(), whole.toUtf8().constData(), &inputs, &outputs);
    avfilter_inout_free(&inputs);
    avfilter_inout_free(&outputs);
    if (error >= 0) {
        error = avfilter_graph_config(chain.m_graph.get(), nullptr);
    }
    chain.m_source = avfilter_graph_get_filter(chain.m_graph.get(), "abuffer@in");
    chain.m_sink = avfilter_graph_get_filter(chain.m_graph.get(), "abuffersink@out");
    if (error < 0 || chain.m_source == nullptr || chain.m_sink == nullptr) {
        return Result::Failure(KxAvErrorText(error < 0 ? error : AVERROR_FILTER_NOT_FOUND));
    }
    return Result(std::move(chain));
}

KxError KxSoundChain::Add(const KxAudioBlock& block)
{
    KxAvFrame frame(av_frame_alloc());
    if (frame == nullptr) {
        return ErrorOf(AVERROR(ENOMEM));
    }
    frame->format = AV_SAMPLE_FMT_FLT;
    frame->sample_rate = m_format.sampleRateHz;
    frame->nb_samples = static_cast<int>(block.samples.size()) / m_format.channels;
    av_channel_layout_default(&frame->ch_layout, m_format.channels);
    int error = av_frame_get_buffer(frame.get(), 0);
    if (error >= 0) {
        // Damaged sound can decode to NaN, which a filter would carry on to all that follows.
        std::transform(block.samples.begin(), block.samples.end(), reinterpret_cast<float*>(frame->data[0]),
                       [](float sample) { return std::isfinite(sample) ? sample : 0.0F; });
        frame->pts = m_added;
        m_added += frame->nb_samples;
        error = av_buffersrc_add_frame(m_source, frame.get());
    }
    return ErrorOf(error);
}

KxError KxSoundChain::End()
{
    return ErrorOf(av_buffersrc_add_frame(m_source, nullptr));
}

KxResult<KxAvFrame> KxSoundChain::Take()
{
    using Result = KxResult<KxAvFrame>;
    KxAvFrame frame(av_frame_alloc());
    const int error = frame != nullptr ? av_buffersink_get_frame(m_sink, frame.get()) : AVERROR(ENOMEM);
    if (error == AVERROR(EAGAIN) || error == AVERROR_EOF) {
        return Result(nullptr);
    }
    return error < 0 ? Result::Failure(KxAvErrorText(error)) : Result(std::move(frame));
}
