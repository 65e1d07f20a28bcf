#pragma once

#include <QPointer>
#include <QWidget>

class QApplication;

/// The ring around the control that has the focus, drawn over its window. It appears when the keyboard moved the focus
/// and disappears when a mouse button is pressed. Two properties of the control change it: "focusRingRect" (QRect, the
/// control's coordinates) is the part that the ring surrounds, and "focusRingRadius" (pixels) is the radius of that
/// part's corners.
///
/// While a control has the ring, Space presses it and the arrow keys move it even if the window uses these keys as
/// shortcuts. A person without a mouse could not use the control otherwise.
class KxFocusRing : public QObject
{
    Q_OBJECT
public:
    /// Serves every window of `application`, which owns it. A second call changes nothing.
    static void Install(QApplication& application);

    ~KxFocusRing() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit KxFocusRing(QApplication& application);

    void FollowFocus(QWidget* previous, QWidget* current);
    void Show(QWidget& target);
    void Hide();
    void Place();
    bool Needs(const QKeyEvent& event) const;

    class Ring;
    QPointer<QWidget> m_target;
    QPointer<Ring> m_ring;
    bool m_lastInputWasKey = false;
};
