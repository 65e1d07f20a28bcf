#include <Apps/Reframe/FollowOption.h>

#include <KxCore/KxLanguage.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FollowOption)
};

/// Whether a point, or a part of a length above 0, is within 0 to 1.
bool TouchesPicture(double from, double length)
{
    return from < 1.0 && (length > 0.0 ? from + length > 0.0 : from >= 0.0);
}

} // namespace

std::optional<FollowOption> FollowOption::Parse(const QString& text)
{
    FollowOption option;
    option.text = text;
    const QStringList halves = text.split(QLatin1Char('@'));
    const QStringList numbers = halves.value(1).split(QLatin1Char(','));
    if (halves.size() != 2 || (numbers.size() != 2 && numbers.size() != 4)) {
        return std::nullopt;
    }
    QString time = halves.at(0);
    option.isFrame = time.endsWith(QLatin1Char('f'));
    if (option.isFrame) {
        time.chop(1);
    }
    bool isValid = false;
    option.time = option.isFrame ? static_cast<double>(time.toLongLong(&isValid)) : time.toDouble(&isValid);
    QList<double> values;
    for (const QString& number : numbers) {
        bool isNumber = false;
        values += number.toDouble(&isNumber);
        isValid = isValid && isNumber && std::isfinite(values.last());
    }
    if (!isValid || !std::isfinite(option.time) || option.time < 0.0) {
        return std::nullopt;
    }
    option.place = QRectF(values[0], values[1], values.value(2), values.value(3));
    if (values.size() == 4 && !(option.place.width() > 0.0 && option.place.height() > 0.0)) {
        return std::nullopt;
    }
    option.isPixels = std::any_of(values.begin(), values.end(), [](double value) { return value > 1.0; });
    return option;
}

KxResult<KxSubjectSeed> FollowOption::SeedIn(const Video& video) const
{
    using Result = KxResult<KxSubjectSeed>;
    const double seconds = isFrame ? time / video.frameRate : time;
    if (seconds * video.frameRate > static_cast<double>(video.frameCount) - 0.5) {
        return Result::Failure(
            Texts::tr("the video ends after %1 s")
                .arg(KxLanguage::Locale().toString(static_cast<double>(video.frameCount) / video.frameRate, 'f', 2)));
    }
    const double width = isPixels ? video.sizePx.width() : 1.0;
    const double height = isPixels ? video.sizePx.height() : 1.0;
    const KxSubjectBox box{place.x() / width, place.y() / height, place.width() / width, place.height() / height};
    if (!TouchesPicture(box.x, box.width) || !TouchesPicture(box.y, box.height)) {
        return Result::Failure(Texts::tr("it lies outside the picture of %1x%2 pixels")
                                   .arg(QString::number(video.sizePx.width()), QString::number(video.sizePx.height())));
    }
    const bool isPoint = place.isEmpty();
    return KxSubjectSeed{seconds, box, isPoint ? KxSubjectSeed::Extent::Guessed : KxSubjectSeed::Extent::Drawn};
}
