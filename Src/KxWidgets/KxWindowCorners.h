#pragma once

#include <QObject>
#include <QVector>

class QWidget;

/// Rounds the corners of a translucent window without a frame, over whatever its children have painted there, and draws
/// the bend of its border. Away while the window is maximised.
class KxWindowCorners : public QObject
{
    Q_OBJECT
public:
    explicit KxWindowCorners(QWidget* window);
    ~KxWindowCorners() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Place();

    class CornerPiece;
    QWidget* m_window;
    QVector<CornerPiece*> m_pieces;
};
