#pragma once

#include <KxWidgets/KxWidget.h>

#include <optional>

/// A slider over a continuous range from 0 to its duration, with a handle ("chunk") that is a widget of its own. A
/// press beside the handle moves the handle there and begins a drag. While the slider has the focus, the arrow keys and
/// the wheel move it by 1, Page Up and Page Down by a tenth, Home and End to the ends; the signals are those of a drag.
/// The 0 of a vertical slider is at the bottom.
class KXWIDGETS_API KxToolSlider : public KxWidget
{
    Q_OBJECT
public:
    KxToolSlider(QWidget* parent, Qt::Orientation orientation);
    ~KxToolSlider() override;

    QWidget* chunkWidget() const;
    Qt::Orientation GetOrientation() const;
    /// The slider's extent along its orientation minus the handle's, in pixels.
    int GetWidth() const;
    int GetChunkWidth() const;
    int GetChunkHeight() const;

    double duration() const;
    /// A value beyond the new duration is limited to it, without a signal.
    void setDuration(double duration);
    double value() const;
    /// The value is limited to the range from 0 to the duration. With `emitSignal` a change emits sigValueChanged.
    void setValue(double value, bool emitSignal);

    /// Whether sigValueChangeStart and sigValueChangeEnd are also emitted for a press and release without a change;
    /// initially they are.
    void SetAwaysEmitValueChangeStartEnd(bool always);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void sigValueChanged(double value);
    /// Emitted before the first change of a drag, with the value before that change.
    void sigValueChangeStart(double value);
    /// Emitted at the end of a drag.
    void sigValueChangeEnd(double value);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    int Along(const QPoint& position) const;
    double ValueAt(int chunkStartPx) const;
    std::optional<double> ValueForKey(int key) const;
    void SizeChunk();
    void PlaceChunk();
    void DragTo(int alongPx);
    void StepTo(double value);

    const Qt::Orientation m_orientation;
    QWidget* m_chunk = nullptr;
    double m_duration = 1.0;
    double m_value = 0.0;
    bool m_alwaysEmitsStartEnd = true;
    bool m_pressed = false;
    bool m_changedSincePress = false;
    int m_grabOffsetPx = 0;
    int m_wheelRest = 0;
};
