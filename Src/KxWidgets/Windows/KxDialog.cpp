#include <KxWidgets/KxDialog.h>

#include <QEvent>

KxDialog::KxDialog(QWidget* parent)
    : QDialog(parent)
{
}

KxDialog::~KxDialog() = default;

int KxDialog::DoModal()
{
    return exec();
}

void KxDialog::RetranslateUi() {}

void KxDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        RetranslateUi();
    }
    QDialog::changeEvent(event);
}

void KxDialog::keyPressEvent(QKeyEvent* event)
{
    QDialog::keyPressEvent(event);
}

void KxDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
}
