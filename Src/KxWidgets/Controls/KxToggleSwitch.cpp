#include <KxWidgets/KxToggleSwitch.h>

#include <KxWidgets/Style/KxTheme.h>

#include <QPainter>
#include <QVariant>

namespace
{

using KxUIStyle::Role;

constexpr int TrackWidthPx = 36;
constexpr int TrackHeightPx = 20;
constexpr int KnobMarginPx = 2;
constexpr int TextGapPx = 12;

} // namespace

KxToggleSwitch::KxToggleSwitch(QWidget* parent)
    : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setProperty("focusRingRadius", TrackHeightPx / 2);
}

KxToggleSwitch::~KxToggleSwitch() = default;

QSize KxToggleSwitch::sizeHint() const
{
    ensurePolished();
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
    const int gapPx = text().isEmpty() ? 0 : TextGapPx;
    return {words.width() + gapPx + TrackWidthPx, qMax(words.height(), TrackHeightPx)};
}

QSize KxToggleSwitch::minimumSizeHint() const
{
    return {TrackWidthPx, sizeHint().height()};
}

QRect KxToggleSwitch::TrackRect() const
{
    return {width() - TrackWidthPx, (height() - TrackHeightPx) / 2, TrackWidthPx, TrackHeightPx};
}

void KxToggleSwitch::resizeEvent(QResizeEvent* event)
{
    QAbstractButton::resizeEvent(event);
    setProperty("focusRingRect", TrackRect());
}

void KxToggleSwitch::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QRect words = rect().adjusted(0, 0, -TrackWidthPx - TextGapPx, 0);
    painter.setPen(palette().color(group, QPalette::WindowText));
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic,
                     fontMetrics().elidedText(text(), Qt::ElideRight, words.width(), Qt::TextShowMnemonic));

    QColor track = KxUIStyle::Colour(isChecked() ? Role::Accent : Role::ButtonLine);
    QColor knob = KxUIStyle::Colour(isChecked() ? Role::OnAccent : Role::Text);
    if (isDown()) {
        track = track.darker(115);
    } else if (underMouse() && isEnabled()) {
        track = track.lighter(isChecked() ? 108 : 125);
    }
    if (!isEnabled()) {
        painter.setOpacity(0.4);
    }
    const QRectF trackRect = TrackRect();
    const qreal knobSide = TrackHeightPx - 2 * KnobMarginPx;
    QRectF knobRect(trackRect.topLeft() + QPointF(KnobMarginPx, KnobMarginPx), QSizeF(knobSide, knobSide));
    if (isChecked()) {
        knobRect.moveRight(trackRect.right() - KnobMarginPx);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(track);
    painter.drawRoundedRect(trackRect, TrackHeightPx / 2.0, TrackHeightPx / 2.0);
    painter.setBrush(knob);
    painter.drawEllipse(knobRect);
}
