#include <KxCore/KxWindowsNames.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxWindowsNames)
};

constexpr int LongestName = 255;
constexpr int LongestPath = 32000;

bool IsForbidden(QChar character)
{
    return character < QLatin1Char(' ') || QStringLiteral("<>:\"|?*").contains(character);
}

/// "\\?\", a drive or the two slashes of a network share.
int PrefixLength(const QString& path)
{
    static const QRegularExpression prefix(QStringLiteral(R"(^([\\/]{2}\?[\\/])?([A-Za-z]:)?)"));
    return prefix.match(path).capturedLength();
}

KxError ReasonAgainst(const QString& name)
{
    static const QRegularExpression device(
        QStringLiteral("^(con|prn|aux|nul|conin\\$|conout\\$|(com|lpt)[1-9\u00b9\u00b2\u00b3]) *(\\..*)?$"),
        QRegularExpression::CaseInsensitiveOption);
    for (const QChar character : name) {
        if (IsForbidden(character)) {
            return character < QLatin1Char(' ') ? Texts::tr("its name contains a control character")
                                                : Texts::tr("a name cannot contain the character %1").arg(character);
        }
    }
    if (device.match(name).hasMatch()) {
        return Texts::tr("%1 is the name of a device").arg(name.section(QLatin1Char('.'), 0, 0).trimmed());
    }
    if (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' '))) {
        return Texts::tr("a name cannot end with a dot or a space");
    }
    return name.size() > LongestName ? KxError(Texts::tr("its name is too long")) : std::nullopt;
}

} // namespace

KxError KxWindowsNames::ReasonNotToName(const QString& path)
{
    static const QRegularExpression separators(QStringLiteral(R"([\\/])"));
    const QStringList names = path.mid(PrefixLength(path)).split(separators, Qt::SkipEmptyParts);
    for (const QString& name : names) {
        if (name == QLatin1String(".") || name == QLatin1String("..")) {
            continue;
        }
        if (KxError reason = ReasonAgainst(name)) {
            return reason;
        }
    }
    return path.size() > LongestPath ? KxError(Texts::tr("its name is too long")) : std::nullopt;
}
