#pragma once

#include <QFlags>
#include <QWidget>

#include <functional>

/// Draws guides over a result. Covers its parent and lets the mouse through. User-interface thread.
class KrGuideOverlay : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrGuideOverlay)

public:
    enum Guide { SafeZones = 1, Thirds = 2, Headroom = 4 };
    Q_DECLARE_FLAGS(Guides, Guide)

    /// `result` gives the place of the result in the parent when it is painted; empty while none is shown.
    KrGuideOverlay(QWidget* parent, const std::function<QRectF()>& result);
    ~KrGuideOverlay() override;

    /// Initially none.
    void SetGuides(Guides guides);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PaintSafeZones(QPainter& painter, const QRectF& result) const;
    void PaintLines(QPainter& painter, const QList<QLineF>& lines) const;
    void PaintHeadroom(QPainter& painter, const QRectF& result) const;

    const std::function<QRectF()> m_result;
    Guides m_guides;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(KrGuideOverlay::Guides)
