#pragma once

#include <KxCore/KxExport.h>

#include <QObject>
#include <QPoint>
#include <QTimer>

class QWidget;

/// Corrects what window managers under X11 do to a dialog.
///
/// Position: a manager first creates a frame in the corner of the screen and then places it. If Qt reads the position
/// in between, it keeps reporting the corner, and windows that are placed over the dialog appear elsewhere. Order: some
/// managers raise a dialog above its own tool windows when it is clicked, which hides them.
class KXWIDGETS_API KxWindowManagerCare : public QObject
{
    Q_OBJECT
public:
    /// Whether the windows of this platform (QGuiApplication::platformName()) are managed under X11. Elsewhere the
    /// corrections would do harm: raising windows at each click, moving a dialog out of the corner where it was put.
    static bool IsNeededOn(const QString& platform);

    /// Owned by `dialog`.
    explicit KxWindowManagerCare(QWidget& dialog);
    ~KxWindowManagerCare() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void HandleShow();
    /// Remembers the last position outside the corner, and restores it after a move into the corner.
    void HandleMove();
    /// Raises the tool windows of each dialog, then the dialogs above it: a dialog raises the dialog below it together
    /// with itself, but stays above the tool windows of that one.
    void RestoreOrder();
    /// Returns whether there are any.
    static bool RaiseToolWindows(const QWidget& owner);

    QWidget& m_dialog;
    QPoint m_position;
    /// Runs after the dialog was shown. Later, a dialog is in the corner because the person moved it there.
    QTimer m_settling;
};
