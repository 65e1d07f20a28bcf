#pragma once

#include <KxWidgets/KxToolSlider.h>

#include <QColor>
#include <QList>
#include <QMutex>

/// The player's position slider with a mark at each edited frame, and a coloured disc on its handle while the current
/// frame is one. Range and value count frames. User-interface thread; the duration is above 0.
///
/// The marks stand on a widget of their own between slider and handle: the slider paints itself as ever, and the handle
/// stays on top.
class KrAutoReframePlayerToolSlider : public KxToolSlider
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrAutoReframePlayerToolSlider)

public:
    /// The style sheet tells the two kinds apart by the property "sliderType": "normal" or "small".
    static KrAutoReframePlayerToolSlider* CreateNormalSlider(QWidget* parent, Qt::Orientation orientation);
    static KrAutoReframePlayerToolSlider* CreateSmallSlider(QWidget* parent, Qt::Orientation orientation);

    KrAutoReframePlayerToolSlider(QWidget* parent, Qt::Orientation orientation);
    ~KrAutoReframePlayerToolSlider() override;

    /// Replaces the marks; none are taken without a repaint. When the media's last frame is among them the duration
    /// itself joins the list as one more entry, so that there is a mark, and a stop for the search, at the slider's
    /// very end.
    void SetEditFrames(const QList<uint>& frames);

    /// Widths in pixels.
    void SetMarkStyle(const QColor& penColor, double penWidth, const QColor& fillColor, int markWidth);
    /// Only `editedColor` is painted with so far; the others are kept for handles that are drawn without a style sheet.
    void SetChunkStyle(const QColor& color1, int width, const QColor& color2, const QColor& editedColor);

public Q_SLOTS:
    /// Adds the frame at the end of the list, or moves it there.
    void slotOnAddOneEdit(uint frameIndex);
    void slotOnDelOneEdit(uint frameIndex);
    void slotOnDelAllEdit();
    /// Moves the slider to the last edited frame before its position; unlike the search ahead it logs only what it
    /// found, as standing at the first edited frame is nothing to look into.
    void slotOnToPreEdit();
    /// Moves the slider to the first edited frame after its position.
    void slotOnToNextEdit();
    /// Repaints nothing: whoever changes the frame moves the handle, and that does.
    void slotRealCurrentFrame(uint frameIndex);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void PaintChunk();
    void PaintMarks();
    /// Left edge of the mark of `frame`, pixels: where the handle's centre would be.
    int MarkPosition(uint frame) const;
    void MoveToEdit(uint frame);

    QWidget* m_markWidget = nullptr;
    QList<uint> m_editFrames;
    double m_markPenWidth = 0.5;
    QColor m_markPenColor{0, 0, 0, 61};
    int m_markWidth = 4;
    QColor m_markFillColor{255, 139, 85, 255};
    int m_chunkStyleWidth = 1;
    QColor m_chunkColor1{202, 202, 202, 255};
    QColor m_chunkColor2{202, 202, 202, 255};
    QColor m_editedChunkColor{255, 174, 52, 255};
    /// Pixels; 0 until the first resize.
    double m_chunkRadius = 0.0;
    uint m_currentFrame = 0;
    /// Guards the replacement of the edit frames.
    QMutex m_mutex;
};
