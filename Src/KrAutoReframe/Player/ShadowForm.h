#pragma once

#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QWidget>

class QLabel;

/// The crop of the current frame, laid over the player's picture: everything outside the crop is dimmed, and the crop
/// can be dragged to another place inside the picture. It cannot be resized.
///
/// It is a window of its own, as only a window can lie translucent over a player that the system draws; so it does not
/// follow its parent, which has to place it. It never takes the focus from the dialog. User-interface thread.
class ShadowForm : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ShadowForm)

public:
    explicit ShadowForm(QWidget* parent);
    ~ShadowForm() override;

    /// Stands for the picture, in the middle of the window; whoever places the window gives it its size. Never null.
    QLabel* GetPictureLabel() const;

    /// x and width as fractions of the picture's width, y and height as fractions of its height. Setting it does not
    /// repaint.
    const QRectF& GetCropRect() const;
    void SetCropRect(const QRectF& rect);

    /// Whether the current frame is an edited one, which the outline's colour tells. Setting it does not repaint.
    bool IsEditedFrame() const;
    void SetEditedFrame(bool isEdited);

Q_SIGNALS:
    /// A drag has ended; also when every step of it was refused and `rect` is where it was.
    void sigRectFChanged(QRectF rect);
    /// The left button went down on the crop.
    void sigMousePressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// The crop in the window's pixels, a pixel smaller than it looks, so that the outline drawn on it covers it
    /// exactly. Products are truncated, so that the crop never reaches beyond the picture.
    QRect CropPixels() const;
    void ShowHoverCursor(const QPoint& position);
    /// Moves the crop by what the pointer moved since its last position. A step that would leave the picture on an axis
    /// is refused on that axis as a whole: the crop may stop a few pixels short of the border, but never moves by other
    /// than the pointer did. Both axes are tested with the crop as it was before the step.
    void DragTo(const QPoint& position);

    QLabel* m_pictureLabel = nullptr;
    QRectF m_cropRect;
    /// A drag has passed the start distance.
    bool m_dragging = false;
    /// The left button went down inside the crop.
    bool m_pressed = false;
    QPoint m_pressPosition;
    /// Goes on from drag to drag, a press does not reset it: a step counts from where the pointer was last seen while
    /// pressed. The moves below the start distance, which a hand makes first, bring it to the press.
    QPoint m_lastPosition;
    bool m_editedFrame = false;
};
