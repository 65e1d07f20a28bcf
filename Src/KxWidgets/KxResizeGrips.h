#pragma once

#include <QObject>
#include <QVector>

class QWidget;

/// Invisible strips along the edges of a window without a frame, over everything else in it, by which the person
/// resizes it. The desktop does the resizing where it can. They are away while the window is maximised or may not be
/// resized.
class KxResizeGrips : public QObject
{
    Q_OBJECT
public:
    explicit KxResizeGrips(QWidget* window);
    ~KxResizeGrips() override;

    void SetActive(bool active);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Place();

    class Grip;
    QWidget* m_window;
    QVector<Grip*> m_grips;
    bool m_active = false;
};
