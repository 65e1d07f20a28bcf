#include <KxMedia/Picture/KxFilterChain.h>

#include <KxMedia/Container/KxAvError.h>

extern "C" {
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
}

namespace
{

constexpr AVRational Unit{1, 1};

struct FilterEndsDelete {
    void operator()(AVFilterInOut* ends) const { avfilter_inout_free(&ends); }
};
using FilterEnds = std::unique_ptr<AVFilterInOut, FilterEndsDelete>;

FilterEnds MakeEnd(const char* name, AVFilterContext* filter)
{
    FilterEnds end(avfilter_inout_alloc());
    if (end != nullptr) {
        end->name = av_strdup(name);
        end->filter_ctx = filter;
    }
    return end;
}

int Connect(AVFilterGraph* graph, const char* steps, AVFilterContext* source, AVFilterContext* sink)
{
    // The names are those of the chain: its input is the output of the source filter.
    AVFilterInOut* outputs = MakeEnd("in", source).release();
    AVFilterInOut* inputs = MakeEnd("out", sink).release();
    const int error = avfilter_graph_parse_ptr(graph, steps, &inputs, &outputs, nullptr);
    const FilterEnds leftInputs(inputs);
    const FilterEnds leftOutputs(outputs);
    return error >= 0 ? avfilter_graph_config(graph, nullptr) : error;
}

KxError ErrorOf(int error)
{
    return error < 0 ? KxError(KxAvErrorText(error)) : std::nullopt;
}

} // namespace

KxResult<KxFilterChain> KxFilterChain::Make(const char* steps, const AVFrame& picture)
{
    using Result = KxResult<KxFilterChain>;
    KxFilterChain chain;
    chain.m_size = QSize(picture.width, picture.height);
    chain.m_format = picture.format;
    chain.m_graph.reset(avfilter_graph_alloc());
    if (chain.m_graph == nullptr) {
        return Result::Failure(KxAvErrorText(AVERROR(ENOMEM)));
    }
    AVFilterGraph* const graph = chain.m_graph.get();
    const QByteArray arguments =
        QStringLiteral("video_size=%1x%2:pix_fmt=%3:time_base=1/1:pixel_aspect=1/1")
            .arg(QString::number(picture.width), QString::number(picture.height), QString::number(picture.format))
            .toLatin1();
    int error = avfilter_graph_create_filter(&chain.m_source, avfilter_get_by_name("buffer"), "in",
                                             arguments.constData(), nullptr, graph);
    if (error >= 0) {
        error = avfilter_graph_create_filter(&chain.m_sink, avfilter_get_by_name("buffersink"), "out", nullptr, nullptr,
                                             graph);
    }
    if (error >= 0) {
        error = Connect(graph, steps, chain.m_source, chain.m_sink);
    }
    return error >= 0 ? Result(std::move(chain)) : Result::Failure(KxAvErrorText(error));
}

bool KxFilterChain::Fits(const AVFrame& picture) const
{
    return m_size == QSize(picture.width, picture.height) && m_format == picture.format;
}

KxError KxFilterChain::Add(KxAvFrame picture)
{
    return ErrorOf(av_buffersrc_add_frame(m_source, picture.get()));
}

KxError KxFilterChain::End()
{
    return ErrorOf(av_buffersrc_add_frame(m_source, nullptr));
}

KxResult<KxAvFrame> KxFilterChain::Take()
{
    using Result = KxResult<KxAvFrame>;
    KxAvFrame picture(av_frame_alloc());
    if (picture == nullptr) {
        return Result::Failure(KxAvErrorText(AVERROR(ENOMEM)));
    }
    const int error = av_buffersink_get_frame(m_sink, picture.get());
    if (error == AVERROR(EAGAIN) || error == AVERROR_EOF) {
        return Result(nullptr);
    }
    if (error < 0) {
        return Result::Failure(KxAvErrorText(error));
    }
    if (picture->pts != AV_NOPTS_VALUE) {
        picture->pts = av_rescale_q(picture->pts, av_buffersink_get_time_base(m_sink), Unit);
    }
    return Result(std::move(picture));
}
