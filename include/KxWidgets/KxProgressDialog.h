#pragma once

#include <KxWidgets/KxFramelessDialog.h>

class KxGlyphLabel;
class KxLabel;
class KxPushButton;
class QProgressBar;

/// Shows the progress of a job and lets the person cancel it. `rejected()` is emitted when its cancel button, its
/// window's close button or Escape closes it; hiding it ends `exec()` without that signal.
class KXWIDGETS_API KxProgressDialog : public KxFramelessDialog
{
    Q_OBJECT
public:
    /// How it was closed last; Escape counts as WindowClosed.
    enum CloseReason { NotClosed = 0, CancelButton = 1, WindowClosed = 2 };

    KxProgressDialog(const QString& title, QWidget* parent);
    ~KxProgressDialog() override;

    void SetRange(int minimum, int maximum);
    void SetProgress(int progress);
    /// The line above the bar. `icon` is the name of an icon of the style, or "None".
    void SetProgressTitle(const QString& title, const QString& icon);
    /// The line below the bar. `toolTip` may be empty.
    void SetInfoText(const QString& text, const QString& toolTip, Qt::Alignment alignment);
    QString InfoText() const;
    int GetCloseReason() const;

protected:
    void RetranslateUi() override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    KxGlyphLabel* m_icon = nullptr;
    KxLabel* m_title = nullptr;
    KxLabel* m_info = nullptr;
    QProgressBar* m_bar = nullptr;
    KxPushButton* m_cancel = nullptr;
    CloseReason m_closeReason = NotClosed;
};
