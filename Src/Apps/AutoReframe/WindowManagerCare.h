#pragma once

#include <QHash>
#include <QObject>
#include <QPoint>

class QApplication;
class QWidget;

/// Makes good what window managers do to dialogs under X11. Works in every window of the program.
///
/// Place: a manager first makes a frame in the corner of the screen and then places it. When Qt asks in between, it
/// holds the corner for the window's place from then on, and whatever is laid over the window by its place lands
/// elsewhere. Order: some managers raise a dialog over its own tool windows when it is clicked, and so hide what lies
/// over it.
class WindowManagerCare : public QObject
{
    Q_OBJECT
public:
    /// Owned by `application`.
    explicit WindowManagerCare(QApplication& application);
    ~WindowManagerCare() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Remember(QWidget& window);
    void PutBack(QWidget& window);
    static void PutInOrder(QWidget& dialog);
    /// Whether there are any.
    static bool RaiseToolWindows(const QWidget& owner);

    QHash<const QWidget*, QPoint> m_places;
};
