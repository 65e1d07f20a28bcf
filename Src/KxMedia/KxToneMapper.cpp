#include "KxToneMapper.h"

#include "KxAvError.h"
#include "KxAvLog.h"

extern "C" {
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
#include <libavutil/pixdesc.h>
}

namespace
{

// 100 candela a square metre is the white that BT.709 is mastered for. Linear light and another set of primaries need
// floats; the curve keeps middle tones and rolls the highlights off.
const char* const MappingSteps = "zscale=t=linear:npl=100,format=gbrpf32le,zscale=p=bt709,tonemap=hable:desat=0,"
                                 "zscale=t=bt709:m=bt709:r=tv:c=left:dither=ordered,format=yuv420p";

QString Sentence(int error)
{
    return QStringLiteral("Cannot convert a picture of high dynamic range: %1.").arg(KxAvErrorText(error));
}

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

void FillGaps(AVFrame& picture)
{
    if (picture.colorspace == AVCOL_SPC_UNSPECIFIED || picture.colorspace == AVCOL_SPC_RGB) {
        picture.colorspace = AVCOL_SPC_BT2020_NCL;
    }
    if (picture.color_primaries == AVCOL_PRI_UNSPECIFIED) {
        picture.color_primaries = AVCOL_PRI_BT2020;
    }
    if (picture.color_range == AVCOL_RANGE_UNSPECIFIED) {
        picture.color_range = AVCOL_RANGE_MPEG;
    }
}

} // namespace

KxError KxToneMapper::Prepare(const AVFrame& picture)
{
    const QSize size(picture.width, picture.height);
    if (m_graph != nullptr && size == m_size && picture.format == m_format) {
        return std::nullopt;
    }
    m_size = size;
    m_format = picture.format;
    m_graph.reset();
    KxRouteAvLog();
    KxAvGraph graph(avfilter_graph_alloc());
    if (graph == nullptr) {
        return Sentence(AVERROR(ENOMEM));
    }
    const QByteArray arguments = QStringLiteral("video_size=%1x%2:pix_fmt=%3:time_base=1/1:pixel_aspect=1/1")
                                     .arg(size.width())
                                     .arg(size.height())
                                     .arg(m_format)
                                     .toLatin1();
    int error = avfilter_graph_create_filter(&m_source, avfilter_get_by_name("buffer"), "in", arguments.constData(),
                                             nullptr, graph.get());
    if (error >= 0) {
        error = avfilter_graph_create_filter(&m_sink, avfilter_get_by_name("buffersink"), "out", nullptr, nullptr,
                                             graph.get());
    }
    if (error < 0) {
        return Sentence(error);
    }
    // Seen from the chain: its input is the source's output.
    AVFilterInOut* outputs = MakeEnd("in", m_source).release();
    AVFilterInOut* inputs = MakeEnd("out", m_sink).release();
    error = avfilter_graph_parse_ptr(graph.get(), MappingSteps, &inputs, &outputs, nullptr);
    const FilterEnds leftInputs(inputs);
    const FilterEnds leftOutputs(outputs);
    if (error >= 0) {
        error = avfilter_graph_config(graph.get(), nullptr);
    }
    if (error < 0) {
        return Sentence(error);
    }
    m_graph = std::move(graph);
    return std::nullopt;
}

KxResult<KxAvFrame> KxToneMapper::Map(const AVFrame& picture)
{
    using Result = KxResult<KxAvFrame>;
    if (KxError error = Prepare(picture)) {
        return Result::Failure(*error);
    }
    KxAvFrame input(av_frame_clone(&picture));
    KxAvFrame output(av_frame_alloc());
    if (input == nullptr || output == nullptr) {
        return Result::Failure(Sentence(AVERROR(ENOMEM)));
    }
    FillGaps(*input);
    int error = av_buffersrc_add_frame(m_source, input.get());
    if (error >= 0) {
        error = av_buffersink_get_frame(m_sink, output.get());
    }
    if (error < 0) {
        // A graph that failed once is not to be trusted with the next picture.
        m_graph.reset();
        return Result::Failure(Sentence(error));
    }
    output->color_primaries = AVCOL_PRI_BT709;
    output->color_trc = AVCOL_TRC_BT709;
    output->colorspace = AVCOL_SPC_BT709;
    output->color_range = AVCOL_RANGE_MPEG;
    output->chroma_location = AVCHROMA_LOC_LEFT;
    return Result(std::move(output));
}
