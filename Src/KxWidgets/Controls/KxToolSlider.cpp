#include <KxWidgets/KxToolSlider.h>

#include <KxWidgets/Style/KxTheme.h>

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QVariant>
#include <QWheelEvent>

#include <cmath>

namespace
{

using KxUIStyle::Role;

constexpr int ChunkPx = 16;
constexpr int GroovePx = 4;
constexpr int PreferredLengthPx = 120;
constexpr int WheelNotch = 120;

} // namespace

KxToolSlider::KxToolSlider(QWidget* parent, Qt::Orientation orientation)
    : KxWidget(parent)
    , m_orientation(orientation)
    , m_chunk(new QWidget(this))
{
    m_chunk->setObjectName(QStringLiteral("KxToolSlider_chunk"));
    m_chunk->setAttribute(Qt::WA_StyledBackground);
    m_chunk->setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setProperty("focusRingRadius", ChunkPx / 2);
    const bool isHorizontal = orientation == Qt::Horizontal;
    setSizePolicy(isHorizontal ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                  isHorizontal ? QSizePolicy::Fixed : QSizePolicy::Expanding);
    SizeChunk();
}

KxToolSlider::~KxToolSlider() = default;

QWidget* KxToolSlider::chunkWidget() const
{
    return m_chunk;
}

Qt::Orientation KxToolSlider::GetOrientation() const
{
    return m_orientation;
}

int KxToolSlider::GetWidth() const
{
    return m_orientation == Qt::Horizontal ? width() - m_chunk->width() : height() - m_chunk->height();
}

int KxToolSlider::GetChunkWidth() const
{
    return m_chunk->width();
}

int KxToolSlider::GetChunkHeight() const
{
    return m_chunk->height();
}

double KxToolSlider::duration() const
{
    return m_duration;
}

void KxToolSlider::setDuration(double duration)
{
    m_duration = std::fmax(duration, 0.0);
    setValue(m_value, false);
    PlaceChunk();
    update();
}

double KxToolSlider::value() const
{
    return m_value;
}

void KxToolSlider::setValue(double value, bool emitSignal)
{
    const double limited = std::fmin(std::fmax(value, 0.0), m_duration);
    if (limited == m_value) {
        return;
    }
    m_value = limited;
    PlaceChunk();
    update();
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(this, m_value);
        QAccessible::updateAccessibility(&event);
    }
    if (emitSignal) {
        Q_EMIT sigValueChanged(m_value);
    }
}

void KxToolSlider::SetAwaysEmitValueChangeStartEnd(bool always)
{
    m_alwaysEmitsStartEnd = always;
}

QSize KxToolSlider::sizeHint() const
{
    return m_orientation == Qt::Horizontal ? QSize(PreferredLengthPx, ChunkPx) : QSize(ChunkPx, PreferredLengthPx);
}

QSize KxToolSlider::minimumSizeHint() const
{
    return {ChunkPx, ChunkPx};
}

int KxToolSlider::Along(const QPoint& position) const
{
    return m_orientation == Qt::Horizontal ? position.x() : height() - position.y();
}

double KxToolSlider::ValueAt(int chunkStartPx) const
{
    const int lengthPx = GetWidth();
    return lengthPx > 0 ? m_duration * chunkStartPx / lengthPx : 0.0;
}

void KxToolSlider::SizeChunk()
{
    const int across = m_orientation == Qt::Horizontal ? height() : width();
    const int side = std::min(ChunkPx, std::max(across, 1));
    m_chunk->resize(side, side);
}

void KxToolSlider::PlaceChunk()
{
    const double share = m_duration > 0.0 ? m_value / m_duration : 0.0;
    const int startPx = qRound(share * GetWidth());
    if (m_orientation == Qt::Horizontal) {
        m_chunk->move(startPx, (height() - m_chunk->height()) / 2);
    } else {
        m_chunk->move((width() - m_chunk->width()) / 2, GetWidth() - startPx);
    }
    setProperty("focusRingRect", m_chunk->geometry());
}

void KxToolSlider::DragTo(int alongPx)
{
    const double before = m_value;
    const double wanted = std::fmin(std::fmax(ValueAt(alongPx - m_grabOffsetPx), 0.0), m_duration);
    if (wanted == before) {
        return;
    }
    if (!m_alwaysEmitsStartEnd && !m_changedSincePress) {
        Q_EMIT sigValueChangeStart(before);
    }
    m_changedSincePress = true;
    setValue(wanted, true);
}

void KxToolSlider::StepTo(double value)
{
    const double limited = std::fmin(std::fmax(value, 0.0), m_duration);
    if (limited == m_value || m_pressed) {
        return;
    }
    Q_EMIT sigValueChangeStart(m_value);
    setValue(limited, true);
    Q_EMIT sigValueChangeEnd(m_value);
}

void KxToolSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_pressed) {
        event->ignore();
        return;
    }
    m_pressed = true;
    m_changedSincePress = false;
    const bool onChunk = m_chunk->geometry().contains(event->pos());
    const int chunkStartPx = m_orientation == Qt::Horizontal ? m_chunk->x() : GetWidth() - m_chunk->y();
    m_grabOffsetPx = onChunk ? Along(event->pos()) - chunkStartPx : GetChunkWidth() / 2;
    if (m_alwaysEmitsStartEnd) {
        Q_EMIT sigValueChangeStart(m_value);
    }
    if (!onChunk) {
        DragTo(Along(event->pos()));
    }
}

void KxToolSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (m_pressed) {
        DragTo(Along(event->pos()));
    }
}

void KxToolSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !m_pressed) {
        event->ignore();
        return;
    }
    m_pressed = false;
    if (m_alwaysEmitsStartEnd || m_changedSincePress) {
        Q_EMIT sigValueChangeEnd(m_value);
    }
}

void KxToolSlider::resizeEvent(QResizeEvent* event)
{
    KxWidget::resizeEvent(event);
    SizeChunk();
    PlaceChunk();
}

std::optional<double> KxToolSlider::ValueForKey(int key) const
{
    const double page = std::fmax(1.0, std::floor(m_duration / 10.0));
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        return m_value - 1.0;
    case Qt::Key_Right:
    case Qt::Key_Up:
        return m_value + 1.0;
    case Qt::Key_PageDown:
        return m_value - page;
    case Qt::Key_PageUp:
        return m_value + page;
    case Qt::Key_Home:
        return 0.0;
    case Qt::Key_End:
        return m_duration;
    default:
        return std::nullopt;
    }
}

bool KxToolSlider::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // The window may use the arrow keys as shortcuts; a slider with the focus takes precedence.
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool plain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        if (plain && ValueForKey(key->key())) {
            event->accept();
            return true;
        }
    }
    if (event->type() == QEvent::EnabledChange) {
        update();
    }
    return KxWidget::event(event);
}

void KxToolSlider::keyPressEvent(QKeyEvent* event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const std::optional<double> wanted = plain ? ValueForKey(event->key()) : std::nullopt;
    if (!wanted) {
        event->ignore();
        return;
    }
    StepTo(*wanted);
}

void KxToolSlider::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    const QPoint turned = event->angleDelta();
    m_wheelRest += turned.y() != 0 ? turned.y() : turned.x();
    const int notches = m_wheelRest / WheelNotch;
    m_wheelRest -= notches * WheelNotch;
    if (notches != 0) {
        StepTo(m_value + notches);
    }
}

void KxToolSlider::paintEvent(QPaintEvent* /*event*/)
{
    const bool isHorizontal = m_orientation == Qt::Horizontal;
    const QPointF chunkCentre = QRectF(m_chunk->geometry()).center();
    QRectF groove(0, 0, isHorizontal ? width() : GroovePx, isHorizontal ? GroovePx : height());
    groove.moveCenter(QRectF(rect()).center());
    QRectF played = groove;
    if (isHorizontal) {
        played.setRight(chunkCentre.x());
    } else {
        played.setTop(chunkCentre.y());
    }
    constexpr qreal radius = GroovePx / 2.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(KxUIStyle::Colour(isEnabled() ? Role::FieldLine : Role::SurfaceLine));
    painter.drawRoundedRect(groove, radius, radius);
    painter.setBrush(KxUIStyle::Colour(isEnabled() ? Role::PlayedTrack : Role::FieldLine));
    painter.drawRoundedRect(played, radius, radius);
}
