#pragma once

#include <QHash>
#include <QObject>
#include <QPoint>

class QApplication;
class QWidget;

/// Puts right where a new window believes to be. Under X11 a window manager first makes a frame in the corner of the
/// screen and then places it; when Qt asks in between, it holds the corner for the window's place from then on, and
/// whatever is laid over the window by its place on the screen lands elsewhere. Works in every window of the program.
class WindowPlaceKeeper : public QObject
{
    Q_OBJECT
public:
    /// Owned by `application`.
    explicit WindowPlaceKeeper(QApplication& application);
    ~WindowPlaceKeeper() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Remember(QWidget& window);
    void PutBack(QWidget& window);

    QHash<const QWidget*, QPoint> m_places;
};
