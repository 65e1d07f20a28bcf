#include <KxWidgets/KxUIStyle.h>

#include <KxCore/KxLanguage.h>
#include <KxWidgets/Style/KxAccessible.h>
#include <KxWidgets/Style/KxFocusRing.h>
#include <KxWidgets/Style/KxGlyph.h>
#include <KxWidgets/Style/KxStyle.h>
#include <KxWidgets/Style/KxTheme.h>

#include <QApplication>
#include <QStyle>
#include <QToolTip>

namespace
{

bool IsApplied(const QApplication& application)
{
    return !application.styleSheet().isEmpty();
}

/// The style sheet contains the font, too.
void ApplyFont(QApplication& application)
{
    QApplication::setFont(KxTheme::Font());
    QToolTip::setFont(KxTheme::Font());
    application.setStyleSheet(KxTheme::StyleSheet());
}

} // namespace

void KxUIStyle::Apply(QApplication& application)
{
    QApplication::setStyle(new KxStyle);
    QApplication::setPalette(KxTheme::Palette());
    ApplyFont(application);
    KxAccessible::Install();
    KxFocusRing::Install(application);
}

void KxUIStyle::SetScheme(QApplication& application, Scheme scheme)
{
    if (scheme == ShownScheme()) {
        return;
    }
    KxTheme::SetScheme(scheme);
    if (IsApplied(application)) {
        QApplication::setPalette(KxTheme::Palette());
        application.setStyleSheet(KxTheme::StyleSheet());
    }
}

void KxUIStyle::InstallTranslation(QApplication& application, const QString& language)
{
    const QFont before = KxTheme::Font();
    KxLanguage::Install(language);
    if (IsApplied(application) && before != KxTheme::Font()) {
        ApplyFont(application);
    }
}

QIcon KxUIStyle::Icon(const QString& name)
{
    return KxGlyph::Icon(name);
}

void KxUIStyle::SetTextRole(QWidget& label, const QString& role)
{
    if (label.property("textRole").toString() != role) {
        label.setProperty("textRole", role);
        // The style sheet reads properties only while a widget is polished.
        label.style()->unpolish(&label);
        label.style()->polish(&label);
    }
}

void KxUIStyle::SetBGColorType(QWidget* widget, int type)
{
    widget->setProperty("bgColorType", type);
    widget->setAttribute(Qt::WA_StyledBackground);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}
