#pragma once

#include <KxWidgets/KxUIStyle.h>

#include <QWidget>

/// One of the style's icons in one colour.
class KxGlyphLabel : public QWidget
{
    Q_OBJECT
public:
    KxGlyphLabel(int sidePx, QWidget* parent);
    ~KxGlyphLabel() override;

    /// For an unknown name the label is hidden.
    void SetGlyph(const QString& name, KxUIStyle::Role colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_name;
    KxUIStyle::Role m_colour = KxUIStyle::Role::Icon;
};
