#include <KxMedia/Container/KxAvLog.h>

#include <KxCore/KxLog.h>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/log.h>
}

#include <array>
#include <cstdarg>
#include <mutex>

namespace
{

constexpr int MutedOffset = AV_LOG_DEBUG - AV_LOG_ERROR;

// The message's level without the offset of its context.
int OwnLevel(const void* source, int level)
{
    const AVClass* const description = source != nullptr ? *static_cast<const AVClass* const*>(source) : nullptr;
    if (description == nullptr || description->log_level_offset_offset == 0 || level < AV_LOG_FATAL) {
        return level;
    }
    return level -
           *reinterpret_cast<const int*>(static_cast<const char*>(source) + description->log_level_offset_offset);
}

void WriteToLog(void* source, int level, const char* format, va_list arguments)
{
    if (OwnLevel(source, level) > AV_LOG_ERROR) {
        return;
    }
    std::array<char, 512> line{};
    int isLineStart = 1;
    av_log_format_line2(source, level, format, arguments, line.data(), static_cast<int>(line.size()), &isLineStart);
    KX_LOG_DEBUG(QString::fromUtf8(line.data()).trimmed());
}

} // namespace

void KxRouteAvLog()
{
    static std::once_flag once;
    std::call_once(once, [] { av_log_set_callback(&WriteToLog); });
}

void KxMuteAvCodec(AVCodecContext& codec)
{
    codec.log_level_offset = MutedOffset;
}
