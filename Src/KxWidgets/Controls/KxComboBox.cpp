#include <KxWidgets/KxComboBox.h>

#include <QAbstractItemView>
#include <QCursor>
#include <QStyledItemDelegate>
#include <QWheelEvent>

KxComboBox::KxComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    // The default delegate of QComboBox ignores the style sheet's rules for items.
    setItemDelegate(new QStyledItemDelegate(this));
    QWidget* popup = view()->window();
    popup->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    popup->setAttribute(Qt::WA_TranslucentBackground);
}

KxComboBox* KxComboBox::CreateComboBox(QWidget* parent)
{
    return new KxComboBox(parent);
}

KxComboBox::~KxComboBox() = default;

void KxComboBox::hidePopup()
{
    QComboBox::hidePopup();
    // While the list has the mouse, the box is not told that the mouse has left it.
    if (!rect().contains(mapFromGlobal(QCursor::pos()))) {
        setAttribute(Qt::WA_UnderMouse, false);
        update();
    }
}

void KxComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}
