#include "KxAvError.h"

extern "C" {
#include <libavutil/error.h>
}

#include <array>
#include <cerrno>

QString KxAvErrorText(int error)
{
    switch (error) {
    case AVERROR(ENOSPC):
#ifdef EDQUOT
    case AVERROR(EDQUOT):
#endif
        return QStringLiteral("the disk is full");
    case AVERROR(EFBIG):
        return QStringLiteral("the file would become too large for its disk");
    case AVERROR(ENOENT):
        return QStringLiteral("there is no such file");
    case AVERROR(EACCES):
    case AVERROR(EPERM):
        return QStringLiteral("permission is denied");
    case AVERROR(EROFS):
        return QStringLiteral("the disk can only be read");
    case AVERROR(EIO):
        return QStringLiteral("the disk reports an error");
    case AVERROR(ENOMEM):
        return QStringLiteral("memory ran out");
    case AVERROR(EMFILE):
    case AVERROR(ENFILE):
        return QStringLiteral("too many files are open");
    case AVERROR_EXIT:
        return QStringLiteral("it was cancelled");
    case AVERROR_EOF:
        return QStringLiteral("it ends too early");
    case AVERROR_INVALIDDATA:
        return QStringLiteral("it is damaged");
    case AVERROR_DECODER_NOT_FOUND:
    case AVERROR_DEMUXER_NOT_FOUND:
    case AVERROR_PATCHWELCOME:
        return QStringLiteral("its format is not supported");
    default:
        break;
    }
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(error, text.data(), text.size());
    return QString::fromLocal8Bit(text.data());
}
