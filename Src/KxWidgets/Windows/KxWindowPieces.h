#pragma once

#include <QObject>
#include <QRect>
#include <QVector>

#include <functional>

class QWidget;

/// What a window without a frame has at its edge, over its content: small widgets that follow its size and are away
/// while it is maximised. User-interface thread.
class KxWindowPieces : public QObject
{
    Q_OBJECT
public:
    /// Where a piece lies in a window of that size.
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
