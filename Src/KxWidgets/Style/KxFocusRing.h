#pragma once

#include <QPointer>
#include <QWidget>

class QApplication;

/// The ring around the control that has the focus, drawn over its window: only where the keyboard brought the focus
/// there, and gone at the next press of a mouse button. A control says by its property "focusRingRect" (QRect, its own
/// coordinates) which part of it wears the ring and by "focusRingRadius" (pixels) how round that part is.
///
/// While a control wears the ring, Space presses it and the arrows move it even where these keys are shortcuts of the
/// window: someone who works without a mouse could otherwise not use it.
class KxFocusRing : public QObject
{
    Q_OBJECT
public:
    /// Works from now on in every window of `application`, which owns it. A second call changes nothing.
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
