#include <KxMediaLibrary/KxMediaLibraryUtils.h>

#include <KxMedia/Read/KxMediaProbe.h>

#include <QCoreApplication>
#include <QFileInfo>

QString KxMediaLibraryUtils::getImportVideoFilter()
{
    return QStringLiteral("*.mp4;*.mov;*.m4v;*.mkv;*.webm;*.avi;*.wmv;*.asf;*.mts;*.m2ts;*.ts;*.mpg;*.mpeg;*.vob;"
                          "*.flv;*.3gp;*.3g2;*.ogv;*.mxf;*.dv;*.wtv;*.y4m;*.ivf;*.h264;*.GIF");
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
