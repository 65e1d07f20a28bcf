#include <KxWidgets/KxFramelessDialog.h>

#include <KxWidgets/Style/KxTheme.h>
#include <KxWidgets/Windows/KxResizeGrips.h>
#include <KxWidgets/Windows/KxWindowCorners.h>
#include <KxWidgets/Windows/KxWindowManagerCare.h>

#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>
#include <QWindow>

namespace
{

constexpr int BorderPx = 1;

bool IsFilled(const QWidget& window)
{
    return (window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0;
}

} // namespace

KxFramelessDialog::KxFramelessDialog(const QString& title, QWidget* parent, bool fixedSize, bool centred)
    : KxDialog(parent)
    , m_titleBar(new KxTopLevelWindowTitleBar(this))
    , m_content(new QWidget(this))
    , m_centred(centred)
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                   Qt::WindowCloseButtonHint);
    setAttribute(Qt::WA_TranslucentBackground);
    m_buttonBar = new KxDialogButtonBar(this);
    m_layout = new QVBoxLayout(this);
    m_layout->setSpacing(0);
    m_layout->setContentsMargins(BorderPx, BorderPx, BorderPx, BorderPx);
    m_layout->addWidget(m_titleBar);
    m_layout->addWidget(m_content, 1);
    m_layout->addWidget(m_buttonBar);
    m_corners = new KxWindowCorners(this);
    m_grips = new KxResizeGrips(this);
    connect(m_titleBar, &KxTopLevelWindowTitleBar::sigResizebleChanged, m_grips, &KxResizeGrips::SetActive);
    m_titleBar->SetResizeble(!fixedSize);
    if (parent != nullptr) {
        parent->window()->installEventFilter(this);
    }
    if (KxWindowManagerCare::IsNeededOn(QGuiApplication::platformName())) {
        new KxWindowManagerCare(*this);
    }
    SetTitleName(title, false);
}

KxFramelessDialog::~KxFramelessDialog() = default;

KxTopLevelWindowTitleBar* KxFramelessDialog::GetTitleBar() const
{
    return m_titleBar;
}

KxDialogButtonBar* KxFramelessDialog::GetButtonBar() const
{
    return m_buttonBar;
}

void KxFramelessDialog::SetContentWidget(QWidget* content)
{
    if (content == m_content) {
        return;
    }
    delete m_layout->replaceWidget(m_content, content);
    delete m_content;
    m_content = content;
    m_content->show();
}

void KxFramelessDialog::SetBottomBarVisible(bool visible)
{
    m_buttonBar->setVisible(visible);
}

void KxFramelessDialog::SetTitleName(const QString& title, bool elide)
{
    setWindowTitle(title);
    m_titleBar->SetTitle(title);
    m_titleBar->SetTitleElideMode(elide ? Qt::ElideRight : Qt::ElideNone);
}

void KxFramelessDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange) {
        FollowWindowState();
    }
    KxDialog::changeEvent(event);
}

void KxFramelessDialog::FollowWindowState()
{
    const int border = IsFilled(*this) ? 0 : BorderPx;
    m_layout->setContentsMargins(border, border, border, border);
    update();
}

// Some desktops restore only the parent. A modal dialog that stayed minimised would block the program.
bool KxFramelessDialog::eventFilter(QObject* watched, QEvent* event)
{
    const QWidget* parent = parentWidget();
    if (event->type() == QEvent::WindowStateChange && parent != nullptr && watched == parent->window() &&
        !parent->window()->isMinimized() && isVisible() && isMinimized()) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
    return KxDialog::eventFilter(watched, event);
}

void KxFramelessDialog::showEvent(QShowEvent* event)
{
    if (!event->spontaneous()) {
        if (m_centred && !IsFilled(*this)) {
            MoveToCentre();
        }
        if (focusWidget() == nullptr) {
            FocusContent();
        }
    }
    KxDialog::showEvent(event);
}

void KxFramelessDialog::MoveToCentre()
{
    const QWidget* parent = parentWidget();
    const bool overParent = parent != nullptr && parent->window()->isVisible() && !parent->window()->isMinimized();
    const QScreen* home = overParent && parent->window()->windowHandle() != nullptr
                              ? parent->window()->windowHandle()->screen()
                              : QGuiApplication::primaryScreen();
    if (home == nullptr) {
        return;
    }
    const QRect room = home->availableGeometry();
    QRect place(QPoint(), size());
    place.moveCenter(overParent ? parent->window()->frameGeometry().center() : room.center());
    place.moveRight(qMin(place.right(), room.right()));
    place.moveBottom(qMin(place.bottom(), room.bottom()));
    place.moveLeft(qMax(place.left(), room.left()));
    place.moveTop(qMax(place.top(), room.top()));
    move(place.topLeft());
}

// Otherwise the focus would go to the first control in the tab order, a button of the title bar.
void KxFramelessDialog::FocusContent()
{
    QWidget* first = m_content;
    do {
        const bool takesFocus = (first->focusPolicy() & Qt::TabFocus) != 0 && first->isEnabled() &&
                                first->isVisibleTo(this) && !m_titleBar->isAncestorOf(first);
        if (takesFocus && !first->isWindow()) {
            first->setFocus(Qt::OtherFocusReason);
            return;
        }
        first = first->nextInFocusChain();
    } while (first != m_content);
}

void KxFramelessDialog::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (IsFilled(*this)) {
        painter.fillRect(rect(), KxUIStyle::Colour(KxUIStyle::Role::Panel));
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(KxUIStyle::Colour(KxUIStyle::Role::FieldLine));
    painter.setBrush(KxUIStyle::Colour(KxUIStyle::Role::Panel));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), KxTheme::WindowRadiusPx - 0.5,
                            KxTheme::WindowRadiusPx - 0.5);
}
