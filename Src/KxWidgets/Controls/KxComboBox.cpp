#include <KxWidgets/KxComboBox.h>

#include <QAbstractItemView>
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

void KxComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}
