#include <KrAutoReframe/Extensions/KrDialogExtension.h>

#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>
#include <KrAutoReframe/Extensions/KrCropKeys.h>
#include <KrAutoReframe/Extensions/KrDoubtfulShots.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>

#include <KxModel/IKxAutoReframeShots.h>
#include <KxPlayer/KxMediaPlayerPresenter.h>

#include <QEventLoop>
#include <QTimer>
#include <QUndoStack>
#include <QtConcurrent>

namespace
{

// Long enough for a decision on what the service already knows; a dialog that appeared for that time would flash.
constexpr int ProgressDelayMs = 500;

/// Null if the host's service does not offer it.
IKxAutoReframeShots* ServiceShots()
{
    return dynamic_cast<IKxAutoReframeShots*>(getAutoReframeService());
}

} // namespace

KrDialogExtension::KrDialogExtension(KrAutoReframeExtensions& host, const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_host(host)
    , m_parts(parts)
{
    setObjectName(QStringLiteral("KrDialogExtension"));
    KrAutoReframeHelper& helper = *m_parts.process.GetHelper();
    helper.SetEditsSurvive(true);
    m_parts.panel.AddLine();
    new KrCropKeys(m_parts.view, this);
    if (IKxAutoReframeShots* const shots = ServiceShots()) {
        shots->CollectShots(true);
        m_doubtfulShots = new KrDoubtfulShots(m_parts.view, m_parts.panel);
        connect(m_doubtfulShots, &KrDoubtfulShots::sigSeen, this, &KrDialogExtension::ReportChange);
    }
    connect(&m_isKnown, &QFutureWatcher<bool>::finished, this, &KrDialogExtension::HandleKnown);
    connect(&helper, &KrAutoReframeHelper::sigOpenTimelineFinished, this, &KrDialogExtension::EnterSource);
    connect(&helper.GetUndoStack(), &QUndoStack::indexChanged, this, &KrDialogExtension::ReportChange);
    m_parts.panel.WhenParametersChange(this, [this] { HandleSettingsChanged(); });
}

KrDialogExtension::~KrDialogExtension()
{
    m_isKnown.waitForFinished();
    // Other clients of the service may not want them.
    if (IKxAutoReframeShots* const shots = ServiceShots()) {
        shots->CollectShots(false);
    }
}

void KrDialogExtension::LeaveSource()
{
    m_path.clear();
    m_hasResults = false;
    m_isKnown.cancel();
}

void KrDialogExtension::EnterSource()
{
    const QString path = m_parts.process.GetPath();
    m_state = path.isEmpty() ? KrAutoReframeState() : m_host.LoadState(path);
    m_parts.panel.SetParameters(m_state.aspectWidth, m_state.aspectHeight, m_state.motionSpeed);
    m_parts.process.GetHelper()->RestoreEditPoints(m_state.editPoints);
    m_parts.view.RefreshFrame(m_parts.view.Presenter().currentFrame());
    m_path = path;
    UpdateHint();
    ShowShots();
    const IKxAutoReframeShots* const shots = ServiceShots();
    if (m_state.isAnalyzed && shots != nullptr) {
        m_isKnown.setFuture(QtConcurrent::run([shots, path] { return shots->IsKnown(path); }));
    }
}

void KrDialogExtension::HandleKnown()
{
    if (!m_isKnown.isCanceled() && m_isKnown.result() && !m_hasResults) {
        m_parts.analyze();
    }
}

void KrDialogExtension::ShowShots()
{
    if (m_doubtfulShots != nullptr) {
        const QList<KxAutoReframeShot> shots =
            m_hasResults ? ServiceShots()->GetShots(m_path) : QList<KxAutoReframeShot>();
        m_doubtfulShots->SetShots(KrShotList(shots, m_state.seenShots));
    }
}

bool KrDialogExtension::EndsSoon()
{
    bool hasEnded = false;
    QEventLoop loop;
    connect(&m_parts.process, &KrAutoReframeProcess::sigProcessFinished, &loop, [&hasEnded, &loop] {
        hasEnded = true;
        loop.quit();
    });
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    QTimer::singleShot(ProgressDelayMs, &loop, &QEventLoop::quit);
    // As while a modal dialog is open, the person cannot change anything.
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return hasEnded;
}

bool KrDialogExtension::StaysAtFrame() const
{
    return m_hasResults || m_state.isAnalyzed;
}

void KrDialogExtension::ShowResults()
{
    m_hasResults = true;
    UpdateHint();
    ShowShots();
    ReportChange();
}

void KrDialogExtension::HandleSettingsChanged()
{
    UpdateHint();
    ReportChange();
}

KrDialogExtension::Settings KrDialogExtension::PanelSettings() const
{
    Settings settings;
    m_parts.panel.GetParameters(settings.width, settings.height, settings.speed);
    return settings;
}

void KrDialogExtension::UpdateHint()
{
    const Settings chosen = PanelSettings();
    const KrAutoReframeAnalyzeParam shown = m_parts.process.GetParam();
    const bool differs = chosen.width != shown.width || chosen.height != shown.height || chosen.speed != shown.mode;
    m_parts.panel.SetHint(m_hasResults && differs ? tr("Settings changed: analyze again") : QString());
}

KrAutoReframeState KrDialogExtension::CurrentState() const
{
    KrAutoReframeState state = m_state;
    const Settings settings = PanelSettings();
    state.aspectWidth = settings.width;
    state.aspectHeight = settings.height;
    state.motionSpeed = settings.speed;
    state.isAnalyzed = m_state.isAnalyzed || m_hasResults;
    state.editPoints = m_parts.process.GetHelper()->GetEditPoints();
    if (m_doubtfulShots != nullptr) {
        state.seenShots = m_doubtfulShots->Shots().Seen();
    }
    return state;
}

void KrDialogExtension::ReportChange()
{
    if (m_path.isEmpty()) {
        return;
    }
    const KrAutoReframeState state = CurrentState();
    if (state != m_state) {
        m_state = state;
        m_host.OnStateChanged(m_path, m_state);
    }
}
