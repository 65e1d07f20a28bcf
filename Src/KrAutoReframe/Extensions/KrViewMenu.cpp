#include <KrAutoReframe/Extensions/KrViewMenu.h>

#include <KrAutoReframe/Player/KrAutoReframePlayerControlBar.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Player/ShadowForm.h>

#include <KxCore/KxConfig.h>
#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxWidgets/KxToolButton.h>

#include <QDir>
#include <QHBoxLayout>
#include <QMenu>
#include <QSettings>

namespace
{

const QString SettingsGroup = QStringLiteral("Auto Reframe");
const QString GuidesKey = QStringLiteral("Guides");

QString ConfigFile()
{
    return QDir::fromNativeSeparators(KxConfig::GetKorviConfigFile());
}

} // namespace

KrViewMenu::KrViewMenu(KrAutoReframePlayerView& view)
    : KxWidget(&view.ControlBar())
    , m_view(view)
    , m_button(KxToolButton::CreateToolButton(this, QStringLiteral("KrAutoReframe_view")))
    , m_menu(new QMenu(m_button))
{
    setObjectName(QStringLiteral("KrAutoReframe_viewing"));
    m_menu->setObjectName(QStringLiteral("KrAutoReframe_viewMenu"));
    m_menu->setProperty("hasChecks", true);
    m_menu->setToolTipsVisible(true);
    AddGuide(KrGuideOverlay::SafeZones, QStringLiteral("SafeZones"));
    AddGuide(KrGuideOverlay::Thirds, QStringLiteral("Thirds"));
    AddGuide(KrGuideOverlay::Headroom, QStringLiteral("Headroom"));
    m_button->setMenu(m_menu);
    m_button->setPopupMode(QToolButton::InstantPopup);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_button);
    m_view.ControlBar().AddViewing(this);
    CreateOverlays();
    RetranslateUi();
    Restore();
    ApplyChoice();
}

KrViewMenu::~KrViewMenu() = default;

QAction* KrViewMenu::AddGuide(KrGuideOverlay::Guide guide, const QString& name)
{
    QAction* const action = m_menu->addAction(QString());
    action->setObjectName(name);
    action->setCheckable(true);
    m_guides.append({action, guide});
    connect(action, &QAction::triggered, this, [this] {
        ApplyChoice();
        QSettings(ConfigFile(), QSettings::IniFormat)
            .setValue(SettingsGroup + QLatin1Char('/') + GuidesKey, static_cast<int>(Chosen()));
    });
    return action;
}

void KrViewMenu::AddComparison()
{
    m_menu->addSeparator();
    m_compare = m_menu->addAction(QString(), this, &KrViewMenu::sigCompare);
    m_compare->setObjectName(QStringLiteral("Compare"));
    m_compare->setEnabled(false);
    RetranslateUi();
}

void KrViewMenu::SetComparisonEnabled(bool isEnabled)
{
    if (m_compare != nullptr) {
        m_compare->setEnabled(isEnabled);
    }
}

void KrViewMenu::CreateOverlays()
{
    ShadowForm& crop = m_view.Overlay();
    KxMediaPlayerWidget& player = m_view.PlayerWidget();
    m_overlays = {new KrGuideOverlay(&crop, [&crop] { return QRectF(crop.CropArea()); }),
                  new KrGuideOverlay(&player, [this] { return m_view.ResultArea(); })};
}

void KrViewMenu::RetranslateUi()
{
    m_button->setToolTip(tr("View"));
    const struct {
        QString text;
        QString toolTip;
    } texts[] = {
        {tr("Safe Zones"), tr("Dims what players of vertical videos cover with texts and buttons. For 9:16 only.")},
        {tr("Thirds"), tr("A grid that divides the result into thirds.")},
        {tr("Headroom"), tr("The band in which the top of a head belongs.")},
    };
    for (int index = 0; index < m_guides.size(); ++index) {
        m_guides.at(index).action->setText(texts[index].text);
        m_guides.at(index).action->setToolTip(texts[index].toolTip);
    }
    if (m_compare != nullptr) {
        m_compare->setText(tr("Compare Aspect Ratios…"));
        m_compare->setToolTip(tr("Shows the results of several aspect ratios side by side."));
    }
}

KrGuideOverlay::Guides KrViewMenu::Chosen() const
{
    KrGuideOverlay::Guides chosen;
    for (const Entry& entry : m_guides) {
        chosen.setFlag(entry.guide, entry.action->isChecked());
    }
    return chosen;
}

void KrViewMenu::Restore()
{
    const QSettings settings(ConfigFile(), QSettings::IniFormat);
    const int stored = settings.value(SettingsGroup + QLatin1Char('/') + GuidesKey).toInt();
    for (const Entry& entry : qAsConst(m_guides)) {
        entry.action->setChecked((stored & entry.guide) != 0);
    }
}

void KrViewMenu::ApplyChoice()
{
    for (KrGuideOverlay* const overlay : qAsConst(m_overlays)) {
        overlay->SetGuides(Chosen());
    }
}
