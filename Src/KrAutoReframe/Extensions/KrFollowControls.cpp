#include <KrAutoReframe/Extensions/KrFollowControls.h>

#include <KrAutoReframe/Engine/KrChoiceList.h>
#include <KrAutoReframe/Engine/KrChoices.h>
#include <KrAutoReframe/Extensions/KrSubjectBox.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Player/ShadowForm.h>

#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxWidgets/IKxShortcutEditManager.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>
#include <QtConcurrent>

namespace
{

using Kind = KxAutoReframeChoice::Kind;

constexpr int LongPressMs = 600;
// If nothing can be guessed: a person at a usual distance, in fractions of the picture.
constexpr QSizeF UsualBox(0.14, 0.28);

QRectF Around(const QPointF& centre, const QSizeF& size)
{
    return {centre.x() - size.width() / 2.0, centre.y() - size.height() / 2.0, size.width(), size.height()};
}

QKeySequence BackToAutomaticKeys()
{
    return IKxShortcutEditManager::GetInstance()->keySequence(IKxShortcutEditManager::BackToAutomatic);
}

} // namespace

KrFollowControls::KrFollowControls(KrAutoReframePlayerView& view, IKxAutoReframeChoices& service, KrChoiceList& choices,
                                   const Queries& queries, QObject* parent)
    : QObject(parent)
    , m_view(view)
    , m_service(service)
    , m_choices(choices)
    , m_queries(queries)
    , m_box(new KrSubjectBox(&view.Overlay()))
{
    m_view.Overlay().installEventFilter(this);
    m_view.Overlay().GetPictureLabel()->installEventFilter(this);
    m_view.PlayerWidget().installEventFilter(this);
    m_box->installEventFilter(this);
    connect(m_box, &KrSubjectBox::sigAdjusted, this, [this] {
        m_isGuessed = Guessed::No;
        m_isBackground = false;
    });
    connect(&m_guess, &QFutureWatcherBase::finished, this, &KrFollowControls::HandleGuess);
    connect(&m_view.Presenter(), &KxMediaPlayerPresenter::sigFrameChanged, this, [this](int frame) {
        if (frame != m_boxFrame) {
            Clear();
        }
    });
    auto* const back = new QShortcut(BackToAutomaticKeys(), &m_view);
    connect(back, &QShortcut::activated, this, [this] { Choose(Kind::Automatic); });
    m_longPress.setSingleShot(true);
    m_longPress.setInterval(LongPressMs);
    connect(&m_longPress, &QTimer::timeout, this, &KrFollowControls::HandleLongPress);
}

KrFollowControls::~KrFollowControls()
{
    m_guess.waitForFinished();
}

void KrFollowControls::Clear()
{
    StopGuessing();
    m_longPress.stop();
    m_pressedAt.reset();
    m_isDrawing = false;
    m_isBackground = false;
    m_box->SetBox({});
}

bool KrFollowControls::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_view.PlayerWidget()) {
        return HandlePictureKey(*event) || QObject::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Move:
        PlaceBox();
        break;
    case QEvent::Hide:
        if (watched == &m_view.Overlay()) {
            Clear();
        }
        break;
    case QEvent::ContextMenu:
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        if (HandleMouse(*watched, static_cast<QMouseEvent&>(*event))) {
            return true;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool KrFollowControls::HandleMouse(const QObject& watched, const QMouseEvent& event)
{
    if (watched.isWidgetType() && &watched == m_view.Overlay().GetPictureLabel()) {
        return false;
    }
    PlaceBox();
    const QPoint inPicture = m_box->mapFromGlobal(event.globalPos());
    const bool isLeft = event.button() == Qt::LeftButton;
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        StopGuessing();
        m_longPressAt = inPicture;
        if (event.button() == Qt::RightButton) {
            Press(inPicture);
            return true;
        }
        if (isLeft && !m_box->IsInBox(inPicture) && m_box->rect().contains(inPicture)) {
            m_longPress.start();
        }
        return false;
    case QEvent::MouseMove:
        if ((inPicture - m_longPressAt).manhattanLength() >= QApplication::startDragDistance()) {
            m_longPress.stop();
        }
        if (m_pressedAt) {
            DrawTo(inPicture);
            return true;
        }
        return false;
    default:
        m_longPress.stop();
        if (event.button() == Qt::RightButton && m_pressedAt) {
            Release(inPicture);
            return true;
        }
        return false;
    }
}

bool KrFollowControls::HandlePictureKey(QEvent& event)
{
    if (!m_view.Overlay().isVisible()) {
        return false;
    }
    if (event.type() == QEvent::ContextMenu) {
        if (static_cast<QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard) {
            Guess(m_view.Overlay().GetCropRect().center());
        }
        return true;
    }
    const bool isKey = event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride;
    const bool hasBegun = !m_box->Box().isEmpty() || m_box->IsSeeking();
    if (!isKey || static_cast<QKeyEvent&>(event).key() != Qt::Key_Escape || !hasBegun) {
        return false;
    }
    event.accept();
    if (event.type() == QEvent::KeyPress) {
        Clear();
    }
    return true;
}

void KrFollowControls::HandleLongPress()
{
    // The menu will get the release of the button: without one the overlay would go on dragging the crop.
    const QPoint inOverlay = m_box->mapTo(&m_view.Overlay(), m_longPressAt);
    QMouseEvent release(QEvent::MouseButtonRelease, inOverlay, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&m_view.Overlay(), &release);
    Guess(m_box->FractionAt(m_longPressAt));
}

void KrFollowControls::PlaceBox()
{
    m_box->setGeometry(m_view.Overlay().GetPictureLabel()->geometry());
}

void KrFollowControls::Press(const QPoint& inPicture)
{
    m_view.Pause();
    m_view.PlayerWidget().setFocus(Qt::MouseFocusReason);
    m_pressedAt = inPicture;
    m_isDrawing = false;
}

void KrFollowControls::DrawTo(const QPoint& inPicture)
{
    m_isDrawing = m_isDrawing || (inPicture - *m_pressedAt).manhattanLength() >= QApplication::startDragDistance();
    if (m_isDrawing) {
        m_boxFrame = CurrentFrame();
        m_isGuessed = Guessed::No;
        m_isBackground = false;
        m_box->SetBox(QRectF(m_box->FractionAt(*m_pressedAt), m_box->FractionAt(inPicture)).normalized());
    }
}

void KrFollowControls::Release(const QPoint& inPicture)
{
    const bool wasDrawing = m_isDrawing;
    m_pressedAt.reset();
    m_isDrawing = false;
    if (wasDrawing || m_box->IsInBox(inPicture)) {
        OpenMenu(m_box->mapToGlobal(inPicture));
    } else if (m_box->rect().contains(inPicture)) {
        Guess(m_box->FractionAt(inPicture));
    }
}

void KrFollowControls::Guess(const QPointF& point)
{
    PlaceBox();
    m_view.Pause();
    m_guessedPoint = point;
    m_boxFrame = CurrentFrame();
    m_box->SetBox({});
    m_box->SetSought(point);
    m_guess.setFuture(QtConcurrent::run([&service = m_service, path = m_queries.source().path, frame = m_boxFrame,
                                         point] { return service.GuessBox(path, frame, point); }));
}

void KrFollowControls::StopGuessing()
{
    m_guess.cancel();
    m_box->SetSought(std::nullopt);
}

void KrFollowControls::HandleGuess()
{
    if (m_guess.isCanceled() || !m_view.Overlay().isVisible()) {
        return;
    }
    m_box->SetSought(std::nullopt);
    const KxAutoReframeGuess guess = m_guess.result();
    const QRectF found = guess.box;
    m_isGuessed = Guessed::Yes;
    m_isBackground = guess.isBackground;
    m_box->SetBox(found.isEmpty() ? Around(m_guessedPoint, UsualBox) : found);
    const QRectF& box = m_box->Box();
    OpenMenu(m_box->mapToGlobal(QPoint(qRound(box.right() * m_box->width()), qRound(box.top() * m_box->height()))));
}

QAction* KrFollowControls::AddAction(QMenu& menu, const QString& text, Kind kind)
{
    QAction* const action = menu.addAction(text);
    connect(action, &QAction::triggered, this, [this, kind] { Choose(kind); });
    return action;
}

void KrFollowControls::OpenMenu(const QPoint& global)
{
    if (m_box->Box().isEmpty()) {
        return;
    }
    auto* const menu = new QMenu(&m_view);
    menu->setObjectName(QStringLiteral("KrAutoReframe_followMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (m_isBackground) {
        menu->addAction(tr("This looks like background"))->setEnabled(false);
        AddAction(*menu, tr("Hold the Crop Here in This Shot"), Kind::Hold);
        AddAction(*menu, tr("Follow This Anyway"), Kind::Follow);
        menu->addSeparator();
    } else {
        AddAction(*menu, tr("Follow This"), Kind::Follow);
        AddAction(*menu, tr("Not This"), Kind::Avoid);
        menu->addSeparator();
        AddAction(*menu, tr("Hold the Crop in This Shot"), Kind::Hold);
    }
    AddAction(*menu, tr("Show the Whole Picture in This Shot"), Kind::Fit);
    menu->addSeparator();
    QAction* const back = AddAction(*menu, tr("Back to Automatic"), Kind::Automatic);
    back->setEnabled(!(ChoicesWith(Kind::Automatic) == m_choices.Current()));
    back->setShortcut(BackToAutomaticKeys());
    // Elsewhere the key is the window's.
    back->setShortcutContext(Qt::WidgetShortcut);
    menu->popup(global);
}

QList<KxAutoReframeChoice> KrFollowControls::ChoicesWith(Kind kind) const
{
    const qint64 frame = CurrentFrame();
    const Shot shot = m_queries.shotAt(frame);
    KxAutoReframeChoice choice;
    choice.kind = kind;
    choice.fromSeconds = SecondsOf(shot.first);
    choice.toSeconds = SecondsOf(shot.end);
    if (kind == Kind::Follow || kind == Kind::Avoid) {
        choice.seeds.append({SecondsOf(frame), m_box->Box(), m_isGuessed == Guessed::Yes});
    }
    choice.centre = m_isBackground ? m_guessedPoint : m_view.Overlay().GetCropRect().center();
    return KrChoices::With(m_choices.Current(), choice);
}

void KrFollowControls::Choose(Kind kind)
{
    const QList<KxAutoReframeChoice> choices = ChoicesWith(kind);
    Clear();
    m_choices.Change(choices);
}

qint64 KrFollowControls::CurrentFrame() const
{
    return m_view.Presenter().currentFrame();
}

double KrFollowControls::SecondsOf(qint64 frame) const
{
    return static_cast<double>(frame) / m_queries.source().frameRate;
}
