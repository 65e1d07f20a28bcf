#include <KxWidgets/Style/KxTheme.h>

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

struct NamedColour {
    Role role;
    QRgb colour;
};

constexpr std::array Colours{
    NamedColour{Role::Window, 0xFF1B1D21},      NamedColour{Role::Panel, 0xFF202227},
    NamedColour{Role::Surface, 0xFF25282D},     NamedColour{Role::Field, 0xFF1B1D21},
    NamedColour{Role::Picture, 0xFF131518},     NamedColour{Role::Line, 0xFF2C2F35},
    NamedColour{Role::SurfaceLine, 0xFF2F333A}, NamedColour{Role::FieldLine, 0xFF3A3E46},
    NamedColour{Role::Text, 0xFFE8EAED},        NamedColour{Role::Muted, 0xFFA9AEB6},
    NamedColour{Role::Off, 0xFF555B64},         NamedColour{Role::Strong, 0xFFFFFFFF},
    NamedColour{Role::Accent, 0xFF55E5C5},      NamedColour{Role::OnAccent, 0xFF0C211C},
    NamedColour{Role::Edited, 0xFFFF8B55},      NamedColour{Role::Error, 0xFFFF8B7A},
    NamedColour{Role::Icon, 0xFFD3D6DB},        NamedColour{Role::Button, 0xFF2F333A},
    NamedColour{Role::ButtonLine, 0xFF444952},  NamedColour{Role::PlayedTrack, 0xFF7A818C},
    NamedColour{Role::DropFrame, 0xFF7A818C},   NamedColour{Role::Doubt, 0xFFFFAE34},
};

QHash<QString, QString> Words()
{
    const auto colour = [](Role role) { return KxUIStyle::Colour(role).name(); };
    return {
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
        {QStringLiteral("error"), colour(Role::Error)},
        {QStringLiteral("button"), colour(Role::Button)},
        {QStringLiteral("buttonLine"), colour(Role::ButtonLine)},
        {QStringLiteral("doubt"), colour(Role::Doubt)},
        {QStringLiteral("accentHover"), QStringLiteral("#79eed4")},
        {QStringLiteral("accentPressed"), QStringLiteral("#3dcbac")},
        {QStringLiteral("accentOff"), QStringLiteral("#26403a")},
        {QStringLiteral("onAccentOff"), QStringLiteral("#5e857b")},
        {QStringLiteral("buttonHover"), QStringLiteral("#383d45")},
        {QStringLiteral("buttonPressed"), QStringLiteral("#292c32")},
        {QStringLiteral("buttonLineHover"), QStringLiteral("#59606b")},
        {QStringLiteral("hover"), QStringLiteral("#2e3238")},
        {QStringLiteral("pressed"), QStringLiteral("#1f2226")},
        {QStringLiteral("toolTip"), QStringLiteral("#30343b")},
        {QStringLiteral("figures"), KxUIStyle::TabularFont().family()},
    };
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

} // namespace

QColor KxUIStyle::Colour(Role role)
{
    const auto found =
        std::find_if(Colours.begin(), Colours.end(), [role](const NamedColour& entry) { return entry.role == role; });
    Q_ASSERT(found != Colours.end());
    return QColor::fromRgba(found->colour);
}

QFont KxUIStyle::TabularFont()
{
    QFont font = KxTheme::Font();
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
    QFile file(QStringLiteral(":/KxWidgets/Style/dark.qss"));
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
    font.setPixelSize(13);
    return font;
}
