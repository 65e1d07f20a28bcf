#include <KxWidgets/Windows/KxFileResponder.h>

#include <KxWidgets/Windows/KxFileBox.h>
#include <KxWidgets/Windows/KxFileFilter.h>
#include <KxWidgets/Windows/KxNearestFolder.h>

namespace
{

KxFileDialog::Responder& CurrentResponder()
{
    static KxFileDialog::Responder responder;
    return responder;
}

KxFileDialog::FileCheck& CurrentCheck()
{
    static KxFileDialog::FileCheck check;
    return check;
}

// QFileDialog opens another folder in place of a missing one and takes the missing folder's name for that of a file.
QString FolderToOpen(const QString& folder)
{
    return KxNearestFolder::To(folder, &KxNearestFolder::IsFolder);
}

QStringList ChooseFiles(QWidget* parent, const KxFileDialog::Shown& request, const KxFileDialog::FileCheck& check)
{
    if (CurrentResponder()) {
        return CurrentResponder()(request);
    }
    KxFileBox box(KxFileBox::Picks::Files, request.caption, FolderToOpen(request.folder), parent);
    box.SetFilter(KxFileFilter::ToQt(request.filter));
    box.SetFileCheck(check);
    box.DoModal();
    return box.Chosen();
}

} // namespace

QStringList KxFileDialog::getOpenFileNames(QWidget* parent, const QString& caption, const QString& folder,
                                           const QString& filter)
{
    return ChooseFiles(parent, {false, caption, folder, filter}, CurrentCheck());
}

QStringList KxFileDialog::GetOpenFileNamesUnchecked(QWidget* parent, const QString& caption, const QString& folder,
                                                    const QString& filter)
{
    return ChooseFiles(parent, {false, caption, folder, filter}, {});
}

void KxFileDialog::SetFileCheck(FileCheck check)
{
    CurrentCheck() = std::move(check);
}

QString KxFileDialog::getExistingDirectory(QWidget* parent, const QString& caption, const QString& folder)
{
    if (CurrentResponder()) {
        return CurrentResponder()({true, caption, folder, QString()}).value(0);
    }
    KxFileBox box(KxFileBox::Picks::Folder, caption, FolderToOpen(folder), parent);
    box.DoModal();
    return box.Chosen().value(0);
}

void KxFileDialog::SetResponder(Responder responder)
{
    CurrentResponder() = std::move(responder);
}
