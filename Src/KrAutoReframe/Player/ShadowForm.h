#pragma once

#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QWidget>

class QLabel;
class QPainter;

/// The crop of the current frame, laid over the player's picture: everything outside the crop is dimmed, and the crop
/// can be dragged to another place inside the picture. It cannot be resized.
///
/// As a window it can lie over a player that the system draws. It does not follow its parent, which has to place it,
/// and never takes the focus from the dialog. As a child it lies over what the parent and its other children paint.
/// User-interface thread.
class ShadowForm : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ShadowForm)

public:
    enum class Kind { Window, Child };

    explicit ShadowForm(QWidget* parent, Kind kind = Kind::Window);
    ~ShadowForm() override;

    /// Represents the picture, in the middle of the form; the form's owner sets its size. Never null.
    QLabel* GetPictureLabel() const;

    /// x and width as fractions of the picture's width, y and height as fractions of its height. Setting it does not
    /// repaint.
    const QRectF& GetCropRect() const;
    void SetCropRect(const QRectF& rect);

    /// The crop in the form's pixels.
    QRect CropArea() const;

    /// Whether the current frame is an edited one; it determines the outline's colour. Setting it does not repaint.
    void SetEditedFrame(bool isEdited);

    /// A ring around the crop that shows where the keyboard focus is; initially there is none.
    void SetFocusShown(bool isShown);

Q_SIGNALS:
    /// A drag has ended; also when all of its steps were refused and `rect` is unchanged.
    void sigRectFChanged(QRectF rect);
    /// The left button went down on the crop.
    void sigMousePressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void PaintOverWindow(QPainter& painter, const QRect& crop) const;
    void PaintFocus(QPainter& painter, const QRect& crop) const;
    void PaintOverParent(QPainter& painter, const QRect& crop) const;
    /// The crop in the form's pixels, one pixel smaller than it appears, so that the outline drawn on it covers it
    /// exactly. Products are truncated, so the crop never extends beyond the picture.
    QRect CropPixels() const;
    void ShowHoverCursor(const QPoint& position);
    /// Moves the crop by the pointer's movement since its last position. A step that would leave the picture on an axis
    /// is refused entirely on that axis: the crop may stop a few pixels short of the border, but its movement always
    /// equals the pointer's. Both axes are tested with the crop before the step.
    void DragTo(const QPoint& position);

    QLabel* m_pictureLabel = nullptr;
    QRectF m_cropRect;
    /// A drag has passed the start distance.
    bool m_dragging = false;
    /// The left button went down inside the crop.
    bool m_pressed = false;
    QPoint m_pressPosition;
    /// Kept from drag to drag; a press does not reset it. A step counts from the pointer's last position while pressed;
    /// the moves below the start distance, which precede a drag by hand, update it.
    QPoint m_lastPosition;
    bool m_editedFrame = false;
    bool m_isFocusShown = false;
};
