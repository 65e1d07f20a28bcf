#include <KxWidgets/KxWidget.h>

#include <QEvent>

KxWidget::KxWidget(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
}

KxWidget::~KxWidget() = default;

void KxWidget::RetranslateUi() {}

void KxWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        RetranslateUi();
    }
    QWidget::changeEvent(event);
}
