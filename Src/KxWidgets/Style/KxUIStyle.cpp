#include <KxWidgets/KxUIStyle.h>

#include <KxWidgets/Style/KxAccessible.h>
#include <KxWidgets/Style/KxFocusRing.h>
#include <KxWidgets/Style/KxGlyph.h>
#include <KxWidgets/Style/KxStyle.h>
#include <KxWidgets/Style/KxTheme.h>

#include <QApplication>
#include <QStyle>
#include <QToolTip>
#include <QTranslator>

void KxUIStyle::Apply(QApplication& application)
{
    QApplication::setStyle(new KxStyle);
    QApplication::setPalette(KxTheme::Palette());
    QApplication::setFont(KxTheme::Font());
    QToolTip::setFont(KxTheme::Font());
    application.setStyleSheet(KxTheme::StyleSheet());
    KxAccessible::Install();
    KxFocusRing::Install(application);
}

void KxUIStyle::SetScheme(QApplication& application, Scheme scheme)
{
    if (scheme == ShownScheme()) {
        return;
    }
    KxTheme::SetScheme(scheme);
    // Before Apply() there is nothing to change.
    if (!application.styleSheet().isEmpty()) {
        QApplication::setPalette(KxTheme::Palette());
        application.setStyleSheet(KxTheme::StyleSheet());
    }
}

void KxUIStyle::InstallTranslation(QApplication& application)
{
    auto* translator = new QTranslator(&application);
    const bool isLoaded = translator->load(QStringLiteral(":/KxWidgets/Translations/auto-reframe_en.qm"));
    Q_ASSERT_X(isLoaded, "KxUIStyle", "the translation is not among the resources");
    Q_UNUSED(isLoaded)
    QCoreApplication::installTranslator(translator);
}

QIcon KxUIStyle::Icon(const QString& name)
{
    return KxGlyph::Icon(name);
}

void KxUIStyle::SetBGColorType(QWidget* widget, int type)
{
    widget->setProperty("bgColorType", type);
    widget->setAttribute(Qt::WA_StyledBackground);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}
