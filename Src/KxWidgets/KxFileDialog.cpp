#include <KxWidgets/KxFileDialog.h>

#include "KxFileBox.h"
#include "KxFileFilter.h"

#include <QDir>

namespace
{

KxFileDialog::Responder& CurrentResponder()
{
    static KxFileDialog::Responder responder;
    return responder;
}

} // namespace

QStringList KxFileDialog::getOpenFileNames(QWidget* parent, const QString& caption, const QString& folder,
                                           const QString& filter)
{
    if (CurrentResponder()) {
        return CurrentResponder()({false, caption, folder, filter});
    }
    KxFileBox box(KxFileBox::Picks::Files, caption, folder, parent);
    box.SetFilter(KxFileFilter::ToQt(filter));
    box.DoModal();
    return box.Chosen();
}

QString KxFileDialog::getExistingDirectory(QWidget* parent, const QString& caption, const QString& folder)
{
    if (CurrentResponder()) {
        return CurrentResponder()({true, caption, folder, QString()}).value(0);
    }
    // A folder that is not there yet would leave the chooser somewhere else.
    const QString start = QDir(folder).exists() ? folder : QDir::homePath();
    KxFileBox box(KxFileBox::Picks::Folder, caption, start, parent);
    box.DoModal();
    return box.Chosen().value(0);
}

void KxFileDialog::SetResponder(Responder responder)
{
    CurrentResponder() = std::move(responder);
}
