#include <KxWidgets/KxLabel.h>

#include <KxWidgets/KxToolTipHelper.h>

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QToolTip>

KxLabel::KxLabel(QWidget* parent)
    : QLabel(parent)
{
    // Most texts contain what a person named, and names may look like markup.
    setTextFormat(Qt::PlainText);
}

KxLabel* KxLabel::CreateLabel(QWidget* parent, const QString& text)
{
    auto* label = new KxLabel(parent);
    label->setText(text);
    return label;
}

KxLabel::~KxLabel() = default;

void KxLabel::SetElideMode(Qt::TextElideMode mode)
{
    m_elideMode = mode;
    updateGeometry();
    update();
}

QSize KxLabel::minimumSizeHint() const
{
    const QSize hint = QLabel::minimumSizeHint();
    return m_elideMode == Qt::ElideNone ? hint : QSize(0, hint.height());
}

bool KxLabel::IsElided() const
{
    return m_elideMode != Qt::ElideNone && fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

bool KxLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const QString shown = toolTip().isEmpty() && IsElided() ? text() : toolTip();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), KxToolTipHelper::AsPlainText(shown), this);
        return true;
    }
    return QLabel::event(event);
}

void KxLabel::paintEvent(QPaintEvent* event)
{
    if (!IsElided()) {
        QLabel::paintEvent(event);
        return;
    }
    QStyleOption option;
    option.init(this);
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), m_elideMode, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), option.palette, isEnabled(), shown,
                          foregroundRole());
}
