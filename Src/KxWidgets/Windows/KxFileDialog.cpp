#include <KxWidgets/KxFileDialog.h>

#include <KxWidgets/Windows/KxFileBox.h>
#include <KxWidgets/Windows/KxFileFilter.h>

#include <QDir>
#include <QFileInfo>

namespace
{

KxFileDialog::Responder& CurrentResponder()
{
    static KxFileDialog::Responder responder;
    return responder;
}

// A folder that is not there would leave the chooser somewhere else, with the folder's name for a file's.
QString NearestFolder(const QString& folder)
{
    if (QDir::isRelativePath(folder)) {
        return QDir::homePath();
    }
    QFileInfo nearest(folder);
    while (!nearest.isDir() && !nearest.isRoot()) {
        nearest.setFile(nearest.path());
    }
    return nearest.filePath();
}

} // namespace

QStringList KxFileDialog::getOpenFileNames(QWidget* parent, const QString& caption, const QString& folder,
                                           const QString& filter)
{
    if (CurrentResponder()) {
        return CurrentResponder()({false, caption, folder, filter});
    }
    KxFileBox box(KxFileBox::Picks::Files, caption, NearestFolder(folder), parent);
    box.SetFilter(KxFileFilter::ToQt(filter));
    box.DoModal();
    return box.Chosen();
}

QString KxFileDialog::getExistingDirectory(QWidget* parent, const QString& caption, const QString& folder)
{
    if (CurrentResponder()) {
        return CurrentResponder()({true, caption, folder, QString()}).value(0);
    }
    KxFileBox box(KxFileBox::Picks::Folder, caption, NearestFolder(folder), parent);
    box.DoModal();
    return box.Chosen().value(0);
}

void KxFileDialog::SetResponder(Responder responder)
{
    CurrentResponder() = std::move(responder);
}
