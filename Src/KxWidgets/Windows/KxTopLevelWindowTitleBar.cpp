#include <KxWidgets/KxTopLevelWindowTitleBar.h>

#include <KxWidgets/Style/KxTheme.h>

#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxToolButton.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QWindow>

namespace
{

constexpr int MarginPx = 12;
constexpr int GapPx = 4;
constexpr int ButtonWidthPx = 32;
constexpr int ButtonHeightPx = 28;

} // namespace

KxTopLevelWindowTitleBar::KxTopLevelWindowTitleBar(QWidget* parent)
    : KxWidget(parent)
    , m_title(KxLabel::CreateLabel(this, QString()))
    , m_buttonBits(CloseButton)
{
    m_title->setObjectName(QStringLiteral("KxTopLevelWindowTitleBar_title"));
    m_title->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_title->setTextFormat(Qt::PlainText);
    setFixedHeight(KxTheme::TitleBarHeightPx);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(MarginPx, 0, MarginPx, 0);
    layout->setSpacing(GapPx);
    layout->addWidget(m_title, 1);
    layout->addWidget(MakeButton(MinimizeButton, QStringLiteral("minimize")));
    layout->addWidget(MakeButton(MaximizeButton, QStringLiteral("maximize")));
    layout->addWidget(MakeButton(CloseButton, QStringLiteral("close")));
    connect(GetButton(MinimizeButton), &QAbstractButton::clicked, this, [this] { window()->showMinimized(); });
    connect(GetButton(MaximizeButton), &QAbstractButton::clicked, this, &KxTopLevelWindowTitleBar::ToggleMaximized);
    connect(GetButton(CloseButton), &QAbstractButton::clicked, this, [this] { window()->close(); });
    ShowButtons();
    KxTopLevelWindowTitleBar::RetranslateUi();
}

KxTopLevelWindowTitleBar::~KxTopLevelWindowTitleBar() = default;

KxToolButton* KxTopLevelWindowTitleBar::MakeButton(Button bit, const QString& name)
{
    KxToolButton* button =
        KxToolButton::CreateToolButton(this, QStringLiteral("KxTopLevelWindowTitleBar_%1").arg(name));
    button->SetGlyph(name);
    button->setFixedSize(ButtonWidthPx, ButtonHeightPx);
    m_buttons.insert(bit, button);
    return button;
}

void KxTopLevelWindowTitleBar::SetButtons(int bits)
{
    m_buttonBits = bits;
    ShowButtons();
}

void KxTopLevelWindowTitleBar::SetResizeble(bool resizable)
{
    if (resizable == m_resizable) {
        return;
    }
    m_resizable = resizable;
    ShowButtons();
    Q_EMIT sigResizebleChanged(resizable);
}

bool KxTopLevelWindowTitleBar::IsResizeble() const
{
    return m_resizable;
}

QAbstractButton* KxTopLevelWindowTitleBar::GetButton(int bit) const
{
    return m_buttons.value(bit);
}

void KxTopLevelWindowTitleBar::SetTitle(const QString& title)
{
    m_title->setText(title);
}

QString KxTopLevelWindowTitleBar::Title() const
{
    return m_title->text();
}

void KxTopLevelWindowTitleBar::SetTitleElideMode(Qt::TextElideMode mode)
{
    m_title->SetElideMode(mode);
}

void KxTopLevelWindowTitleBar::ShowButtons()
{
    for (auto button = m_buttons.constBegin(); button != m_buttons.constEnd(); ++button) {
        const bool allowed = button.key() != MaximizeButton || m_resizable;
        button.value()->setVisible(allowed && (m_buttonBits & button.key()) != 0);
    }
}

void KxTopLevelWindowTitleBar::ShowWindowState()
{
    KxToolButton* button = m_buttons.value(MaximizeButton);
    button->SetGlyph(window()->isMaximized() ? QStringLiteral("restore") : QStringLiteral("maximize"));
    button->setToolTip(window()->isMaximized() ? tr("Restore") : tr("Maximize"));
}

void KxTopLevelWindowTitleBar::RetranslateUi()
{
    m_buttons.value(MinimizeButton)->setToolTip(tr("Minimize"));
    m_buttons.value(CloseButton)->setToolTip(tr("Close"));
    ShowWindowState();
}

bool KxTopLevelWindowTitleBar::event(QEvent* event)
{
    const bool mayHaveMoved = event->type() == QEvent::ParentChange || event->type() == QEvent::Show;
    if (mayHaveMoved && m_watchedWindow != window()) {
        if (m_watchedWindow != nullptr) {
            m_watchedWindow->removeEventFilter(this);
        }
        m_watchedWindow = window();
        m_watchedWindow->installEventFilter(this);
        ShowWindowState();
    }
    return KxWidget::event(event);
}

bool KxTopLevelWindowTitleBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_watchedWindow && event->type() == QEvent::WindowStateChange) {
        ShowWindowState();
    }
    return KxWidget::eventFilter(watched, event);
}

void KxTopLevelWindowTitleBar::ToggleMaximized()
{
    if (window()->isMaximized()) {
        window()->showNormal();
    } else {
        window()->showMaximized();
    }
}

void KxTopLevelWindowTitleBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_pressPosition = event->globalPos();
        m_dragOffset.reset();
    }
}

void KxTopLevelWindowTitleBar::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragOffset) {
        window()->move(event->globalPos() - *m_dragOffset);
        return;
    }
    const bool drags = m_pressPosition &&
                       (event->globalPos() - *m_pressPosition).manhattanLength() >= QApplication::startDragDistance();
    if (!drags) {
        return;
    }
    const QPoint offset = *m_pressPosition - window()->pos();
    m_pressPosition.reset();
    QWindow* handle = window()->windowHandle();
    const bool desktopMovesIt = handle != nullptr && handle->startSystemMove();
    if (!desktopMovesIt && !window()->isMaximized()) {
        m_dragOffset = offset;
        window()->move(event->globalPos() - offset);
    }
}

void KxTopLevelWindowTitleBar::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    m_pressPosition.reset();
    m_dragOffset.reset();
}

void KxTopLevelWindowTitleBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    m_pressPosition.reset();
    if (event->button() == Qt::LeftButton && m_resizable) {
        ToggleMaximized();
    }
}
