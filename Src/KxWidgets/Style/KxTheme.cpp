#include <KxWidgets/Style/KxTheme.h>

#include <KxCore/KxLanguage.h>

#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace
{

using KxUIStyle::Role;
using KxUIStyle::Scheme;

struct NamedColour {
    Role role;
    QRgb dark;
    QRgb light;
};

constexpr std::array Colours{
    NamedColour{Role::Window, 0xFF1B1D21, 0xFFF3F4F6},      NamedColour{Role::Panel, 0xFF202227, 0xFFFAFBFC},
    NamedColour{Role::Surface, 0xFF25282D, 0xFFFFFFFF},     NamedColour{Role::Field, 0xFF1B1D21, 0xFFFFFFFF},
    NamedColour{Role::Picture, 0xFF131518, 0xFFE6E9ED},     NamedColour{Role::Line, 0xFF2C2F35, 0xFFDDE0E5},
    NamedColour{Role::SurfaceLine, 0xFF2F333A, 0xFFD7DBE1}, NamedColour{Role::FieldLine, 0xFF3A3E46, 0xFFB4BAC4},
    NamedColour{Role::Text, 0xFFE8EAED, 0xFF1B1D21},        NamedColour{Role::Muted, 0xFFA9AEB6, 0xFF565D68},
    NamedColour{Role::Off, 0xFF555B64, 0xFF9AA1AB},         NamedColour{Role::Strong, 0xFFFFFFFF, 0xFF000000},
    NamedColour{Role::Accent, 0xFF55E5C5, 0xFF0A7560},      NamedColour{Role::OnAccent, 0xFF0C211C, 0xFFFFFFFF},
    NamedColour{Role::Edited, 0xFFFF8B55, 0xFFB8481A},      NamedColour{Role::Error, 0xFFFF8B7A, 0xFFB3261E},
    NamedColour{Role::Icon, 0xFFD3D6DB, 0xFF3C424B},        NamedColour{Role::Button, 0xFF2F333A, 0xFFEDEFF2},
    NamedColour{Role::ButtonLine, 0xFF444952, 0xFFB9BFC9},  NamedColour{Role::PlayedTrack, 0xFF7A818C, 0xFF6F7682},
    NamedColour{Role::DropFrame, 0xFF7A818C, 0xFF7A818C},   NamedColour{Role::Doubt, 0xFFFFAE34, 0xFF8F5B00},
};

/// Colours of the style sheet alone.
struct SheetColour {
    const char* word;
    QRgb dark;
    QRgb light;
};

constexpr std::array SheetColours{
    SheetColour{"accentHover", 0xFF79EED4, 0xFF086853},     SheetColour{"accentPressed", 0xFF3DCBAC, 0xFF06503F},
    SheetColour{"accentOff", 0xFF26403A, 0xFFD3E4E0},       SheetColour{"onAccentOff", 0xFF5E857B, 0xFF7B9991},
    SheetColour{"buttonHover", 0xFF383D45, 0xFFE2E5EA},     SheetColour{"buttonPressed", 0xFF292C32, 0xFFD5D9DF},
    SheetColour{"buttonLineHover", 0xFF59606B, 0xFF949BA6}, SheetColour{"hover", 0xFF2E3238, 0xFFE8EAEE},
    SheetColour{"pressed", 0xFF1F2226, 0xFFDADDE3},         SheetColour{"toolTip", 0xFF30343B, 0xFFFFFFFF},
};

Scheme& Shown()
{
    static Scheme scheme = Scheme::Dark;
    return scheme;
}

template<typename Entry>
QColor ColourOf(const Entry& entry)
{
    return QColor::fromRgba(Shown() == Scheme::Light ? entry.light : entry.dark);
}

QHash<QString, QString> Words()
{
    const auto colour = [](Role role) { return KxUIStyle::Colour(role).name(); };
    QHash<QString, QString> words{
        {QStringLiteral("window"), colour(Role::Window)},
        {QStringLiteral("panel"), colour(Role::Panel)},
        {QStringLiteral("surface"), colour(Role::Surface)},
        {QStringLiteral("field"), colour(Role::Field)},
        {QStringLiteral("picture"), colour(Role::Picture)},
        {QStringLiteral("line"), colour(Role::Line)},
        {QStringLiteral("surfaceLine"), colour(Role::SurfaceLine)},
        {QStringLiteral("fieldLine"), colour(Role::FieldLine)},
        {QStringLiteral("text"), colour(Role::Text)},
        {QStringLiteral("muted"), colour(Role::Muted)},
        {QStringLiteral("off"), colour(Role::Off)},
        {QStringLiteral("strong"), colour(Role::Strong)},
        {QStringLiteral("accent"), colour(Role::Accent)},
        {QStringLiteral("onAccent"), colour(Role::OnAccent)},
        {QStringLiteral("edited"), colour(Role::Edited)},
        {QStringLiteral("error"), colour(Role::Error)},
        {QStringLiteral("button"), colour(Role::Button)},
        {QStringLiteral("buttonLine"), colour(Role::ButtonLine)},
        {QStringLiteral("doubt"), colour(Role::Doubt)},
        {QStringLiteral("figures"), KxUIStyle::TabularFont().family()},
        {QStringLiteral("drawings"),
         Shown() == Scheme::Light ? QStringLiteral(":/KxWidgets/Style/light") : QStringLiteral(":/KxWidgets/Style")},
    };
    for (const SheetColour& entry : SheetColours) {
        words.insert(QLatin1String(entry.word), ColourOf(entry).name());
    }
    return words;
}

bool HasTabularFigures(const QFont& font)
{
    const QFontMetricsF metrics(font);
    const qreal width = metrics.horizontalAdvance(QLatin1Char('0'));
    for (char digit = '1'; digit <= '9'; ++digit) {
        if (!qFuzzyCompare(metrics.horizontalAdvance(QLatin1Char(digit)), width)) {
            return false;
        }
    }
    return true;
}

QString FirstInstalled(std::initializer_list<QString> families)
{
    const QStringList installed = QFontDatabase().families();
    for (const QString& family : families) {
        if (installed.contains(family)) {
            return family;
        }
    }
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

/// Families with the characters of a language that the program's font lacks. Chinese and Japanese share characters that
/// they draw differently, so the system's choice would depend on the system's language.
QStringList FamiliesOf(const QString& language)
{
    if (language == QLatin1String("ja")) {
        return {QStringLiteral("Noto Sans CJK JP"), QStringLiteral("Yu Gothic UI"), QStringLiteral("Meiryo UI")};
    }
    if (language == QLatin1String("zh_CN")) {
        return {QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Microsoft YaHei UI"), QStringLiteral("SimHei")};
    }
    return {};
}

} // namespace

QColor KxUIStyle::Colour(Role role)
{
    const auto found =
        std::find_if(Colours.begin(), Colours.end(), [role](const NamedColour& entry) { return entry.role == role; });
    Q_ASSERT(found != Colours.end());
    return ColourOf(*found);
}

KxUIStyle::Scheme KxUIStyle::ShownScheme()
{
    return Shown();
}

void KxTheme::SetScheme(Scheme scheme)
{
    Shown() = scheme;
}

QFont KxUIStyle::TabularFont()
{
    QFont font = KxTheme::Font();
    font.setFamilies({});
    for (const QString& family : {font.family(), QStringLiteral("Noto Sans"), QStringLiteral("Segoe UI")}) {
        font.setFamily(family);
        if (QFontInfo(font).family() == family && HasTabularFigures(font)) {
            return font;
        }
    }
    return KxTheme::Font();
}

QString KxTheme::StyleSheet()
{
    QFile file(QStringLiteral(":/KxWidgets/Style/style.qss"));
    if (!file.open(QIODevice::ReadOnly)) {
        Q_ASSERT_X(false, "KxTheme", "the style sheet is not among the resources");
        return {};
    }
    const QString sheet = QString::fromUtf8(file.readAll());
    const QHash<QString, QString> words = Words();
    static const QRegularExpression word(QStringLiteral("@([A-Za-z]+)"));
    QString result;
    int from = 0;
    for (auto match = word.globalMatch(sheet); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        result += sheet.midRef(from, found.capturedStart() - from);
        result += words.value(found.captured(1), found.captured());
        from = found.capturedEnd();
    }
    return result + sheet.midRef(from);
}

QPalette KxTheme::Palette()
{
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, Role colour) {
        palette.setColor(role, KxUIStyle::Colour(colour));
    };
    set(QPalette::Window, Role::Window);
    set(QPalette::WindowText, Role::Text);
    set(QPalette::Base, Role::Field);
    set(QPalette::AlternateBase, Role::Surface);
    set(QPalette::Text, Role::Text);
    set(QPalette::Button, Role::Button);
    set(QPalette::ButtonText, Role::Text);
    set(QPalette::BrightText, Role::Strong);
    set(QPalette::ToolTipBase, Role::Surface);
    set(QPalette::ToolTipText, Role::Text);
    set(QPalette::Highlight, Role::Accent);
    set(QPalette::HighlightedText, Role::OnAccent);
    set(QPalette::Link, Role::Accent);
    set(QPalette::LinkVisited, Role::Accent);
    set(QPalette::PlaceholderText, Role::Muted);
    set(QPalette::Light, Role::ButtonLine);
    set(QPalette::Midlight, Role::FieldLine);
    set(QPalette::Mid, Role::SurfaceLine);
    set(QPalette::Dark, Role::Line);
    set(QPalette::Shadow, Role::Picture);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, KxUIStyle::Colour(Role::Off));
    }
    return palette;
}

QFont KxTheme::Font()
{
    static const QString family =
        FirstInstalled({QStringLiteral("Inter"), QStringLiteral("Noto Sans"), QStringLiteral("Segoe UI")});
    QFont font(family);
    const QStringList others = FamiliesOf(KxLanguage::Current());
    if (!others.isEmpty()) {
        font.setFamilies(QStringList(family) + others);
    }
    font.setPixelSize(13);
    return font;
}
