#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>

#include <KrAutoReframe/Player/KrAutoReframePlayerControlBar.h>
#include <KrAutoReframe/Player/ShadowForm.h>

#include <KxCore/KxScreen.h>
#include <KxCore/KxUtility.h>
#include <KxModel/IKxTimeline.h>
#include <KxPlayer/IKxMediaPlayer.h>
#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxWidgets/KxUIStyle.h>

#include <QCloseEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

// The player fits its picture into a frame of this aspect.
const QSize PlayerFrame(1920, 1080);

ShadowForm::Kind OverlayKind()
{
    return KxSingleton<KxScreen>::instance()->canOverlayWindows() ? ShadowForm::Kind::Window : ShadowForm::Kind::Child;
}

double ScreenRatio()
{
    const double ratio = KxSingleton<KxScreen>::instance()->devicePixelRatio();
    return ratio < 1e-6 ? 1.0 : ratio;
}

bool IsSameRect(const QRectF& a, const QRectF& b)
{
    return qFuzzyCompare(a.x(), b.x()) && qFuzzyCompare(a.y(), b.y()) && qFuzzyCompare(a.width(), b.width()) &&
           qFuzzyCompare(a.height(), b.height());
}

} // namespace

QSharedPointer<KrAutoReframeHelper> ShareHelper(const std::shared_ptr<KrAutoReframeHelper>& helper)
{
    if (!helper) {
        return {};
    }
    // The deleter's copy keeps the helper alive until the last of these pointers is gone.
    return QSharedPointer<KrAutoReframeHelper>(helper.get(), [share = helper](KrAutoReframeHelper*) {});
}

KrAutoReframePlayerView::KrAutoReframePlayerView(const QSharedPointer<KrAutoReframeHelper>& helper, QWidget* parent)
    : KxWidget(parent)
    , m_helper(helper)
{
    setObjectName(QStringLiteral("KrAutoReframe_playerView"));
    KxUIStyle::SetBGColorType(this, 1);
    m_playerWidget = mediaPlayerFactory()->createPlayerWidget(this);
    m_presenter = m_playerWidget->getOrCreatePresenter();
    m_controlBar = new KrAutoReframePlayerControlBar(m_presenter, this);
    m_shadowForm = new ShadowForm(this, OverlayKind());
    m_shadowForm->hide();
    InitLayout();
    ConnectSignals();
}

KrAutoReframePlayerView::KrAutoReframePlayerView(QWidget* parent)
    : KrAutoReframePlayerView(QSharedPointer<KrAutoReframeHelper>(), parent)
{
}

KrAutoReframePlayerView::~KrAutoReframePlayerView() = default;

void KrAutoReframePlayerView::InitLayout()
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_playerWidget, 1);
    layout->addWidget(m_controlBar, 0);
}

void KrAutoReframePlayerView::ConnectSignals()
{
    using View = KrAutoReframePlayerView;
    using Bar = KrAutoReframePlayerControlBar;
    connect(m_shadowForm, &ShadowForm::sigMousePressed, m_presenter, &KxMediaPlayerPresenter::pause);
    connect(m_shadowForm, &ShadowForm::sigRectFChanged, this, &View::HandleRectChanged);
    connect(m_presenter, &KxMediaPlayerPresenter::sigFrameChanged, this, &View::HandleFrameChanged);
    connect(m_presenter, &KxMediaPlayerPresenter::sigFailed, this, &View::HandleFailed);
    if (m_helper) {
        connect(m_helper.data(), &KrAutoReframeHelper::sigOpenTimelineFinished, this, &View::HandleTimelineOpened);
    }
    connect(m_controlBar, &Bar::sigUndo, this, &View::HandleUndo);
    connect(m_controlBar, &Bar::sigRedo, this, &View::HandleRedo);
    connect(m_controlBar, &Bar::sigDelete, this, &View::HandleDelete);
    connect(m_controlBar, &Bar::sigPrevious, this, &View::HandlePrevious);
    connect(m_controlBar, &Bar::sigNext, this, &View::HandleNext);
    if (m_helper) {
        connect(m_helper.data(), &KrAutoReframeHelper::sigCanUndoRedo, m_controlBar, &Bar::SetUndoRedoEnabled);
    }
    connect(m_presenter, &KxMediaPlayerPresenter::sigPlayingChanged, this,
            [this] { RefreshFrame(m_presenter->currentFrame()); });
}

void KrAutoReframePlayerView::Pause()
{
    m_presenter->pause();
}

void KrAutoReframePlayerView::Play()
{
    m_presenter->play();
}

KxMediaPlayerPresenter& KrAutoReframePlayerView::Presenter() const
{
    return *m_presenter;
}

KxMediaPlayerWidget& KrAutoReframePlayerView::PlayerWidget() const
{
    return *m_playerWidget;
}

KrAutoReframePlayerControlBar& KrAutoReframePlayerView::ControlBar() const
{
    return *m_controlBar;
}

ShadowForm& KrAutoReframePlayerView::Overlay() const
{
    return *m_shadowForm;
}

QRectF KrAutoReframePlayerView::ResultArea() const
{
    if (!m_isReframedShown) {
        return {};
    }
    const QRect video = m_presenter->mediaPlayer()->videoRect();
    return {video.topLeft(), QSizeF(video.size()) / ScreenRatio()};
}

QSize KrAutoReframePlayerView::VideoSize() const
{
    const IKxTimeline* const timeline = m_helper ? m_helper->GetSourceTimeline() : nullptr;
    return timeline != nullptr ? timeline->projectSettings().resolution : QSize(16, 9);
}

void KrAutoReframePlayerView::EditCrop(const QRectF& rect)
{
    HandleRectChanged(rect);
}

void KrAutoReframePlayerView::PauseIfPlaying()
{
    if (m_presenter->inPlaying()) {
        m_presenter->pause();
    }
}

bool KrAutoReframePlayerView::SwitchTimeline(bool reframed, bool fromStart)
{
    if (!m_helper || m_helper->GetDisplayResults().isEmpty()) {
        return false;
    }
    const int frame = m_presenter->currentFrame();
    m_presenter->openTimeline(reframed ? m_helper->GetWorkTimeline() : m_helper->GetSourceTimeline(), true, false);
    if (!fromStart) {
        m_presenter->seek(frame, 0, 0);
    }
    m_isReframedShown = reframed;
    m_isOverlayHiddenByError = false;
    UpdateOverlay();
    return true;
}

bool KrAutoReframePlayerView::ShowResultsAtFrame()
{
    if (m_isReframedShown || m_isOverlayHiddenByError || !m_helper || m_helper->GetDisplayResults().isEmpty()) {
        return SwitchTimeline(false, false);
    }
    UpdateOverlay();
    return true;
}

void KrAutoReframePlayerView::UpdateOverlay()
{
    m_shadowForm->setVisible(!m_isReframedShown);
    RefreshFrame(m_presenter->currentFrame());
    UpdatePictureSize();
    UpdateOverlayGeometry();
}

void KrAutoReframePlayerView::UpdateOverlayGeometry()
{
    if (!m_shadowForm->isVisible()) {
        return;
    }
    const double ratio = ScreenRatio();
    const QRect video = m_presenter->mediaPlayer()->videoRect();
    m_shadowForm->move(m_shadowForm->isWindow() ? mapToGlobal(video.topLeft()) : video.topLeft());
    m_shadowForm->setFixedSize(qRound(video.width() / ratio), qRound(video.height() / ratio));
}

void KrAutoReframePlayerView::UpdatePictureSize()
{
    if (!m_helper) {
        return;
    }
    const QRect frame = KxUtility::getFitCentralWindowRectByRatio(m_playerWidget->rect(), PlayerFrame);
    const QRect fitted = KxUtility::getFitCentralWindowRectByRatio(frame, VideoSize());
    m_shadowForm->GetPictureLabel()->setFixedSize(fitted.size());
}

void KrAutoReframePlayerView::RefreshFrame(int frame)
{
    if (!m_helper || frame < 0) {
        return;
    }
    const int resultCount = m_helper->GetDisplayResults().size();
    if (resultCount > 0 && frame <= resultCount) {
        RefreshOverlay(frame);
        RefreshButtons(frame);
    }
    m_controlBar->SlotUpdateSliderPaint(m_helper->GetEditPointFrames());
}

void KrAutoReframePlayerView::RefreshOverlay(int frame)
{
    m_shadowForm->SetEditedFrame(!m_presenter->inPlaying() && m_helper->IsEditFrame(static_cast<uint>(frame)));
    const QList<IKxAutoReframeResult>& results = m_helper->GetDisplayResults();
    const QRectF& rect = results.at(std::min(frame, results.size() - 1)).cropRect();
    if (!IsSameRect(rect, m_shadowForm->GetCropRect())) {
        m_shadowForm->SetCropRect(rect);
    }
    m_shadowForm->update();
}

void KrAutoReframePlayerView::RefreshButtons(int frame)
{
    bool isEdited = false;
    bool hasPrevious = false;
    bool hasNext = false;
    if (m_shadowForm->isVisible() && !m_presenter->inPlaying()) {
        const auto here = static_cast<uint>(frame);
        isEdited = m_helper->IsEditFrame(here);
        hasPrevious = static_cast<int>(m_helper->GetPrevKeyFrame(here)) >= 0;
        hasNext = static_cast<int>(m_helper->GetNextKeyFrame(here)) >= 0;
    }
    m_controlBar->SetDeleteEnabled(isEdited);
    m_controlBar->SetPrevNextEnabled(hasPrevious, hasNext);
}

void KrAutoReframePlayerView::SeekTo(uint frame)
{
    const auto target = static_cast<int>(frame);
    if (target >= 0 && m_seeking != target) {
        m_seeking = target;
        m_presenter->seek(target, 0, 0);
    }
}

void KrAutoReframePlayerView::ShowEdit()
{
    if (m_isReframedShown) {
        m_presenter->openTimeline(m_helper->GetWorkTimeline(), true, true);
    }
}

void KrAutoReframePlayerView::HandleFrameChanged(int frame)
{
    m_seeking.reset();
    if (m_isOverlayHiddenByError) {
        m_isOverlayHiddenByError = false;
        m_shadowForm->show();
        UpdateOverlayGeometry();
    }
    RefreshFrame(frame);
}

void KrAutoReframePlayerView::HandleFailed()
{
    m_seeking.reset();
    if (!m_shadowForm->isHidden()) {
        m_isOverlayHiddenByError = true;
        m_shadowForm->hide();
        RefreshFrame(m_presenter->currentFrame());
    }
}

void KrAutoReframePlayerView::HandleTimelineOpened()
{
    m_isOverlayHiddenByError = false;
    m_isReframedShown = false;
    m_presenter->stop();
    m_presenter->openTimeline(m_helper->GetSourceTimeline(), true, false);
    UpdatePictureSize();
    m_shadowForm->hide();
    m_controlBar->SetUndoRedoEnabled(false, false);
    m_controlBar->SetDeleteEnabled(false);
    m_controlBar->SetPrevNextEnabled(false, false);
    m_controlBar->SlotUpdateSliderPaint({});
    m_controlBar->EnableTransport();
}

void KrAutoReframePlayerView::HandleRectChanged(const QRectF& rect)
{
    if (!m_helper) {
        return;
    }
    PauseIfPlaying();
    if (m_helper->AddKeyFrame(static_cast<uint>(m_presenter->currentFrame()), rect)) {
        ShowEdit();
    }
    RefreshFrame(m_presenter->currentFrame());
}

void KrAutoReframePlayerView::HandleUndo()
{
    if (!m_helper) {
        return;
    }
    PauseIfPlaying();
    if (m_helper->Undo()) {
        ShowEdit();
    }
    RefreshFrame(m_presenter->currentFrame());
}

void KrAutoReframePlayerView::HandleRedo()
{
    if (!m_helper) {
        return;
    }
    PauseIfPlaying();
    if (m_helper->Redo()) {
        ShowEdit();
    }
    RefreshFrame(m_presenter->currentFrame());
}

void KrAutoReframePlayerView::HandleDelete()
{
    if (!m_helper) {
        return;
    }
    PauseIfPlaying();
    if (m_helper->RemoveKeyFrame(static_cast<uint>(m_presenter->currentFrame()))) {
        ShowEdit();
    }
    RefreshFrame(m_presenter->currentFrame());
}

void KrAutoReframePlayerView::HandlePrevious()
{
    if (!m_helper) {
        return;
    }
    PauseIfPlaying();
    SeekTo(m_helper->GetPrevKeyFrame(static_cast<uint>(m_presenter->currentFrame())));
}

void KrAutoReframePlayerView::HandleNext()
{
    if (!m_helper) {
        return;
    }
    PauseIfPlaying();
    SeekTo(m_helper->GetNextKeyFrame(static_cast<uint>(m_presenter->currentFrame())));
}

void KrAutoReframePlayerView::moveEvent(QMoveEvent* event)
{
    KxWidget::moveEvent(event);
    UpdateOverlayGeometry();
}

void KrAutoReframePlayerView::resizeEvent(QResizeEvent* event)
{
    KxWidget::resizeEvent(event);
    UpdateOverlayGeometry();
    UpdatePictureSize();
}

void KrAutoReframePlayerView::closeEvent(QCloseEvent*)
{
    m_isOverlayHiddenByError = false;
    m_shadowForm->hide();
}
