#include <KxMedia/Container/KxAvError.h>

#include <KxCore/KxSystemError.h>

extern "C" {
#include <libavutil/error.h>
}

#include <array>

QString KxAvErrorText(int error)
{
    const QString text = KxSystemErrorText(std::error_code(AVUNERROR(error), std::generic_category()));
    if (!text.isEmpty()) {
        return text;
    }
    switch (error) {
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
    std::array<char, AV_ERROR_MAX_STRING_SIZE> message{};
    av_strerror(error, message.data(), message.size());
    return QString::fromLocal8Bit(message.data());
}
