#pragma once

#include <KxWidgets/KxToolSlider.h>

#include <QColor>
#include <QList>
#include <QMutex>
#include <QString>

class QHelpEvent;

/// The player's position slider with a mark at each edited frame, and a coloured disc on its handle while the current
/// frame is one. Range and value count frames. User-interface thread; the duration is above 0.
///
/// The marks are painted on a widget between slider and handle: the slider's own painting is unchanged and the handle
/// stays on top.
class KrAutoReframePlayerToolSlider : public KxToolSlider
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrAutoReframePlayerToolSlider)

public:
    /// The style sheet distinguishes the two kinds by the property "sliderType": "normal" or "small".
    static KrAutoReframePlayerToolSlider* CreateNormalSlider(QWidget* parent, Qt::Orientation orientation);
    static KrAutoReframePlayerToolSlider* CreateSmallSlider(QWidget* parent, Qt::Orientation orientation);

    KrAutoReframePlayerToolSlider(QWidget* parent, Qt::Orientation orientation);
    ~KrAutoReframePlayerToolSlider() override;

    /// Replaces the marks; an empty list causes no repaint. If the media's last frame is among them, the duration is
    /// added as another entry, so that the slider's end has a mark that the searches find.
    void SetEditFrames(const QList<uint>& frames);

    /// A shot that is shown behind the marks: a tick where it begins. A doubtful one has a tick of another colour and a
    /// line along its length, until it was seen.
    struct ShotMark {
        enum class Kind { Sure, Doubtful, Seen };

        /// Frames; `end` is the one after the last one.
        qint64 first = 0;
        qint64 end = 0;
        Kind kind = Kind::Sure;
        QString toolTip;
    };
    /// In order and without gaps. Initially there are none.
    void SetShots(const QList<ShotMark>& shots);

    /// A range of frames in which the person decided, as a line along the slider's upper edge.
    struct ChoiceMark {
        enum class Kind {
            Followed, ///< the crop follows something
            Other,    ///< another choice
            Lost,     ///< what a choice follows was lost
            Doubted   ///< it may have been lost
        };

        /// Frames; `end` is the one after the last one.
        qint64 first = 0;
        qint64 end = 0;
        Kind kind = Kind::Other;
        QString toolTip;
    };
    /// Later ones cover earlier ones. Initially there are none.
    void SetChoices(const QList<ChoiceMark>& choices);
    /// Ranges in which a choice does not hold, or may not, over the choices; later ones cover earlier ones. Initially
    /// there are none.
    void SetGaps(const QList<ChoiceMark>& gaps);

    /// Widths in pixels.
    void SetMarkStyle(const QColor& penColor, double penWidth, const QColor& fillColor, int markWidth);
    /// Only `editedColor` is painted; the others are stored for handles without a style sheet.
    void SetChunkStyle(const QColor& color1, int width, const QColor& color2, const QColor& editedColor);

public Q_SLOTS:
    /// Appends the frame to the list, or moves it to the end.
    void slotOnAddOneEdit(uint frameIndex);
    void slotOnDelOneEdit(uint frameIndex);
    void slotOnDelAllEdit();
    /// Moves the slider to the last edited frame before its position. Unlike the forward search, it logs nothing if
    /// there is none.
    void slotOnToPreEdit();
    /// Moves the slider to the first edited frame after its position.
    void slotOnToNextEdit();
    /// Does not repaint: a change of the frame also moves the handle, which repaints.
    void slotRealCurrentFrame(uint frameIndex);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void PaintChunk();
    void PaintMarks();
    void PaintShots(QPainter& painter) const;
    void PaintChoices(QPainter& painter) const;
    void PaintChoice(QPainter& painter, const ChoiceMark& choice) const;
    QColor ColourOf(ChoiceMark::Kind kind) const;
    /// Where the handle's centre is at `frame`, pixels along the slider.
    double CentreAt(qint64 frame) const;
    bool ShowShotToolTip(const QHelpEvent& event) const;
    /// Left edge of the mark of `frame`, pixels: where the handle's centre would be.
    int MarkPosition(uint frame) const;
    void MoveToEdit(uint frame);

    QWidget* m_markWidget = nullptr;
    QList<uint> m_editFrames;
    QList<ShotMark> m_shots;
    QList<ChoiceMark> m_choices;
    QList<ChoiceMark> m_gaps;
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
