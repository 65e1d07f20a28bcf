#include <Apps/AutoReframe/Library/MediaText.h>

#include <KxCore/KxLanguage.h>

#include <QCoreApplication>

#include <cmath>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(MediaText)
};

constexpr qint64 Minute = 60;
constexpr qint64 Hour = 60 * Minute;

} // namespace

QString MediaText::Resolution(const QSize& resolution)
{
    return QStringLiteral("%1 × %2").arg(QString::number(resolution.width()), QString::number(resolution.height()));
}

QString MediaText::Aspect(const QSize& aspect)
{
    return QStringLiteral("%1:%2").arg(QString::number(aspect.width()), QString::number(aspect.height()));
}

QString MediaText::FrameRate(const KxRational& rate)
{
    if (!rate.IsPositive()) {
        return {};
    }
    const double hundredths = std::round(rate.ToDouble() * 100.0) / 100.0;
    return Texts::tr("%1 fps").arg(KxLanguage::Locale().toString(hundredths, 'g', 6));
}

QString MediaText::Details(const QSize& resolution, const KxRational& rate)
{
    const QString fps = FrameRate(rate);
    return fps.isEmpty() ? Resolution(resolution) : QStringLiteral("%1 · %2").arg(Resolution(resolution), fps);
}

QString MediaText::FileSize(qint64 bytes)
{
    constexpr double megabyte = 1024.0 * 1024.0;
    const double megabytes = static_cast<double>(bytes) / megabyte;
    if (megabytes >= 10.0) {
        return Texts::tr("%1 MB").arg(std::llround(megabytes));
    }
    if (megabytes >= 0.1) {
        return Texts::tr("%1 MB").arg(KxLanguage::Locale().toString(megabytes, 'f', 1));
    }
    return Texts::tr("%1 KB").arg(std::max<qint64>(1, bytes / 1024));
}

QString MediaText::TimeLeft(qint64 seconds)
{
    if (seconds < Minute) {
        return Texts::tr("%1 s left").arg(seconds);
    }
    if (seconds < Hour) {
        return Texts::tr("%1 min %2 s left").arg(QString::number(seconds / Minute), QString::number(seconds % Minute));
    }
    return Texts::tr("%1 h %2 min left").arg(QString::number(seconds / Hour), QString::number(seconds % Hour / Minute));
}

QString MediaText::MissingEdits(int count)
{
    return count > 0 ? Texts::tr("%n of your edits are not in this cut of the video", nullptr, count) : QString();
}
