#include <KxWidgets/KxPushButton.h>

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace
{

constexpr int CompactHeightPx = 24;
constexpr int TextMarginPx = 8;

} // namespace

KxPushButton::KxPushButton(QWidget* parent, const QString& kind, int heightPx)
    : QPushButton(parent)
{
    setProperty("buttonKind", kind);
    setProperty("compact", heightPx <= CompactHeightPx);
    setAutoDefault(false);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    setFixedHeight(heightPx);
}

KxPushButton* KxPushButton::CreatePrimaryButton(QWidget* parent, int heightPx)
{
    return new KxPushButton(parent, QStringLiteral("primary"), heightPx);
}

KxPushButton* KxPushButton::CreateSecondaryButton(QWidget* parent, int heightPx)
{
    return new KxPushButton(parent, QStringLiteral("secondary"), heightPx);
}

KxPushButton::~KxPushButton() = default;

void KxPushButton::SetAutoResizeText(bool follows)
{
    m_followsText = follows;
    setSizePolicy(follows ? QSizePolicy::Minimum : QSizePolicy::Preferred, QSizePolicy::Fixed);
    updateGeometry();
}

QSize KxPushButton::minimumSizeHint() const
{
    const QSize hint = QPushButton::minimumSizeHint();
    return m_followsText ? hint : QSize(0, hint.height());
}

void KxPushButton::keyPressEvent(QKeyEvent* event)
{
    const bool presses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (presses && !event->isAutoRepeat()) {
        click();
        return;
    }
    QPushButton::keyPressEvent(event);
}

void KxPushButton::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const int iconPx = icon().isNull() ? 0 : iconSize().width() + TextMarginPx;
    option.text = fontMetrics().elidedText(option.text, Qt::ElideRight, width() - 2 * TextMarginPx - iconPx,
                                           Qt::TextShowMnemonic);
    painter.drawControl(QStyle::CE_PushButton, option);
}
