#include <KxWidgets/Style/KxFocusRing.h>

#include <KxWidgets/Style/KxTheme.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>
#include <QVariant>

namespace
{

constexpr int GapPx = 2;
constexpr int RingPx = 2;

QRect RingedPart(const QWidget& target)
{
    const QRect part = target.property("focusRingRect").toRect();
    return part.isValid() ? part : target.rect();
}

// Inside a scroll area the ring is clipped like the rest of its content.
QWidget* Canvas(const QWidget& target)
{
    for (QWidget* ancestor = target.parentWidget(); ancestor != nullptr && !ancestor->isWindow();
         ancestor = ancestor->parentWidget()) {
        const auto* area = qobject_cast<const QAbstractScrollArea*>(ancestor->parentWidget());
        if (area != nullptr && area->viewport() == ancestor) {
            return ancestor;
        }
    }
    return target.window();
}

/// The part of `canvas` on which the ring of `target` may be drawn. The items of a scroll area move with its content: a
/// ring around one of them ends where the content ends.
QRect Limits(const QWidget& target, const QWidget& canvas)
{
    const auto* area = qobject_cast<const QAbstractScrollArea*>(&target);
    if (area == nullptr || !target.property("focusRingRect").isValid()) {
        return canvas.rect();
    }
    constexpr int outside = GapPx + RingPx;
    const QRect content = area->viewport()->geometry().adjusted(-outside, -outside, outside, outside) & target.rect();
    return {target.mapTo(&canvas, content.topLeft()), content.size()};
}

} // namespace

class KxFocusRing::Ring : public QWidget
{
public:
    Ring(QWidget* canvas, qreal radiusPx)
        : QWidget(canvas)
        , m_radiusPx(radiusPx)
    {
        setObjectName(QStringLiteral("KxFocusRing"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
    }

    /// Draws the ring along the inside of `whole`, clipped to `limits`; both in the canvas's coordinates.
    void Place(const QRect& whole, const QRect& limits)
    {
        m_whole = whole;
        setGeometry(whole & limits);
        update();
    }
    bool IsInside() const { return !size().isEmpty(); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        constexpr qreal half = RingPx / 2.0;
        const qreal radius = m_radiusPx + GapPx + half;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(KxUIStyle::Colour(KxUIStyle::Role::Accent), RingPx));
        const QRectF ring = QRectF(m_whole.translated(-pos())).adjusted(half, half, -half, -half);
        painter.drawRoundedRect(ring, radius, radius);
    }

private:
    const qreal m_radiusPx;
    QRect m_whole;
};

void KxFocusRing::Install(QApplication& application)
{
    if (application.findChild<KxFocusRing*>(QString(), Qt::FindDirectChildrenOnly) == nullptr) {
        new KxFocusRing(application);
    }
}

KxFocusRing::KxFocusRing(QApplication& application)
    : QObject(&application)
{
    application.installEventFilter(this);
    connect(&application, &QApplication::focusChanged, this, &KxFocusRing::FollowFocus);
}

KxFocusRing::~KxFocusRing() = default;

bool KxFocusRing::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_lastInputWasKey = false;
        Hide();
        break;
    case QEvent::KeyPress:
        m_lastInputWasKey = true;
        break;
    case QEvent::ShortcutOverride:
        if (Needs(*static_cast<QKeyEvent*>(event))) {
            event->accept();
            return true;
        }
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::DynamicPropertyChange:
    case QEvent::ParentChange:
    case QEvent::Show:
    case QEvent::Hide:
        if (m_target && watched->isWidgetType() &&
            (watched == m_target || static_cast<QWidget*>(watched)->isAncestorOf(m_target))) {
            Place();
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void KxFocusRing::FollowFocus(QWidget* /*previous*/, QWidget* current)
{
    const bool wearsRing = m_lastInputWasKey && current != nullptr && !current->isWindow() &&
                           current->window()->windowType() != Qt::Popup &&
                           !current->property("showsFocusItself").toBool();
    if (wearsRing) {
        Show(*current);
    } else {
        Hide();
    }
}

void KxFocusRing::Show(QWidget& target)
{
    Hide();
    const QVariant radius = target.property("focusRingRadius");
    m_target = &target;
    m_ring = new Ring(Canvas(target), radius.isValid() ? radius.toReal() : KxTheme::ControlRadiusPx);
    Place();
}

void KxFocusRing::Hide()
{
    m_target.clear();
    if (m_ring) {
        m_ring->hide();
        m_ring->deleteLater();
        m_ring.clear();
    }
}

void KxFocusRing::Place()
{
    if (!m_ring || !m_target) {
        return;
    }
    QWidget* canvas = m_ring->parentWidget();
    if (canvas == nullptr || !canvas->isAncestorOf(m_target)) {
        Hide();
        return;
    }
    constexpr int outside = GapPx + RingPx;
    const QRect part = RingedPart(*m_target);
    const QRect place(m_target->mapTo(canvas, part.topLeft()), part.size());
    m_ring->Place(place.adjusted(-outside, -outside, outside, outside), Limits(*m_target, *canvas));
    m_ring->raise();
    m_ring->setVisible(m_target->isVisible() && m_ring->IsInside());
}

bool KxFocusRing::Needs(const QKeyEvent& event) const
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return false;
    }
    const bool isComboBox = qobject_cast<QComboBox*>(m_target.data()) != nullptr;
    switch (event.key()) {
    case Qt::Key_Space:
    case Qt::Key_Select:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return isComboBox || qobject_cast<QAbstractButton*>(m_target.data()) != nullptr;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
        return isComboBox;
    default:
        return false;
    }
}
