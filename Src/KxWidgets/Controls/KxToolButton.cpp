#include <KxWidgets/KxToolButton.h>

#include <KxWidgets/Style/KxGlyph.h>

#include <QActionEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QMenu>
#include <QRegularExpression>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace
{

constexpr int IconPx = 16;
constexpr int PaddingPx = 6;
constexpr int TextGapPx = 4;

QString WithoutShortcut(const QString& toolTip)
{
    static const QRegularExpression shortcut(QStringLiteral("\\s*\\([^()]*\\)$"));
    return QString(toolTip).remove(shortcut);
}

} // namespace

KxToolButton::KxToolButton(QWidget* parent)
    : QToolButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setIconSize(QSize(IconPx, IconPx));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

KxToolButton* KxToolButton::CreateToolButton(QWidget* parent, const QString& name)
{
    auto* button = new KxToolButton(parent);
    button->setObjectName(name);
    return button;
}

KxToolButton::~KxToolButton() = default;

void KxToolButton::SetGlyph(const QString& name)
{
    m_glyph = name;
    update();
}

QString KxToolButton::Glyph() const
{
    return m_glyph;
}

void KxToolButton::FollowMenu(const QMenu& menu)
{
    // While the menu has the mouse, the button is not told that the mouse has left it.
    connect(&menu, &QMenu::aboutToHide, this, [this] {
        if (!rect().contains(mapFromGlobal(QCursor::pos()))) {
            setAttribute(Qt::WA_UnderMouse, false);
            update();
        }
    });
}

QSize KxToolButton::sizeHint() const
{
    ensurePolished();
    QSize content = iconSize();
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
    if (!text().isEmpty() && toolButtonStyle() == Qt::ToolButtonTextUnderIcon) {
        content = {qMax(content.width(), words.width()), content.height() + TextGapPx + words.height()};
    } else if (!text().isEmpty() && toolButtonStyle() == Qt::ToolButtonTextBesideIcon) {
        content = {content.width() + TextGapPx + words.width(), qMax(content.height(), words.height())};
    } else if (!text().isEmpty() && toolButtonStyle() == Qt::ToolButtonTextOnly) {
        content = words;
    }
    return content + QSize(2 * PaddingPx, 2 * PaddingPx);
}

QSize KxToolButton::minimumSizeHint() const
{
    return sizeHint();
}

void KxToolButton::actionEvent(QActionEvent* event)
{
    QToolButton::actionEvent(event);
    if (event->type() == QEvent::ActionAdded && event->action()->menu() != nullptr) {
        FollowMenu(*event->action()->menu());
    }
}

bool KxToolButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTipChange && accessibleName() == m_nameFromToolTip) {
        m_nameFromToolTip = WithoutShortcut(toolTip());
        setAccessibleName(m_nameFromToolTip);
    }
    return QToolButton::event(event);
}

void KxToolButton::keyPressEvent(QKeyEvent* event)
{
    const bool presses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (presses && !event->isAutoRepeat()) {
        click();
        return;
    }
    QToolButton::keyPressEvent(event);
}

void KxToolButton::PaintIcon(QPainter& painter, const QRect& area) const
{
    using KxGlyph::State;
    if (m_glyph.isEmpty()) {
        icon().paint(&painter, area, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled,
                     isChecked() ? QIcon::On : QIcon::Off);
        return;
    }
    State state = isChecked() ? State::Checked : State::Normal;
    if (!isEnabled()) {
        state = State::Disabled;
    } else if (isDown()) {
        state = State::Pressed;
    } else if (underMouse() && !isChecked()) {
        state = State::Hover;
    }
    KxGlyph::Paint(painter, m_glyph, area, state);
}

void KxToolButton::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const QString words = option.text;
    option.text.clear();
    option.icon = QIcon();
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    const bool under = toolButtonStyle() == Qt::ToolButtonTextUnderIcon && !words.isEmpty();
    const bool beside = toolButtonStyle() == Qt::ToolButtonTextBesideIcon && !words.isEmpty();
    const bool alone = toolButtonStyle() == Qt::ToolButtonTextOnly;
    const int lineHeight = fontMetrics().height();
    QRect iconArea(QPoint(), iconSize());
    iconArea.moveCenter(rect().center());
    QRect textArea = rect();
    if (under) {
        iconArea.moveTop((height() - iconSize().height() - TextGapPx - lineHeight) / 2);
        textArea = QRect(0, iconArea.bottom() + 1 + TextGapPx, width(), lineHeight);
    } else if (beside) {
        iconArea.moveLeft(PaddingPx);
        textArea.setLeft(iconArea.right() + 1 + TextGapPx);
    }
    if (!alone) {
        PaintIcon(painter, iconArea);
    }
    if (under || beside || alone) {
        const int alignment = Qt::AlignVCenter | Qt::TextShowMnemonic | (beside ? Qt::AlignLeft : Qt::AlignHCenter);
        painter.drawItemText(textArea, alignment, palette(), isEnabled(),
                             fontMetrics().elidedText(words, Qt::ElideRight, textArea.width(), Qt::TextShowMnemonic),
                             QPalette::ButtonText);
    }
}
