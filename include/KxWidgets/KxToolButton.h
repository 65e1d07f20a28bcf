#pragma once

#include <KxCore/KxExport.h>

#include <QToolButton>

/// A button with an icon. The style sheet gives it its icon by its object name, through the property "glyph". Without
/// an accessible name of its own it goes by its tooltip, without the shortcut in parentheses at the end.
class KXWIDGETS_API KxToolButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(QString glyph READ Glyph WRITE SetGlyph)
public:
    /// `name` becomes the object name, and is not shown as a text.
    static KxToolButton* CreateToolButton(QWidget* parent, const QString& name);
    ~KxToolButton() override;

    /// An icon of the style's family by its name, painted in icon()'s place; empty shows icon() again.
    void SetGlyph(const QString& name);
    QString Glyph() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    explicit KxToolButton(QWidget* parent);

    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintIcon(QPainter& painter, const QRect& area) const;

    QString m_glyph;
    QString m_nameFromToolTip;
};
