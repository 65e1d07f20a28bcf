#pragma once

#include <KxWidgets/KxDialog.h>

class KxDialogButtonBar;
class KxResizeGrips;
class KxTopLevelWindowTitleBar;
class KxWindowCorners;
class QVBoxLayout;

/// A dialog that draws its own frame: title bar, content, button bar, a border and, if the desktop has a compositor,
/// round corners. It can be moved by its title bar, resized at its edges (unless its size is fixed) and minimised. A
/// minimised dialog is restored together with its parent's window. It does not handle close events itself.
class KXWIDGETS_API KxFramelessDialog : public KxDialog
{
    Q_OBJECT
public:
    /// With `fixedSize` the person cannot resize it. With `centred` it opens in the middle of its parent's window.
    KxFramelessDialog(const QString& title, QWidget* parent, bool fixedSize, bool centred);
    ~KxFramelessDialog() override;

    KxTopLevelWindowTitleBar* GetTitleBar() const;
    KxDialogButtonBar* GetButtonBar() const;
    /// The dialog takes ownership of `content` and deletes its previous content.
    void SetContentWidget(QWidget* content);
    void SetBottomBarVisible(bool visible);
    /// With `elide` a long title is shortened to the available width.
    void SetTitleName(const QString& title, bool elide);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void FollowWindowState();
    void MoveToCentre();
    void FocusContent();

    KxTopLevelWindowTitleBar* m_titleBar = nullptr;
    KxDialogButtonBar* m_buttonBar = nullptr;
    QWidget* m_content = nullptr;
    QVBoxLayout* m_layout = nullptr;
    KxResizeGrips* m_grips = nullptr;
    KxWindowCorners* m_corners = nullptr;
    const bool m_centred;
};
