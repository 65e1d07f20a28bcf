#pragma once

#include <QMetaType>

/// A ratio of two whole numbers, such as a frame rate in frames per second (30000/1001). A denominator that is not
/// positive means that the value is unknown.
struct KxRational {
    int numerator = 0;
    int denominator = 1;

    bool IsPositive() const { return numerator > 0 && denominator > 0; }
    /// 0 when unknown.
    double ToDouble() const { return IsPositive() ? static_cast<double>(numerator) / denominator : 0.0; }
};

inline bool operator==(const KxRational& a, const KxRational& b)
{
    return static_cast<qint64>(a.numerator) * b.denominator == static_cast<qint64>(b.numerator) * a.denominator;
}
inline bool operator!=(const KxRational& a, const KxRational& b)
{
    return !(a == b);
}
