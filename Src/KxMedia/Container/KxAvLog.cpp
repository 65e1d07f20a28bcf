#include <KxMedia/Container/KxAvLog.h>

#include <KxCore/KxLog.h>

extern "C" {
#include <libavutil/log.h>
}

#include <array>
#include <cstdarg>
#include <mutex>

namespace
{

void WriteToLog(void* source, int level, const char* format, va_list arguments)
{
    if (level > AV_LOG_ERROR) {
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
