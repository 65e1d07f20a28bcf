#include <Apps/AutoReframe/Batch/OutputNames.h>

#include <KxCore/KxSpeedName.h>
#include <KxCore/KxWindowsNames.h>

#include <QCoreApplication>
#include <QRegularExpression>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(OutputNames)
};

QRegularExpression PlaceholderPattern()
{
    return QRegularExpression(QStringLiteral("\\{[^{}]*\\}"));
}

QString Replacement(const QString& placeholder, const OutputNames::Facts& facts)
{
    if (placeholder == QLatin1String("{name}")) {
        return facts.name;
    }
    if (placeholder == QLatin1String("{ratio}")) {
        return QStringLiteral("%1x%2").arg(QString::number(facts.aspect.width()),
                                           QString::number(facts.aspect.height()));
    }
    if (placeholder == QLatin1String("{speed}")) {
        return KxSpeedName::Of(facts.speed);
    }
    if (placeholder == QLatin1String("{date}")) {
        return facts.date.toString(Qt::ISODate);
    }
    return QString::number(facts.number);
}

/// Room for a number and the suffix in the 255 bytes of a name.
constexpr int MostBytes = 235;

bool IsTooLong(const QString& name)
{
    return name.toUtf8().size() > MostBytes;
}

void RemoveLastCharacter(QString& name)
{
    name.chop(name.size() > 1 && name.at(name.size() - 1).isLowSurrogate() ? 2 : 1);
}

QString Filled(const QString& pattern, const OutputNames::Facts& facts)
{
    QString name;
    int end = 0;
    auto found = PlaceholderPattern().globalMatch(pattern);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        name += pattern.mid(end, match.capturedStart() - end) + Replacement(match.captured(), facts);
        end = match.capturedEnd();
    }
    return name + pattern.mid(end);
}

/// A name that every platform accepts.
QString Permitted(QString name)
{
    static const QRegularExpression Forbidden(QStringLiteral("[\\x00-\\x1f*|<>\\\\?/:\"]"));
    static const QRegularExpression AtTheEnd(QStringLiteral("[. ]+$"));
    name.replace(Forbidden, QStringLiteral("-"));
    while (IsTooLong(name)) {
        RemoveLastCharacter(name);
    }
    name = name.remove(AtTheEnd).trimmed();
    const bool isDevice = KxWindowsNames::ReasonNotToName(QStringLiteral("C:\\%1.mp4").arg(name)).has_value();
    return isDevice ? QLatin1Char('_') + name : name;
}

} // namespace

QStringList OutputNames::Placeholders()
{
    return {QStringLiteral("{name}"), QStringLiteral("{ratio}"), QStringLiteral("{speed}"), QStringLiteral("{date}"),
            QStringLiteral("{number}")};
}

KxError OutputNames::Problem(const QString& pattern)
{
    auto found = PlaceholderPattern().globalMatch(pattern);
    while (found.hasNext()) {
        const QString placeholder = found.next().captured();
        if (!Placeholders().contains(placeholder)) {
            return Texts::tr("There is no %1. Use %2.").arg(placeholder, Placeholders().join(QStringLiteral(", ")));
        }
    }
    Facts facts;
    facts.name = QStringLiteral("a");
    facts.aspect = QSize(1, 1);
    return Expand(pattern, facts).isEmpty() ? KxError(Texts::tr("Enter a file name.")) : std::nullopt;
}

QString OutputNames::Expand(const QString& pattern, const Facts& facts)
{
    // The video's name is shortened before the rest, which tells its files apart.
    Facts shorter = facts;
    while (shorter.name.size() > 1 && IsTooLong(Filled(pattern, shorter))) {
        RemoveLastCharacter(shorter.name);
    }
    return Permitted(Filled(pattern, shorter));
}

OutputNames::Unique::Unique(IsTaken isTaken)
    : m_isTaken(std::move(isTaken))
{
}

QString OutputNames::Unique::Path(const QString& folder, const QString& name)
{
    QString path = QStringLiteral("%1/%2.mp4").arg(folder, name);
    for (int number = 2; m_given.contains(path.toLower()) || m_isTaken(path); ++number) {
        path = QStringLiteral("%1/%2 (%3).mp4").arg(folder, name, QString::number(number));
    }
    m_given.insert(path.toLower());
    return path;
}
