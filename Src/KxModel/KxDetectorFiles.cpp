#include <KxModel/KxDetectorFiles.h>

#include <KxCore/KxConfigFile.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace
{

/// The detectors that OpenCV's model zoo offers have less than 1 MB, a cascade has up to 2 MB.
constexpr qint64 MostBytes = 64 * 1024 * 1024;

std::string ContentsOf(const QString& path)
{
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly) ? file.read(MostBytes).toStdString() : std::string();
}

QString ReasonNotToRead(const QFileInfo& file)
{
    if (!file.exists()) {
        return QStringLiteral("there is no such file");
    }
    if (file.isDir()) {
        return QStringLiteral("it is a folder");
    }
    if (!file.isFile()) {
        return QStringLiteral("it is not a regular file");
    }
    if (!file.isReadable()) {
        return QStringLiteral("it cannot be read");
    }
    if (file.size() > MostBytes) {
        return QStringLiteral("it is too large for a face detector");
    }
    return {};
}

} // namespace

QString KxDetectorFiles::FindDetector()
{
    const QString named = KxConfigFile::ReadAutoReframe(QStringLiteral("FaceModel"));
    if (!named.isEmpty()) {
        return named;
    }
    return QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                  QStringLiteral("auto-reframe/face_detection_yunet_2022mar.onnx"));
}

QStringList KxDetectorFiles::CascadeFolders()
{
    QStringList folders = qEnvironmentVariable("KX_CASCADES").split(QDir::listSeparator(), Qt::SkipEmptyParts);
#if defined(KX_CASCADE_FOLDER)
    folders += QStringLiteral(KX_CASCADE_FOLDER);
#endif
    // Without an application object the program's folder is unknown.
    if (QCoreApplication::instance() != nullptr) {
        const QString share = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/");
        for (const char* folder : {"opencv4/haarcascades", "opencv4/lbpcascades", "haarcascades"}) {
            folders += QDir::cleanPath(share + QLatin1String(folder));
        }
    }
    return folders;
}

QString KxDetectorFiles::FindCascade(const QString& fileName)
{
    for (const QString& folder : CascadeFolders()) {
        const QString path = folder + QLatin1Char('/') + fileName;
        if (QFileInfo(path).isFile()) {
            return path;
        }
    }
    return {};
}

KxDetectorFiles::Contents KxDetectorFiles::Read(const QString& detectorPath)
{
    Contents contents;
    contents.models.faces.frontalCascade = ContentsOf(FindCascade(QStringLiteral("haarcascade_frontalface_alt2.xml")));
    contents.models.faces.profileCascade = ContentsOf(FindCascade(QStringLiteral("haarcascade_profileface.xml")));
    if (detectorPath.isEmpty()) {
        return contents;
    }
    const QString reason = ReasonNotToRead(QFileInfo(detectorPath));
    if (reason.isEmpty()) {
        contents.models.faces.detector = ContentsOf(detectorPath);
    } else {
        contents.detectorProblem = DetectorProblem(detectorPath, reason);
    }
    return contents;
}

QString KxDetectorFiles::DetectorProblem(const QString& path, const QString& reason)
{
    return QStringLiteral("Cannot use the face model %1: %2.").arg(path, reason);
}
