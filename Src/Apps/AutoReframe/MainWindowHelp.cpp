#include <Apps/AutoReframe/MainWindow.h>

#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Help/AboutDialog.h>
#include <Apps/AutoReframe/Help/HelpDialog.h>
#include <Apps/AutoReframe/Store/LibraryConnection.h>

void MainWindow::ShowHelp()
{
    HelpDialog(this).DoModal();
}

void MainWindow::ShowAbout()
{
    QStringList libraries{QStringLiteral("Qt %1").arg(QLatin1String(qVersion()))};
    // The library waits for the backend, which takes some tenths of a second right after the start.
    if (const MediaBackend* const backend = m_backend.Get()) {
        libraries += backend->LibraryVersions();
    }
    LibraryConnection memory(QStringLiteral(":memory:"));
    if (const KxResult<QVariant> version = memory.Value(QStringLiteral("SELECT sqlite_version()"))) {
        libraries += QStringLiteral("SQLite %1").arg(version->toString());
    }
    AboutDialog(libraries, this).DoModal();
}
