#pragma once

#include <KxCore/KxResult.h>

#include <QDate>
#include <QSet>
#include <QSize>
#include <QString>

#include <functional>

/// Names of files from a pattern with placeholders: {name}, {ratio}, {speed}, {date}, {number}. Pure.
namespace OutputNames
{
/// What the placeholders of one file stand for.
struct Facts {
    QString name; ///< of the video, without its suffix
    QSize aspect;
    int speed = 16; ///< as in ReframePlan
    QDate date;
    int number = 1; ///< of the video
};

/// The placeholders as a person types them, in the order in which they are explained.
QStringList Placeholders();

/// A message for the person if no file can be named by the pattern.
KxError Problem(const QString& pattern);

/// The name without a suffix; characters that a file name may not contain on one of our platforms are replaced, and a
/// long name is shortened.
QString Expand(const QString& pattern, const Facts& facts);

/// Gives each file a path of its own: "walk.mp4", "walk (2).mp4".
class Unique
{
public:
    /// Whether there is such a file already, or one is going to be written.
    using IsTaken = std::function<bool(const QString& path)>;

    explicit Unique(IsTaken isTaken);
    QString Path(const QString& folder, const QString& name);

private:
    const IsTaken m_isTaken;
    /// In lower case: some file systems ignore the case.
    QSet<QString> m_given;
};
} // namespace OutputNames
