// A bare Qt Widgets window of the desktop program's size; the process ends when it is painted.

#include <QApplication>
#include <QPaintEvent>
#include <QWidget>

#include <cstdlib>

namespace
{

class Window : public QWidget
{
protected:
    void paintEvent(QPaintEvent* event) override
    {
        QWidget::paintEvent(event);
        QMetaObject::invokeMethod(
            this, [] { std::_Exit(0); }, Qt::QueuedConnection);
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Window window;
    window.resize(1180, 740);
    window.show();
    return QApplication::exec();
}
