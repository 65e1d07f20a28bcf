#include <KxModel/KxDetectorFiles.h>

#include <KxCore/KxConfigFile.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>

#include <algorithm>
#include <mutex>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxDetectorFiles)
};

/// The detector of people and animals has 15 MB, the others less than 2 MB.
constexpr qint64 MostBytes = 64 * 1024 * 1024;

QString ObjectDetectorName()
{
    return QStringLiteral("nanodet-g.onnx");
}

QString FaceDetectorName()
{
    return QStringLiteral("face_detection_yunet_2022mar.onnx");
}

QString PathIn(const QString& folder, const QString& name)
{
    return folder + QLatin1Char('/') + name;
}

bool HasNetworks(const QString& folder)
{
    return QFileInfo::exists(PathIn(folder, ObjectDetectorName())) ||
           QFileInfo::exists(PathIn(folder, FaceDetectorName()));
}

QStringList InstalledFolders()
{
    QStringList folders;
    // Without an application object the program's folder is unknown.
    const bool hasProgram = QCoreApplication::instance() != nullptr;
    const QString program = hasProgram ? QCoreApplication::applicationDirPath() : QString();
    if (hasProgram) {
        folders += QDir::cleanPath(program + QStringLiteral("/../share/auto-reframe/models"));
    }
    folders += QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("auto-reframe/models"),
                                         QStandardPaths::LocateDirectory);
    if (hasProgram && QFileInfo::exists(program + QStringLiteral("/../CMakeCache.txt"))) {
        folders += QDir::cleanPath(program + QStringLiteral("/../../models"));
    }
    return folders;
}

QByteArray ContentsOf(const QString& path)
{
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly) ? file.read(std::min(file.size(), MostBytes))
                                                             : QByteArray();
}

QString ReasonNotToRead(const QFileInfo& file)
{
    if (file.isDir()) {
        return Texts::tr("it is a folder");
    }
    if (!file.isFile()) {
        return Texts::tr("it is not a regular file");
    }
    if (!file.isReadable()) {
        return Texts::tr("it cannot be read");
    }
    if (file.size() > MostBytes) {
        return Texts::tr("it is too large for a detector");
    }
    return {};
}

/// The digits of a file's line in SHA256SUMS; empty if there is no such line.
QByteArray StatedChecksum(const QString& folder, const QString& name)
{
    const QString sums = PathIn(folder, QStringLiteral("SHA256SUMS"));
    if (!QFileInfo(sums).isFile()) {
        return {};
    }
    const QList<QByteArray> lines = ContentsOf(sums).split('\n');
    for (const QByteArray& line : lines) {
        if (line.mid(line.indexOf(' ')) == "  " + name.toUtf8()) {
            return line.left(line.indexOf(' '));
        }
    }
    return {};
}

/// Of the file as its makers publish it. The object detector is converted on the person's machine, so its bytes depend
/// on the version of the ONNX library there.
QByteArray PublishedChecksum(const QString& name)
{
    return name == FaceDetectorName() ? QByteArray("50ef07f702a31741ca46a4c0d947773b64143b9362780237bf0d427d6c79bab7")
                                      : QByteArray();
}

/// Why a network with this checksum is not used; empty if it is what was installed. OpenCV does not detect all damage,
/// and some of what it does not detect ends the program.
QString ChecksumProblem(const QString& folder, const QString& name, const QByteArray& checksum)
{
    const QByteArray stated = StatedChecksum(folder, name);
    if (stated.isEmpty() && checksum != PublishedChecksum(name)) {
        return Texts::tr("its checksum is unknown (no SHA256SUMS beside it names the file)");
    }
    if (!stated.isEmpty() && checksum != stated) {
        return Texts::tr("it is damaged (SHA256SUMS has another checksum)");
    }
    return {};
}

QString DetectorProblem(const QString& path, const QString& reason)
{
    return Texts::tr("Cannot use the detector %1: %2.").arg(path, reason);
}

/// The checksums of the files that were read before: hashing takes longer than all else that a decision on a known
/// video does.
class KnownChecksums
{
public:
    QByteArray Of(const QFileInfo& file, const QByteArray& contents)
    {
        const Entry entry{file.size(), file.lastModified(), {}};
        const std::lock_guard<std::mutex> lock(m_mutex);
        Entry& known = m_entries[file.absoluteFilePath()];
        if (known.checksum.isEmpty() || known.bytes != entry.bytes || known.modified != entry.modified) {
            known = entry;
            known.checksum = QCryptographicHash::hash(contents, QCryptographicHash::Sha256).toHex();
        }
        const QByteArray checksum = known.checksum;
        // A second change within the resolution of a file's time would go unnoticed.
        constexpr qint64 settledMs = 3000;
        if (known.modified.msecsTo(QDateTime::currentDateTime()) < settledMs) {
            m_entries.remove(file.absoluteFilePath());
        }
        return checksum;
    }

private:
    struct Entry {
        qint64 bytes = 0;
        QDateTime modified;
        QByteArray checksum;
    };
    std::mutex m_mutex;
    QHash<QString, Entry> m_entries; ///< guarded by the mutex
};

KnownChecksums& Checksums()
{
    static KnownChecksums checksums;
    return checksums;
}

/// Empty if the file is missing.
std::string ReadCascade(const QString& name, std::string& sha256)
{
    const QString path = KxDetectorFiles::FindCascade(name);
    const QByteArray contents = ContentsOf(path);
    if (!contents.isEmpty()) {
        sha256 = Checksums().Of(QFileInfo(path), contents).toStdString();
    }
    return contents.toStdString();
}

struct Network {
    std::string contents;
    KxUsedModel file;
};

/// Empty if the file is missing, and if it cannot be used, which is added to `problems`.
Network ReadNetwork(const QString& folder, const QString& name, QStringList& problems)
{
    const QString path = PathIn(folder, name);
    const QFileInfo file(path);
    if (!file.exists()) {
        return {};
    }
    QString reason = ReasonNotToRead(file);
    const QByteArray contents = reason.isEmpty() ? ContentsOf(path) : QByteArray();
    const QByteArray checksum = Checksums().Of(file, contents);
    if (reason.isEmpty()) {
        reason = ChecksumProblem(folder, name, checksum);
    }
    if (!reason.isEmpty()) {
        problems += DetectorProblem(path, reason);
        return {};
    }
    return {contents.toStdString(), {name.toStdString(), checksum.toStdString()}};
}

} // namespace

KxDetectorFiles::NetworkFolder KxDetectorFiles::FindNetworks(const QString& named)
{
    for (const QString& folder :
         {named, qEnvironmentVariable("KX_MODELS"), KxConfigFile::ReadAutoReframe(QStringLiteral("Models"))}) {
        if (folder == QLatin1String("none")) {
            return {{}, false};
        }
        if (!folder.isEmpty()) {
            return {folder, true};
        }
    }
    const QStringList installed = InstalledFolders();
    for (const QString& folder : installed) {
        if (HasNetworks(folder)) {
            return {folder, true};
        }
    }
    return {};
}

QString KxDetectorFiles::FolderProblem(const QString& path)
{
    if (HasNetworks(path)) {
        return {};
    }
    const QString reason = !QFileInfo::exists(path) ? Texts::tr("there is no such folder")
                           : !QFileInfo(path).isDir()
                               ? Texts::tr("it is not a folder")
                               : Texts::tr("it has neither %1 nor %2").arg(ObjectDetectorName(), FaceDetectorName());
    return Texts::tr("Cannot use the models in %1: %2.").arg(path, reason);
}

QString KxDetectorFiles::MissingNetworks()
{
    return Texts::tr("The detector of people and animals is not installed; the analysis works without it.");
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
        const QString path = PathIn(folder, fileName);
        if (QFileInfo(path).isFile()) {
            return path;
        }
    }
    return {};
}

KxDetectorFiles::Contents KxDetectorFiles::Read(const QString& networkFolder)
{
    Contents contents;
    KxFaceModels& faces = contents.models.faces;
    faces.frontalCascade = ReadCascade(QStringLiteral("haarcascade_frontalface_alt2.xml"), faces.frontalSha256);
    faces.profileCascade = ReadCascade(QStringLiteral("haarcascade_profileface.xml"), faces.profileSha256);
    if (networkFolder.isEmpty()) {
        return contents;
    }
    const QString problem = FolderProblem(networkFolder);
    if (!problem.isEmpty()) {
        contents.problems += problem;
        return contents;
    }
    Network objects = ReadNetwork(networkFolder, ObjectDetectorName(), contents.problems);
    contents.models.objectDetector = std::move(objects.contents);
    contents.models.objectDetectorFile = std::move(objects.file);
    Network face = ReadNetwork(networkFolder, FaceDetectorName(), contents.problems);
    faces.detector = std::move(face.contents);
    faces.detectorFile = std::move(face.file);
    return contents;
}

QString KxDetectorFiles::RefusedObjectDetector(const QString& networkFolder)
{
    return DetectorProblem(PathIn(networkFolder, ObjectDetectorName()),
                           Texts::tr("it is not NanoDet-g as OpenCV can run it"));
}

QString KxDetectorFiles::RefusedFaceDetector(const QString& networkFolder)
{
    return DetectorProblem(PathIn(networkFolder, FaceDetectorName()),
                           Texts::tr("it is not a face detector that OpenCV can run"));
}
