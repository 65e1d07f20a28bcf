#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>

class QWidget;

/// Makes good what window managers do to a dialog under X11.
///
/// Place: a manager first makes a frame in the corner of the screen and then places it. When Qt asks in between, it
/// holds the corner for the dialog's place from then on, and whatever is laid over the dialog by its place lands
/// elsewhere. Order: some managers raise a dialog over its own tool windows when it is clicked, and so hide what lies
/// over it.
class KxWindowManagerCare : public QObject
{
    Q_OBJECT
public:
    /// Owned by `dialog`.
    explicit KxWindowManagerCare(QWidget& dialog);
    ~KxWindowManagerCare() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void HandleShow();
    /// Keeps the last place that is none of the manager's corner, and takes it up again after the corner.
    void HandleMove();
    /// The tool windows of each dialog, then the dialogs over it: a dialog over another one brings that one up with
    /// itself, yet stays above its tool windows.
    void PutInOrder();
    /// Whether there are any.
    static bool RaiseToolWindows(const QWidget& owner);

    QWidget& m_dialog;
    QPoint m_place;
    /// Runs from when the dialog was shown until a dialog in the corner was put there by the person.
    QTimer m_settled;
};
