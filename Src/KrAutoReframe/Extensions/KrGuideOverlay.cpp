#include <KrAutoReframe/Extensions/KrGuideOverlay.h>

#include <KrAutoReframe/Engine/KrGuides.h>

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace
{

constexpr QColor LineColour(255, 255, 255, 190);
// Around each line, so that it is seen on a bright picture too.
constexpr QColor EdgeColour(0, 0, 0, 110);
constexpr QColor CoveredColour(0, 0, 0, 90);
// A pattern, because all that is outside a crop is dimmed as well.
constexpr QColor PatternColour(255, 255, 255, 45);
constexpr QColor HeadroomColour(85, 229, 197, 60);
constexpr QColor HeadroomLineColour(85, 229, 197);

void PaintLine(QPainter& painter, const QLineF& line, const QColor& colour)
{
    painter.setPen(QPen(EdgeColour, 3));
    painter.drawLine(line);
    painter.setPen(QPen(colour, 1));
    painter.drawLine(line);
}

QRectF OnPixels(const QRectF& area)
{
    return QRectF(area.toAlignedRect()).adjusted(0.5, 0.5, -0.5, -0.5);
}

} // namespace

KrGuideOverlay::KrGuideOverlay(QWidget* parent, const std::function<QRectF()>& result)
    : QWidget(parent)
    , m_result(result)
{
    setObjectName(QStringLiteral("KrAutoReframe_guides"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(parent->rect());
    parent->installEventFilter(this);
    hide();
}

KrGuideOverlay::~KrGuideOverlay() = default;

void KrGuideOverlay::SetGuides(Guides guides)
{
    m_guides = guides;
    setVisible(guides != Guides());
    update();
}

bool KrGuideOverlay::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == parent()) {
        setGeometry(parentWidget()->rect());
    }
    return QWidget::eventFilter(watched, event);
}

void KrGuideOverlay::paintEvent(QPaintEvent*)
{
    const QRectF result = m_result();
    if (result.isEmpty()) {
        return;
    }
    QPainter painter(this);
    painter.setClipRect(result);
    if (m_guides & Headroom) {
        PaintHeadroom(painter, result);
    }
    if (m_guides & SafeZones) {
        PaintSafeZones(painter, result);
    }
    if (m_guides & Thirds) {
        PaintLines(painter, KrGuides::Thirds(result));
    }
}

void KrGuideOverlay::PaintSafeZones(QPainter& painter, const QRectF& result) const
{
    const QRectF clear = KrGuides::SafeArea(result);
    if (clear.isEmpty()) {
        return;
    }
    QPainterPath covered;
    // The crop's outline stays clear.
    covered.addRect(result.adjusted(1.0, 1.0, -1.0, -1.0));
    covered.addRect(OnPixels(clear));
    painter.fillPath(covered, CoveredColour);
    painter.fillPath(covered, QBrush(PatternColour, Qt::BDiagPattern));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(EdgeColour, 3));
    painter.drawRect(OnPixels(clear));
    painter.setPen(QPen(LineColour, 1, Qt::DashLine));
    painter.drawRect(OnPixels(clear));
}

void KrGuideOverlay::PaintLines(QPainter& painter, const QList<QLineF>& lines) const
{
    for (const QLineF& line : lines) {
        const QPointF first = line.p1().toPoint();
        const QPointF last = line.p2().toPoint();
        PaintLine(painter, {first + QPointF(0.5, 0.5), last + QPointF(0.5, 0.5)}, LineColour);
    }
}

void KrGuideOverlay::PaintHeadroom(QPainter& painter, const QRectF& result) const
{
    const QRectF band = OnPixels(KrGuides::Headroom(result));
    painter.fillRect(band, HeadroomColour);
    PaintLine(painter, {band.topLeft(), band.topRight()}, HeadroomLineColour);
    PaintLine(painter, {band.bottomLeft(), band.bottomRight()}, HeadroomLineColour);
}
