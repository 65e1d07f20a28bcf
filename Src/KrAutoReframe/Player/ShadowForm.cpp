#include <KrAutoReframe/Player/ShadowForm.h>

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace
{

constexpr QColor Shade(0, 0, 0, 142);
constexpr QColor FocusColour(0x55, 0xE5, 0xC5);
constexpr int FocusRingPx = 2;
constexpr int FocusInsetPx = 4;

Qt::WindowFlags FlagsOf(ShadowForm::Kind kind)
{
    if (kind == ShadowForm::Kind::Child) {
        return Qt::Widget;
    }
    return Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus;
}

} // namespace

ShadowForm::ShadowForm(QWidget* parent, Kind kind)
    : QWidget(parent, FlagsOf(kind))
{
    setObjectName(QStringLiteral("KrAutoReframe_overlay"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_MouseTracking);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_MouseTracking);

    m_pictureLabel = new QLabel(this);
    m_pictureLabel->setObjectName(QStringLiteral("KrAutoReframe_picture"));
    m_pictureLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_pictureLabel->setMouseTracking(true);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pictureLabel, 0, Qt::AlignCenter);
}

ShadowForm::~ShadowForm() = default;

QLabel* ShadowForm::GetPictureLabel() const
{
    return m_pictureLabel;
}

const QRectF& ShadowForm::GetCropRect() const
{
    return m_cropRect;
}

void ShadowForm::SetCropRect(const QRectF& rect)
{
    m_cropRect = rect;
}

QRect ShadowForm::CropArea() const
{
    const QRect outline = CropPixels();
    return {outline.topLeft(), outline.size() + QSize(1, 1)};
}

void ShadowForm::SetEditedFrame(bool isEdited)
{
    m_editedFrame = isEdited;
}

void ShadowForm::SetFocusShown(bool isShown)
{
    m_isFocusShown = isShown;
    update();
}

QRect ShadowForm::CropPixels() const
{
    const QSize picture = m_pictureLabel->size();
    const QPoint corner(static_cast<int>(m_cropRect.x() * picture.width()),
                        static_cast<int>(m_cropRect.y() * picture.height()));
    const QSize size(static_cast<int>(m_cropRect.width() * picture.width()),
                     static_cast<int>(m_cropRect.height() * picture.height()));
    return QRect(m_pictureLabel->pos() + corner, size - QSize(1, 1));
}

void ShadowForm::paintEvent(QPaintEvent*)
{
    const QRect crop = CropPixels();
    QPainter painter(this);
    painter.save();
    painter.setPen(QPen(m_editedFrame ? QColor(0xFF, 0x8B, 0x55) : QColor(0x55, 0xE5, 0xC5), 1));
    if (isWindow()) {
        PaintOverWindow(painter, crop);
    } else {
        PaintOverParent(painter, crop);
    }
    painter.drawRects(&crop, 1);
    painter.restore();
    if (m_isFocusShown) {
        PaintFocus(painter, crop);
    }
}

void ShadowForm::PaintFocus(QPainter& painter, const QRect& crop) const
{
    // Off the outline, and inside the crop, which usually reaches the picture's edges.
    painter.setPen(QPen(FocusColour, FocusRingPx, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(crop.adjusted(FocusInsetPx, FocusInsetPx, -FocusInsetPx, -FocusInsetPx));
}

void ShadowForm::PaintOverWindow(QPainter& painter, const QRect& crop) const
{
    // Not fully transparent: otherwise the system would send mouse events over the crop to the window below.
    const QColor almostClear(0, 0, 0, 1);
    painter.fillRect(rect(), Shade);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(crop, almostClear);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.fillRect(crop, almostClear);
}

void ShadowForm::PaintOverParent(QPainter& painter, const QRect& crop) const
{
    // A child shares its parent's pixels, so nothing may be cleared.
    painter.setClipRegion(QRegion(rect()) - crop);
    painter.fillRect(rect(), Shade);
    painter.setClipping(false);
}

void ShadowForm::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && CropPixels().contains(event->pos())) {
        m_pressed = true;
        m_pictureLabel->setCursor(Qt::ClosedHandCursor);
        m_pressPosition = event->pos();
        Q_EMIT sigMousePressed();
    }
    QWidget::mousePressEvent(event);
}

void ShadowForm::mouseMoveEvent(QMouseEvent* event)
{
    if (m_pressed) {
        if ((event->pos() - m_pressPosition).manhattanLength() >= QApplication::startDragDistance()) {
            DragTo(event->pos());
        }
        m_lastPosition = event->pos();
    } else {
        ShowHoverCursor(event->pos());
    }
    QWidget::mouseMoveEvent(event);
}

void ShadowForm::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        if (m_dragging) {
            Q_EMIT sigRectFChanged(m_cropRect);
            m_dragging = false;
        }
        m_pressed = false;
        ShowHoverCursor(event->pos());
    }
    QWidget::mouseReleaseEvent(event);
}

void ShadowForm::ShowHoverCursor(const QPoint& position)
{
    m_pictureLabel->setCursor(CropPixels().contains(position) ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

void ShadowForm::DragTo(const QPoint& position)
{
    m_dragging = true;
    const QPoint delta = position - m_lastPosition;
    const QSize picture = m_pictureLabel->size();
    if (picture.width() >= 1 && picture.height() >= 1) {
        const QRect bounds(m_pictureLabel->pos(), picture - QSize(1, 1));
        const QRect crop = CropPixels();
        const auto staysInside = [&bounds](const QRect& moved) { return moved.intersected(bounds) == moved; };
        if (delta.x() != 0 && staysInside(crop.translated(delta.x(), 0))) {
            m_cropRect.translate(delta.x() / static_cast<double>(picture.width()), 0.0);
        }
        if (delta.y() != 0 && staysInside(crop.translated(0, delta.y()))) {
            m_cropRect.translate(0.0, delta.y() / static_cast<double>(picture.height()));
        }
    }
    update();
}
