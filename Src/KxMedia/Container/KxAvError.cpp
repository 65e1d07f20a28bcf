#include <KxMedia/Container/KxAvError.h>

#include <KxCore/KxSystemError.h>

extern "C" {
#include <libavutil/error.h>
}

#include <QCoreApplication>

#include <array>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxAvError)
};

} // namespace

QString KxAvErrorText(int error)
{
    const QString text = KxSystemErrorText(std::error_code(AVUNERROR(error), std::generic_category()));
    if (!text.isEmpty()) {
        return text;
    }
    switch (error) {
    case AVERROR_EXIT:
        return Texts::tr("it was cancelled");
    case AVERROR_EOF:
        return Texts::tr("it ends too early");
    case AVERROR_INVALIDDATA:
        return Texts::tr("it is damaged");
    case AVERROR_DECODER_NOT_FOUND:
    case AVERROR_DEMUXER_NOT_FOUND:
    case AVERROR_PATCHWELCOME:
        return Texts::tr("its format is not supported");
    default:
        break;
    }
    std::array<char, AV_ERROR_MAX_STRING_SIZE> message{};
    av_strerror(error, message.data(), message.size());
    return QString::fromLocal8Bit(message.data());
}
