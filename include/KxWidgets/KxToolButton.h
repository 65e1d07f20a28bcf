#pragma once

#include <KxCore/KxExport.h>

#include <QToolButton>

class QMenu;

/// A button with an icon. The style sheet sets the icon by the button's object name, through the property "glyph". The
/// default accessible name is the tooltip without the shortcut in parentheses at its end.
class KXWIDGETS_API KxToolButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(QString glyph READ Glyph WRITE SetGlyph)
public:
    /// `name` becomes the object name; it is not shown.
    static KxToolButton* CreateToolButton(QWidget* parent, const QString& name);
    ~KxToolButton() override;

    /// Paints the style's icon of that name in place of icon(). With an empty name icon() is painted again.
    void SetGlyph(const QString& name);
    QString Glyph() const;

    /// The button opens `menu`: once that is closed, it looks hovered only if the mouse is over it. Menus of setMenu()
    /// need no call.
    void FollowMenu(const QMenu& menu);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    explicit KxToolButton(QWidget* parent);

    void actionEvent(QActionEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintIcon(QPainter& painter, const QRect& area) const;

    QString m_glyph;
    QString m_nameFromToolTip;
};
