#include <KxMedia/Container/KxAvVersion.h>

extern "C" {
#include <libavutil/avutil.h>
}

QString KxAvVersion()
{
    return QString::fromUtf8(av_version_info());
}
