#pragma once

#include <KxWidgets/KxWidget.h>

#include <QAbstractButton>
#include <QMap>
#include <QPoint>

#include <optional>

class KxLabel;
class KxToolButton;

/// The title bar of a frameless window: the title at the left, buttons at the right. Dragging it moves the window. A
/// double click maximises or restores a window that can be resized.
class KXWIDGETS_API KxTopLevelWindowTitleBar : public KxWidget
{
    Q_OBJECT
public:
    /// Bits of SetButtons.
    enum Button { MinimizeButton = 4, MaximizeButton = 16, CloseButton = 32 };

    explicit KxTopLevelWindowTitleBar(QWidget* parent);
    ~KxTopLevelWindowTitleBar() override;

    /// Shows the buttons whose bits are set, in the order minimise, maximise, close, and hides the others. The maximise
    /// button is shown only while the window can be resized.
    void SetButtons(int bits);
    /// Whether the window can be resized at its edges and maximised.
    void SetResizeble(bool resizable);
    bool IsResizeble() const;
    /// The button of one bit; not null for the bits above.
    QAbstractButton* GetButton(int bit) const;

    void SetTitle(const QString& title);
    QString Title() const;
    /// KxLabel::SetElideMode for the title.
    void SetTitleElideMode(Qt::TextElideMode mode);

Q_SIGNALS:
    void sigResizebleChanged(bool resizable);

protected:
    void RetranslateUi() override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    KxToolButton* MakeButton(Button bit, const QString& name);
    void ShowButtons();
    void ShowWindowState();
    void ToggleMaximized();

    KxLabel* m_title = nullptr;
    QMap<int, KxToolButton*> m_buttons;
    QWidget* m_watchedWindow = nullptr;
    int m_buttonBits = 0;
    bool m_resizable = false;
    std::optional<QPoint> m_pressPosition;
    std::optional<QPoint> m_dragOffset;
};
