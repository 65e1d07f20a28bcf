#pragma once

#include <QObject>
#include <QPointF>

class KrAutoReframePlayerView;
class QKeyEvent;

/// Makes the picture reachable by the keyboard: while it has the focus, the arrow keys move the crop by a pixel of the
/// video, with Shift by 10, as far as the picture. The crop is edited when the key is released, so a key that is held
/// is one edit. While the crop is not shown, the keys do what they do elsewhere. User-interface thread.
class KrCropKeys : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrCropKeys)

public:
    /// `view` outlives it.
    KrCropKeys(KrAutoReframePlayerView& view, QObject* parent);
    ~KrCropKeys() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsCropShown() const;
    /// In pixels of the video; null for other keys.
    static QPoint StepOf(const QKeyEvent& event);
    bool HandleKey(const QKeyEvent& event);
    void Move(const QPoint& stepPx);
    void Commit();

    KrAutoReframePlayerView& m_view;
    bool m_hasMoved = false;
};
