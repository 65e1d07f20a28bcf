#pragma once

#include <QPointF>
#include <QRectF>
#include <QWidget>

#include <optional>

/// A box around something in the picture, which the person draws with the right button or adjusts by its handles. It
/// covers the picture on the overlay, and lets everything through that does not touch the box. Places are fractions of
/// the picture. User-interface thread.
class KrSubjectBox : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrSubjectBox)

public:
    explicit KrSubjectBox(QWidget* overlay);
    ~KrSubjectBox() override;

    /// Empty while there is none.
    const QRectF& Box() const { return m_box; }
    /// Limited to the picture; an empty one removes the box.
    void SetBox(const QRectF& box);
    bool IsInBox(const QPoint& position) const;
    /// Shows that the box around this place is being looked for; nothing ends that.
    void SetSought(const std::optional<QPointF>& place);
    bool IsSeeking() const { return m_sought.has_value(); }
    QPointF FractionAt(const QPoint& position) const;

Q_SIGNALS:
    /// The person has moved the box or one of its edges.
    void sigAdjusted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void ShowOrHide();
    void PaintSought();
    void PaintBox();
    QRectF BoxPixels() const;
    /// The edges that are held at a position; all of them inside the box, none outside.
    Qt::Edges EdgesAt(const QPoint& position) const;
    void ShowCursor(const QPoint& position);

    QRectF m_box;
    std::optional<QPointF> m_sought;
    Qt::Edges m_held;
    QRectF m_boxAtPress;
    QPointF m_pressedAt;
};
