#include <KrAutoReframe/Extensions/KrDialogExtension.h>

#include <KrAutoReframe/Engine/KrAutoReframeAnalyzer.h>
#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>
#include <KrAutoReframe/Engine/KrChoiceList.h>
#include <KrAutoReframe/Engine/KrExportParameters.h>
#include <KrAutoReframe/Extensions/KrCropKeys.h>
#include <KrAutoReframe/Extensions/KrDoubtfulShots.h>
#include <KrAutoReframe/Extensions/KrExportStatus.h>
#include <KrAutoReframe/Extensions/KrFollowControls.h>
#include <KrAutoReframe/Extensions/KrGrowingCrop.h>
#include <KrAutoReframe/Extensions/KrRatioComparison.h>
#include <KrAutoReframe/Extensions/KrViewMenu.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>

#include <KxModel/IKxAutoReframeDecisions.h>
#include <KxModel/IKxAutoReframeShots.h>
#include <KxModel/IKxMediaInfo.h>
#include <KxModel/IKxTimeline.h>
#include <KxPlayer/KxMediaPlayerPresenter.h>

#include <QEventLoop>
#include <QShortcut>
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

/// Null if the host's service does not offer it.
IKxAutoReframeChoices* ServiceChoices()
{
    return dynamic_cast<IKxAutoReframeChoices*>(getAutoReframeService());
}

/// Null if the host's service does not offer it.
IKxAutoReframeDecisions* ServiceDecisions()
{
    return dynamic_cast<IKxAutoReframeDecisions*>(getAutoReframeService());
}

} // namespace

KrDialogExtension::KrDialogExtension(KrAutoReframeExtensions& host, const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_host(host)
    , m_parts(parts)
    , m_edits(*parts.process.GetHelper())
    , m_exportStatus(new KrExportStatus(dynamic_cast<KrAutoReframeExports*>(&host),
                                        dynamic_cast<KrAutoReframeOutputs*>(&host), &parts.panel))
    , m_choices(new KrChoiceList(parts.process.GetHelper()->GetUndoStack(), this))
{
    setObjectName(QStringLiteral("KrDialogExtension"));
    KrAutoReframeHelper& helper = *m_parts.process.GetHelper();
    helper.SetEditsSurvive(true);
    m_parts.panel.AddLine();
    m_parts.panel.AddBelowExport(m_exportStatus);
    new KrCropKeys(m_parts.view, this);
    CreateViewMenu();
    CreateHelp();
    if (IKxAutoReframeShots* const shots = ServiceShots()) {
        shots->CollectShots(true);
        m_doubtfulShots = new KrDoubtfulShots(m_parts.view, m_parts.panel);
        connect(m_doubtfulShots, &KrDoubtfulShots::sigSeen, this, &KrDialogExtension::ReportChange);
    }
    CreateFollowControls();
    connect(m_choices, &KrChoiceList::sigChanged, this, &KrDialogExtension::HandleChoicesChanged);
    m_decide.setSingleShot(true);
    connect(&m_decide, &QTimer::timeout, this, &KrDialogExtension::DecideAgain);
    connect(&m_isKnown, &QFutureWatcher<bool>::finished, this, &KrDialogExtension::HandleKnown);
    connect(&helper, &KrAutoReframeHelper::sigOpenTimelineFinished, this, &KrDialogExtension::EnterSource);
    connect(&helper.GetUndoStack(), &QUndoStack::indexChanged, this, &KrDialogExtension::ReportChange);
    connect(&helper.GetUndoStack(), &QUndoStack::indexChanged, this, &KrDialogExtension::UpdateEditHint);
    connect(&m_parts.view.Presenter(), &KxMediaPlayerPresenter::sigFrameChanged, this,
            &KrDialogExtension::UpdateEditHint);
    m_parts.panel.WhenParametersChange(this, [this] { HandleSettingsChanged(); });
}

KrDialogExtension::~KrDialogExtension()
{
    m_isKnown.waitForFinished();
    // Other clients of the service may not want them.
    if (IKxAutoReframeShots* const shots = ServiceShots()) {
        shots->CollectShots(false);
    }
    if (IKxAutoReframeChoices* const choices = ServiceChoices()) {
        choices->SetChoices({});
    }
}

void KrDialogExtension::CreateHelp()
{
    auto* const help = dynamic_cast<KrAutoReframeHelp*>(&m_host);
    if (help == nullptr) {
        return;
    }
    auto* const key = new QShortcut(QKeySequence::HelpContents, m_parts.view.window());
    key->setObjectName(QStringLiteral("KrAutoReframe_help"));
    connect(key, &QShortcut::activated, this, [this, help] {
        m_parts.view.Pause();
        help->ShowHelp(*m_parts.view.window());
    });
}

void KrDialogExtension::CreateViewMenu()
{
    m_viewMenu = new KrViewMenu(m_parts.view);
    if (ServiceDecisions() == nullptr) {
        return;
    }
    m_viewMenu->AddComparison();
    connect(m_viewMenu, &KrViewMenu::sigCompare, this, &KrDialogExtension::Compare);
    m_fillComparison.setSingleShot(true);
    m_fillComparison.setInterval(0);
    connect(&m_fillComparison, &QTimer::timeout, this, &KrDialogExtension::FillComparison);
    connect(&m_parts.process.GetHelper()->GetUndoStack(), &QUndoStack::indexChanged, &m_fillComparison,
            qOverload<>(&QTimer::start));
    connect(&m_parts.view.Presenter(), &KxMediaPlayerPresenter::sigFrameChanged, this, [this](int frame) {
        if (m_comparison != nullptr && m_comparison->isVisible()) {
            m_comparison->ShowFrame(frame);
        }
    });
}

void KrDialogExtension::Compare()
{
    if (m_comparison == nullptr) {
        m_comparison = std::make_unique<KrRatioComparison>(*ServiceDecisions(), m_parts.view.window());
    }
    m_comparison->show();
    m_comparison->raise();
    m_comparison->activateWindow();
    FillComparison();
}

void KrDialogExtension::FillComparison()
{
    const bool isGrowing = m_growth != nullptr && m_growth->IsGrowing();
    if (m_comparison != nullptr && m_comparison->isVisible() && m_hasResults && !isGrowing) {
        const KrAutoReframeHelper& helper = *m_parts.process.GetHelper();
        m_comparison->Fill({m_path, helper.GetSourceTimeline(), m_shown.speed, helper.GetEditPoints(),
                            m_parts.view.Presenter().currentFrame()});
    }
}

double KrDialogExtension::FrameRate() const
{
    constexpr double unknown = 25.0;
    const IKxTimeline* const timeline = m_parts.process.GetHelper()->GetSourceTimeline();
    const QList<IKxClip*> clips = timeline != nullptr ? timeline->clips() : QList<IKxClip*>();
    const auto* const video =
        clips.isEmpty() ? nullptr : dynamic_cast<const IKxVideoMediaInfo*>(clips.first()->mediaInfo());
    if (video == nullptr || video->frameRate().numerator <= 0 || video->frameRate().denominator <= 0) {
        return unknown;
    }
    return static_cast<double>(video->frameRate().numerator) / video->frameRate().denominator;
}

void KrDialogExtension::LeaveSource()
{
    m_path.clear();
    m_hasResults = false;
    m_placement.clear();
    m_editStays = false;
    m_isKnown.cancel();
    m_decide.stop();
    StopGrowth();
    m_mustDecide = false;
    m_exportStatus->SetCrop({}, {});
    m_viewMenu->SetComparisonEnabled(false);
    m_fillComparison.stop();
    if (m_comparison != nullptr) {
        m_comparison->close();
        m_comparison->Clear();
    }
    m_choices->Restore({});
    if (m_followControls != nullptr) {
        m_followControls->Clear();
        ServiceChoices()->SetChoices({});
    }
}

void KrDialogExtension::EnterSource()
{
    const QString path = m_parts.process.GetPath();
    m_state = path.isEmpty() ? KrAutoReframeState() : m_host.LoadState(path);
    m_parts.panel.SetParameters(m_state.aspectWidth, m_state.aspectHeight, m_state.motionSpeed);
    m_edits.Restore(m_state);
    m_parts.view.RefreshFrame(m_parts.view.Presenter().currentFrame());
    if (m_followControls != nullptr) {
        m_choices->Restore(ServiceChoices()->ReadChoices(m_state.choices));
        ServiceChoices()->SetChoices(m_choices->Current());
    }
    m_path = path;
    UpdateHint();
    ShowChoices();
    ShowShots();
    ShowLosses();
    if (ShowGivenCrops()) {
        return;
    }
    const IKxAutoReframeShots* const shots = ServiceShots();
    if (m_state.isAnalyzed && shots != nullptr) {
        m_isKnown.setFuture(QtConcurrent::run([shots, path] { return shots->IsKnown(path); }));
    }
}

bool KrDialogExtension::ShowGivenCrops()
{
    QList<IKxAutoReframeResult> results;
    for (const QRectF& crop : qAsConst(m_state.crops)) {
        results.append(IKxAutoReframeResult(results.size(), crop));
    }
    m_state.crops.clear();
    if (results.isEmpty() || !m_parts.process.GetHelper()->ApplyResults(results)) {
        return false;
    }
    // An export names the settings of the last analysis.
    m_parts.process.GetAnalyzer()->SetParam({m_path, m_state.aspectWidth, m_state.aspectHeight, PanelSettings().speed});
    return true;
}

void KrDialogExtension::Analyze(const Settings& settings)
{
    m_parts.analyze(settings.width, settings.height, settings.speed);
}

void KrDialogExtension::HandleKnown()
{
    if (!m_isKnown.isCanceled() && m_isKnown.result() && !m_hasResults) {
        Analyze(PanelSettings());
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
    const bool isAnswer = m_hasResults && !(m_choices->Current() == m_shownChoices);
    m_hasResults = true;
    m_mustDecide = false;
    const KrAutoReframeAnalyzeParam param = m_parts.process.GetParam();
    m_shown = {param.width, param.height, param.mode};
    TakePlacedChoices();
    if (m_edits.Place(m_path)) {
        m_parts.view.RefreshFrame(m_parts.view.Presenter().currentFrame());
    }
    m_shownChoices = m_choices->Current();
    m_editStays = isAnswer && ShowsEdit();
    UpdateHint();
    ShowResultSize();
    ShowShots();
    ShowLosses();
    m_viewMenu->SetComparisonEnabled(true);
    FillComparison();
    ReportChange();
    if (m_state.startsAtDoubtfulShot && m_doubtfulShots != nullptr) {
        m_doubtfulShots->GoToFirstToLookAt();
    }
    m_state.startsAtDoubtfulShot = false;
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
    if (m_growth != nullptr && m_growth->IsGrowing()) {
        m_parts.panel.SetProgress(tr("Following: %1 %").arg(m_growth->Percent()));
        return;
    }
    const bool differs = !(PanelSettings() == m_shown) || !(m_choices->Current() == m_shownChoices);
    QStringList placement{m_placement, m_edits.Message()};
    if (m_editStays) {
        placement = QStringList(tr("Your edit stays here"));
    }
    placement.removeAll(QString());
    m_parts.panel.SetHint(m_hasResults && differs ? tr("Settings changed: analyze again")
                                                  : placement.join(QLatin1Char('\n')));
}

void KrDialogExtension::ShowResultSize()
{
    const QList<IKxAutoReframeResult> results = m_parts.process.GetHelper()->GetResults();
    const QSize source = m_parts.view.VideoSize();
    const QRectF shape = KrExportParameters::ShapeOfResult(results, source, QSize(m_shown.width, m_shown.height));
    const QSize size = KrExportParameters::EvenResolution(source, shape);
    m_exportStatus->SetCrop({shape.width() * source.width(), shape.height() * source.height()}, size);
    // A shot that shows the whole picture is fitted into the result, whose size the preview has to know.
    IKxTimeline* const timeline = m_parts.process.GetHelper()->GetWorkTimeline();
    KxProjectSettings settings = timeline->projectSettings();
    settings.resolution = size;
    timeline->setProjectSettings(settings);
}

KrAutoReframeState KrDialogExtension::CurrentState() const
{
    KrAutoReframeState state = m_state;
    const Settings settings = PanelSettings();
    state.aspectWidth = settings.width;
    state.aspectHeight = settings.height;
    state.motionSpeed = settings.speed;
    state.isAnalyzed = m_state.isAnalyzed || m_hasResults;
    state.editPoints = m_edits.Edits().points;
    state.editPictures = m_edits.Edits().pictures;
    state.unplacedEdits = m_edits.Edits().unplaced;
    if (m_followControls != nullptr) {
        const bool hasChoices = !m_choices->Current().isEmpty();
        state.choices = hasChoices ? ServiceChoices()->WriteChoices(m_path, m_choices->Current()) : QByteArray();
    }
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
    m_edits.Describe(m_path);
    const KrAutoReframeState state = CurrentState();
    if (state != m_state) {
        m_state = state;
        m_host.OnStateChanged(m_path, m_state);
    }
}
