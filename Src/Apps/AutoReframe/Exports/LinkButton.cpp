#include <Apps/AutoReframe/Exports/LinkButton.h>

#include <KxWidgets/KxUIStyle.h>

#include <QKeyEvent>
#include <QPainter>

namespace
{

constexpr int FontPx = 11;
// Makes the target larger than the text, but not at the right, where the text is aligned with others.
constexpr int MarginPx = 4;

} // namespace

LinkButton::LinkButton(QWidget* parent)
    : QAbstractButton(parent)
{
    QFont small = font();
    small.setPixelSize(FontPx);
    setFont(small);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

LinkButton::~LinkButton() = default;

QSize LinkButton::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + MarginPx, fontMetrics().height() + 2 * MarginPx};
}

void LinkButton::enterEvent(QEvent* event)
{
    update();
    QAbstractButton::enterEvent(event);
}

void LinkButton::leaveEvent(QEvent* event)
{
    update();
    QAbstractButton::leaveEvent(event);
}

void LinkButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void LinkButton::resizeEvent(QResizeEvent* event)
{
    // The same distance at both sides of the text.
    setProperty("focusRingRect", rect().adjusted(0, 0, MarginPx, 0));
    QAbstractButton::resizeEvent(event);
}

void LinkButton::paintEvent(QPaintEvent* /*event*/)
{
    using KxUIStyle::Role;
    QPainter painter(this);
    QFont shown = font();
    shown.setUnderline(underMouse() && isEnabled());
    painter.setFont(shown);
    const Role role = !isEnabled() ? Role::Off : isDown() ? Role::Strong : Role::Accent;
    painter.setPen(KxUIStyle::Colour(role));
    painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, text());
}
