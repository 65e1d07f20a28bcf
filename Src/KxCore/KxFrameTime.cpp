#include <KxCore/KxFrameTime.h>

#include <KxCore/KxTimeText.h>

#include <algorithm>
#include <limits>
#include <optional>

namespace
{

constexpr qint64 UsPerSecond = 1000000;

struct Wide {
    quint64 high = 0;
    quint64 low = 0;
};

Wide Product(quint64 a, quint64 b)
{
    constexpr quint64 lowHalf = 0xFFFFFFFF;
    const quint64 lowLow = (a & lowHalf) * (b & lowHalf);
    const quint64 lowHigh = (a & lowHalf) * (b >> 32);
    const quint64 highLow = (a >> 32) * (b & lowHalf);
    const quint64 middle = (lowLow >> 32) + (lowHigh & lowHalf) + (highLow & lowHalf);
    return {(a >> 32) * (b >> 32) + (lowHigh >> 32) + (highLow >> 32) + (middle >> 32),
            (middle << 32) | (lowLow & lowHalf)};
}

struct Quotient {
    quint64 value = 0;
    quint64 remainder = 0;
};

// Nothing when the quotient has more than 64 bits. `divisor` has at most 63 bits.
std::optional<Quotient> Divided(const Wide& dividend, quint64 divisor)
{
    if (dividend.high == 0) {
        return Quotient{dividend.low / divisor, dividend.low % divisor};
    }
    if (dividend.high >= divisor) {
        return std::nullopt;
    }
    Quotient result{0, dividend.high};
    for (int bit = 63; bit >= 0; --bit) {
        result.remainder = (result.remainder << 1) | ((dividend.low >> bit) & 1);
        result.value <<= 1;
        if (result.remainder >= divisor) {
            result.remainder -= divisor;
            result.value |= 1;
        }
    }
    return result;
}

bool AddsOne(const Quotient& magnitude, quint64 divisor, KxFrameTime::Rounding rounding, bool isNegative)
{
    switch (rounding) {
    case KxFrameTime::Rounding::Down:
        return isNegative && magnitude.remainder > 0;
    case KxFrameTime::Rounding::Nearest:
        return magnitude.remainder >= divisor - magnitude.remainder;
    case KxFrameTime::Rounding::Up:
        return !isNegative && magnitude.remainder > 0;
    }
    return false;
}

} // namespace

qint64 KxFrameTime::Rescale(qint64 value, qint64 numerator, qint64 denominator, Rounding rounding)
{
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    Q_ASSERT(numerator >= 0 && denominator > 0);
    const bool isNegative = value < 0;
    const quint64 magnitude = isNegative ? 0 - static_cast<quint64>(value) : static_cast<quint64>(value);
    const auto divisor = static_cast<quint64>(denominator);
    const std::optional<Quotient> quotient = Divided(Product(magnitude, static_cast<quint64>(numerator)), divisor);
    if (!quotient || quotient->value >= static_cast<quint64>(largest)) {
        return isNegative ? -largest : largest;
    }
    const auto whole =
        static_cast<qint64>(quotient->value + (AddsOne(*quotient, divisor, rounding, isNegative) ? 1 : 0));
    return isNegative ? -whole : whole;
}

qint64 KxFrameTime::ToMicroseconds(qint64 frame, const KxRational& rate, Rounding rounding)
{
    return Rescale(frame, rate.denominator * UsPerSecond, rate.numerator, rounding);
}

qint64 KxFrameTime::FromMicroseconds(qint64 timeUs, const KxRational& rate, Rounding rounding)
{
    return Rescale(timeUs, rate.numerator, rate.denominator * UsPerSecond, rounding);
}

QString KxFrameTime::Text(qint64 frame, const KxRational& rate)
{
    const KxRational known = rate.IsPositive() ? rate : KxRational{1, 1};
    const qint64 milliseconds = Rescale(frame, qint64{1000} * known.denominator, known.numerator, Rounding::Nearest);
    return QStringLiteral("%1.%2").arg(KxTimeText::HoursMinutesSeconds(milliseconds / 1000),
                                       KxTimeText::Padded(milliseconds % 1000, 3));
}

QString KxFrameTime::LengthText(qint64 frames, const KxRational& rate)
{
    if (!rate.IsPositive()) {
        return {};
    }
    return KxTimeText::Length(std::max<qint64>(1, Rescale(frames, rate.denominator, rate.numerator, Rounding::Down)));
}
