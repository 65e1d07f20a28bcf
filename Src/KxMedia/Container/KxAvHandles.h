#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavfilter/avfilter.h>
#include <libavformat/avformat.h>
#include <libavutil/frame.h>
#include <libswresample/swresample.h>
#include <libswscale/swscale.h>
}

#include <memory>

/// Owners of libav* objects. Each frees its object and what that object owns.
struct KxAvDelete {
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(SwsContext* context) const { sws_freeContext(context); }
    void operator()(SwrContext* context) const { swr_free(&context); }
    void operator()(AVFilterGraph* graph) const { avfilter_graph_free(&graph); }
    void operator()(AVBufferRef* buffer) const { av_buffer_unref(&buffer); }
};

struct KxAvInputDelete {
    void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
};

struct KxAvOutputDelete {
    void operator()(AVFormatContext* context) const
    {
        if (context->pb != nullptr && (context->oformat->flags & AVFMT_NOFILE) == 0) {
            avio_closep(&context->pb);
        }
        avformat_free_context(context);
    }
};

using KxAvInput = std::unique_ptr<AVFormatContext, KxAvInputDelete>;
using KxAvOutput = std::unique_ptr<AVFormatContext, KxAvOutputDelete>;
using KxAvCodec = std::unique_ptr<AVCodecContext, KxAvDelete>;
using KxAvFrame = std::unique_ptr<AVFrame, KxAvDelete>;
using KxAvPacket = std::unique_ptr<AVPacket, KxAvDelete>;
using KxAvScaler = std::unique_ptr<SwsContext, KxAvDelete>;
using KxAvResampler = std::unique_ptr<SwrContext, KxAvDelete>;
using KxAvGraph = std::unique_ptr<AVFilterGraph, KxAvDelete>;
using KxAvBuffer = std::unique_ptr<AVBufferRef, KxAvDelete>;

/// Microseconds, as libav* counts time outside of streams.
constexpr AVRational KxMicroseconds{1, AV_TIME_BASE};
