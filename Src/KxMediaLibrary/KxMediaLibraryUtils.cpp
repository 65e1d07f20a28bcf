#include <KxMediaLibrary/KxMediaLibraryUtils.h>

#include <KxMedia/Read/KxMediaProbe.h>
#include <KxMedia/Read/KxVideoNames.h>

#include <QCoreApplication>
#include <QFileInfo>

QString KxMediaLibraryUtils::getImportVideoFilter()
{
    return KxVideoNameFilter();
}

std::optional<QString> KxMediaLibraryUtils::CheckVideoFile(const QString& path)
{
    const KxResult<KxMediaFacts> facts = KxProbeMedia(path, KxCancelToken());
    if (!facts) {
        return facts.Message();
    }
    if (!facts->video) {
        return QCoreApplication::translate("KxMediaLibraryUtils", "Cannot open %1: it has no moving picture.")
            .arg(QFileInfo(path).fileName());
    }
    return std::nullopt;
}
