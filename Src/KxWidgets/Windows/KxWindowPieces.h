#pragma once

#include <QObject>
#include <QRect>
#include <QVector>

#include <functional>

class QWidget;

/// Small widgets at the edges of a window without a frame, above its content. They follow its size and are hidden while
/// it is maximised. User-interface thread.
class KxWindowPieces : public QObject
{
    Q_OBJECT
public:
    /// Returns the rectangle of a piece in a window of size `window`.
    using Area = std::function<QRect(const QSize& window)>;

    /// Child of `window`.
    explicit KxWindowPieces(QWidget* window);
    ~KxWindowPieces() override;

    /// `piece` is a child of the window.
    void Add(QWidget* piece, Area area);
    void SetActive(bool active);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Piece {
        QWidget* widget;
        Area area;
    };

    void Place();

    QWidget* m_window;
    QVector<Piece> m_pieces;
    bool m_active = true;
};
