#include <KrAutoReframe/Extensions/KrCropKeys.h>

#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Player/ShadowForm.h>

#include <KxPlayer/KxMediaPlayerWidget.h>

#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace
{

constexpr int LargeStepPx = 10;

double Inside(double start, double extent)
{
    return std::max(0.0, std::min(start, 1.0 - extent));
}

bool IsByKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

} // namespace

KrCropKeys::KrCropKeys(KrAutoReframePlayerView& view, QObject* parent)
    : QObject(parent)
    , m_view(view)
{
    KxMediaPlayerWidget& picture = m_view.PlayerWidget();
    picture.setFocusPolicy(Qt::StrongFocus);
    picture.setAccessibleName(tr("Picture"));
    picture.setAccessibleDescription(tr("The arrow keys move the crop, with Shift in larger steps."));
    // The overlay shows the focus: a ring around the picture would be covered by it.
    picture.setProperty("showsFocusItself", true);
    picture.installEventFilter(this);
    connect(&m_view.Overlay(), &ShadowForm::sigMousePressed, &picture,
            [&picture] { picture.setFocus(Qt::MouseFocusReason); });
}

KrCropKeys::~KrCropKeys() = default;

bool KrCropKeys::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        m_view.Overlay().SetFocusShown(IsByKeyboard(static_cast<QFocusEvent*>(event)->reason()));
        break;
    case QEvent::FocusOut:
        m_view.Overlay().SetFocusShown(false);
        Commit();
        break;
    case QEvent::ShortcutOverride:
        // The window uses the arrow keys as shortcuts.
        if (IsCropShown() && !StepOf(static_cast<QKeyEvent&>(*event)).isNull()) {
            event->accept();
            return true;
        }
        break;
    case QEvent::KeyPress:
        if (HandleKey(static_cast<QKeyEvent&>(*event))) {
            return true;
        }
        break;
    case QEvent::KeyRelease:
        if (!static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
            Commit();
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool KrCropKeys::IsCropShown() const
{
    return m_view.Overlay().isVisible();
}

QPoint KrCropKeys::StepOf(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier && modifiers != Qt::ShiftModifier) {
        return {};
    }
    const int step = modifiers == Qt::ShiftModifier ? LargeStepPx : 1;
    switch (event.key()) {
    case Qt::Key_Left:
        return {-step, 0};
    case Qt::Key_Right:
        return {step, 0};
    case Qt::Key_Up:
        return {0, -step};
    case Qt::Key_Down:
        return {0, step};
    default:
        return {};
    }
}

bool KrCropKeys::HandleKey(const QKeyEvent& event)
{
    const QPoint step = StepOf(event);
    if (step.isNull() || !IsCropShown()) {
        return false;
    }
    Move(step);
    return true;
}

void KrCropKeys::Move(const QPoint& stepPx)
{
    m_view.Pause();
    const QSize video = m_view.VideoSize();
    if (video.isEmpty()) {
        return;
    }
    ShadowForm& overlay = m_view.Overlay();
    const QRectF crop = overlay.GetCropRect();
    QRectF moved = crop;
    if (stepPx.x() != 0) {
        moved.moveLeft(Inside(crop.x() + static_cast<double>(stepPx.x()) / video.width(), crop.width()));
    }
    if (stepPx.y() != 0) {
        moved.moveTop(Inside(crop.y() + static_cast<double>(stepPx.y()) / video.height(), crop.height()));
    }
    if (moved != crop) {
        overlay.SetCropRect(moved);
        overlay.update();
        m_hasMoved = true;
    }
}

void KrCropKeys::Commit()
{
    if (std::exchange(m_hasMoved, false)) {
        m_view.EditCrop(m_view.Overlay().GetCropRect());
    }
}
