#include <KrAutoReframe/Extensions/KrRatioPane.h>

#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KrAutoReframe/Engine/KrExportParameters.h>

#include <KxModel/IKxAutoReframeDecisions.h>
#include <KxModel/IKxTimeline.h>
#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxUIStyle.h>

#include <QVBoxLayout>
#include <QtConcurrent>

namespace
{

constexpr int HeightPx = 360;

} // namespace

KrRatioPane::KrRatioPane(const QSize& aspect, const IKxAutoReframeDecisions& service, QWidget* parent)
    : KxWidget(parent)
    , m_aspect(aspect)
    , m_service(service)
{
    setObjectName(QStringLiteral("KrAutoReframe_ratio_%1_%2")
                      .arg(QString::number(aspect.width()), QString::number(aspect.height())));
    InitLayout();
    connect(&m_decision, &QFutureWatcherBase::finished, this, &KrRatioPane::HandleDecided);
    RetranslateUi();
}

KrRatioPane::~KrRatioPane()
{
    m_decision.waitForFinished();
}

void KrRatioPane::InitLayout()
{
    m_picture = new QWidget(this);
    m_picture->setFixedSize(HeightPx * m_aspect.width() / m_aspect.height(), HeightPx);
    KxUIStyle::SetBGColorType(m_picture, 1);
    // A player fits its picture into a frame of 16:9. Of that frame, only the part with the picture is seen here.
    KxMediaPlayerWidget* const player = mediaPlayerFactory()->createPlayerWidget(m_picture);
    const QSize frame(HeightPx * 16 / 9, HeightPx);
    player->setGeometry((m_picture->width() - frame.width()) / 2, 0, frame.width(), frame.height());
    player->setFocusPolicy(Qt::NoFocus);
    m_presenter = player->getOrCreatePresenter();
    m_caption = KxLabel::CreateLabel(this, QString());
    m_caption->setProperty("textRole", QStringLiteral("muted"));
    m_caption->setAlignment(Qt::AlignCenter);
    m_caption->setWordWrap(true);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_picture);
    column->addWidget(m_caption);
}

void KrRatioPane::Show(const Source& source)
{
    m_source = source;
    m_state = m_state == State::Shown ? State::Shown : State::Deciding;
    ShowText();
    const IKxAutoReframeParam param(source.speed, m_aspect);
    m_decision.setFuture(
        QtConcurrent::run([&service = m_service, path = source.path, param] { return service.Decide(path, param); }));
}

void KrRatioPane::HandleDecided()
{
    if (m_decision.isCanceled() || m_source.timeline == nullptr) {
        return;
    }
    const QList<IKxAutoReframeResult> results = m_decision.result();
    m_helper = std::make_unique<KrAutoReframeHelper>();
    m_helper->SetTimeline(m_source.timeline);
    m_helper->SetEditsSurvive(true);
    m_helper->RestoreEditPoints(m_source.editPoints);
    connect(m_helper.get(), &KrAutoReframeHelper::sigApplyFinished, this, &KrRatioPane::ShowResult);
    if (results.isEmpty() || !m_helper->ApplyResults(results)) {
        m_state = State::Failed;
        ShowText();
    }
}

void KrRatioPane::ShowResult()
{
    IKxTimeline* const timeline = m_helper->GetWorkTimeline();
    const QSize picture = m_source.timeline->projectSettings().resolution;
    const QRectF shape = KrExportParameters::ShapeOfResult(m_helper->GetResults(), picture, m_aspect);
    m_outputSize = KrExportParameters::EvenResolution(picture, shape);
    KxProjectSettings settings = timeline->projectSettings();
    settings.resolution = m_outputSize;
    timeline->setProjectSettings(settings);
    m_presenter->openTimeline(timeline, true, false);
    m_presenter->seek(m_source.frame, 0, 0);
    m_state = State::Shown;
    ShowText();
}

void KrRatioPane::ShowFrame(int frame)
{
    m_source.frame = frame;
    if (m_state == State::Shown) {
        m_presenter->seek(frame, 0, 0);
    }
}

void KrRatioPane::Clear()
{
    m_decision.cancel();
    m_source = {};
    m_helper.reset();
    m_presenter->openTimeline(nullptr, true, false);
    m_state = State::Empty;
    ShowText();
}

void KrRatioPane::RetranslateUi()
{
    m_picture->setAccessibleName(
        tr("Result in %1:%2").arg(QString::number(m_aspect.width()), QString::number(m_aspect.height())));
    ShowText();
}

void KrRatioPane::ShowText()
{
    const QString ratio = tr("%1:%2").arg(QString::number(m_aspect.width()), QString::number(m_aspect.height()));
    switch (m_state) {
    case State::Empty:
        m_caption->setText(ratio);
        break;
    case State::Deciding:
        m_caption->setText(tr("%1 · finding the crop…").arg(ratio));
        break;
    case State::Shown:
        m_caption->setText(
            tr("%1 · %2 × %3")
                .arg(ratio, QString::number(m_outputSize.width()), QString::number(m_outputSize.height())));
        break;
    case State::Failed:
        m_caption->setText(tr("%1 · analyze the video again").arg(ratio));
        break;
    }
}
