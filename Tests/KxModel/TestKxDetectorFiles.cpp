#include <KxModel/KxDetectorFiles.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

/// Sets a variable of the environment for as long as it lives.
class Environment
{
public:
    Environment(const char* name, const QString& value)
        : m_name(name)
        , m_before(qgetenv(name))
    {
        qputenv(name, value.toLocal8Bit());
    }
    ~Environment()
    {
        if (m_before.isNull()) {
            qunsetenv(m_name);
        } else {
            qputenv(m_name, m_before);
        }
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    const char* m_name;
    const QByteArray m_before;
};

void WriteFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(contents), contents.size());
}

const QString ObjectDetector = QStringLiteral("nanodet-g.onnx");
const QString FaceDetector = QStringLiteral("face_detection_yunet_2022mar.onnx");

/// A folder of networks, and the two names under which they are found.
class KxDetectorFilesTest : public testing::Test
{
protected:
    QString Path(const QString& name) const { return folder.filePath(name); }
    QStringList Problems() const { return KxDetectorFiles::Read(folder.path()).problems; }
    QString ProblemWith(const QString& name, const QString& reason) const
    {
        return QStringLiteral("Cannot use the detector %1: %2.").arg(Path(name), reason);
    }

    const QTemporaryDir folder;
};

} // namespace

TEST(KxDetectorFiles, AFolderOfCascadesInTheEnvironmentComesFirst)
{
    const QTemporaryDir folder;
    const QString cascade = folder.filePath(QStringLiteral("haarcascade_frontalface_alt2.xml"));
    WriteFile(cascade, "the contents");
    const Environment named("KX_CASCADES", QStringLiteral("/no/such/folder") + QDir::listSeparator() + folder.path());
    EXPECT_EQ(KxDetectorFiles::CascadeFolders().mid(0, 2),
              QStringList({QStringLiteral("/no/such/folder"), folder.path()}));
    EXPECT_EQ(KxDetectorFiles::FindCascade(QStringLiteral("haarcascade_frontalface_alt2.xml")), cascade);
    const KxFaceModels faces = KxDetectorFiles::Read({}).models.faces;
    EXPECT_EQ(faces.frontalCascade, "the contents");
    EXPECT_EQ(faces.frontalSha256,
              QCryptographicHash::hash("the contents", QCryptographicHash::Sha256).toHex().toStdString());
}

TEST(KxDetectorFiles, AMissingCascadeIsNotFound)
{
    EXPECT_TRUE(KxDetectorFiles::FindCascade(QStringLiteral("no-such-cascade.xml")).isEmpty());
}

TEST_F(KxDetectorFilesTest, TheFolderThatAPersonNamesComesBeforeTheEnvironmentAndTheConfiguration)
{
    const QString config = Path(QStringLiteral("config.ini"));
    WriteFile(config, "[Auto%20Reframe]\nModels=/from/config\n");
    const Environment configuration("KX_CONFIG_FILE", config);
    {
        const Environment unset("KX_MODELS", QString());
        EXPECT_EQ(KxDetectorFiles::FindNetworks().path, QStringLiteral("/from/config"));
    }
    const Environment named("KX_MODELS", QStringLiteral("/from/environment"));
    EXPECT_EQ(KxDetectorFiles::FindNetworks().path, QStringLiteral("/from/environment"));
    EXPECT_EQ(KxDetectorFiles::FindNetworks(QStringLiteral("/from/option")).path, QStringLiteral("/from/option"));
}

TEST_F(KxDetectorFilesTest, NoneMeansThatNoNetworksAreWanted)
{
    const Environment named("KX_MODELS", QStringLiteral("none"));
    const KxDetectorFiles::NetworkFolder found = KxDetectorFiles::FindNetworks();
    EXPECT_TRUE(found.path.isEmpty());
    EXPECT_FALSE(found.isWanted);
    EXPECT_TRUE(KxDetectorFiles::FindNetworks(folder.path()).isWanted);
}

TEST_F(KxDetectorFilesTest, InstalledNetworksAreFoundInThePersonsData)
{
    const Environment unset("KX_MODELS", QString());
    const Environment data("XDG_DATA_HOME", folder.path());
    const QString models = Path(QStringLiteral("auto-reframe/models"));
    if (QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) != folder.path()) {
        GTEST_SKIP() << "this system does not take the folder for data from the environment";
    }
    ASSERT_TRUE(QDir().mkpath(models));
    EXPECT_NE(KxDetectorFiles::FindNetworks().path, models) << "an empty folder has no networks";
    WriteFile(models + QLatin1Char('/') + ObjectDetector, "x");
    EXPECT_EQ(KxDetectorFiles::FindNetworks().path, models);
}

TEST_F(KxDetectorFilesTest, WhatInstallModelsMakesIsFoundInABuildTree)
{
    const QString models = QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../../models"));
    if (!QFileInfo::exists(models + QLatin1Char('/') + ObjectDetector)) {
        GTEST_SKIP() << "needs the weights that Packaging/install-models installs in " << models.toStdString();
    }
    const Environment unset("KX_MODELS", QString());
    const Environment personsData("XDG_DATA_HOME", folder.path());
    const Environment systemsData("XDG_DATA_DIRS", folder.path());
    EXPECT_EQ(KxDetectorFiles::FindNetworks().path, models);
    const KxDetectorFiles::Contents contents = KxDetectorFiles::Read(models);
    EXPECT_TRUE(contents.problems.isEmpty());
    EXPECT_FALSE(contents.models.objectDetector.empty());
}

TEST_F(KxDetectorFilesTest, WithoutAFolderThereAreNoNetworks)
{
    const KxDetectorFiles::Contents contents = KxDetectorFiles::Read({});
    EXPECT_TRUE(contents.problems.isEmpty());
    EXPECT_TRUE(contents.models.objectDetector.empty());
    EXPECT_TRUE(contents.models.faces.detector.empty());
}

TEST_F(KxDetectorFilesTest, AFolderWithoutNetworksIsReported)
{
    EXPECT_EQ(Problems(), QStringList(QStringLiteral("Cannot use the models in %1: it has neither %2 nor %3.")
                                          .arg(folder.path(), ObjectDetector, FaceDetector)));
    EXPECT_EQ(
        KxDetectorFiles::FolderProblem(Path(QStringLiteral("missing"))),
        QStringLiteral("Cannot use the models in %1: there is no such folder.").arg(Path(QStringLiteral("missing"))));
    WriteFile(Path(QStringLiteral("file")), "x");
    EXPECT_EQ(KxDetectorFiles::FolderProblem(Path(QStringLiteral("file"))),
              QStringLiteral("Cannot use the models in %1: it is not a folder.").arg(Path(QStringLiteral("file"))));
}

TEST_F(KxDetectorFilesTest, NetworksThatCannotBeReadAreReported)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(FaceDetector));
    WriteFile(Path(ObjectDetector), "x");
    ASSERT_TRUE(QFile::resize(Path(ObjectDetector), 1LL << 40));
    EXPECT_EQ(Problems(), QStringList({ProblemWith(ObjectDetector, QStringLiteral("it is too large for a detector")),
                                       ProblemWith(FaceDetector, QStringLiteral("it is a folder"))}));
}

#if defined(Q_OS_UNIX)
TEST_F(KxDetectorFilesTest, ANetworkThatIsADeviceIsNotRead)
{
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), Path(ObjectDetector)));
    EXPECT_EQ(Problems(), QStringList(ProblemWith(ObjectDetector, QStringLiteral("it is not a regular file"))));
}
#endif

TEST_F(KxDetectorFilesTest, ANetworkWithoutAKnownChecksumIsNotUsed)
{
    const QString reason = QStringLiteral("its checksum is unknown (no SHA256SUMS beside it names the file)");
    WriteFile(Path(ObjectDetector), "abc");
    WriteFile(Path(FaceDetector), "abc");
    const QStringList both{ProblemWith(ObjectDetector, reason), ProblemWith(FaceDetector, reason)};
    EXPECT_EQ(Problems(), both) << "there is no SHA256SUMS";
    WriteFile(Path(QStringLiteral("SHA256SUMS")),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad  other-nanodet-g.onnx\n");
    const KxDetectorFiles::Contents contents = KxDetectorFiles::Read(folder.path());
    EXPECT_EQ(contents.problems, both) << "SHA256SUMS names another file";
    EXPECT_TRUE(contents.models.objectDetector.empty());
    EXPECT_TRUE(contents.models.faces.detector.empty());
}

TEST_F(KxDetectorFilesTest, ThePublishedFaceDetectorNeedsNoStatedChecksum)
{
    const QString published = QStringLiteral(KX_SOURCE_FOLDER "/../shared/models/") + FaceDetector;
    if (!QFile::copy(published, Path(FaceDetector))) {
        GTEST_SKIP() << "needs " << published.toStdString();
    }
    const KxDetectorFiles::Contents contents = KxDetectorFiles::Read(folder.path());
    EXPECT_TRUE(contents.problems.isEmpty());
    EXPECT_FALSE(contents.models.faces.detector.empty());
    EXPECT_EQ(contents.models.faces.detectorFile.name, FaceDetector.toStdString());
    EXPECT_EQ(contents.models.faces.detectorFile.sha256,
              "50ef07f702a31741ca46a4c0d947773b64143b9362780237bf0d427d6c79bab7");
}

TEST_F(KxDetectorFilesTest, ADamagedNetworkIsNotUsed)
{
    WriteFile(Path(ObjectDetector), "abc");
    WriteFile(Path(QStringLiteral("SHA256SUMS")),
              "0000000000000000000000000000000000000000000000000000000000000000  other-nanodet-g.onnx\n"
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad  nanodet-g.onnx\n");
    EXPECT_TRUE(Problems().isEmpty());
    WriteFile(Path(ObjectDetector), "abd");
    const KxDetectorFiles::Contents contents = KxDetectorFiles::Read(folder.path());
    EXPECT_EQ(contents.problems, QStringList(ProblemWith(ObjectDetector, QStringLiteral("it is damaged (SHA256SUMS has "
                                                                                        "another checksum)"))));
    EXPECT_TRUE(contents.models.objectDetector.empty());
}

TEST_F(KxDetectorFilesTest, ANetworkThatWasReplacedIsCheckedAgain)
{
    const auto settle = [this](int daysAgo) {
        QFile file(Path(ObjectDetector));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(
            file.setFileTime(QDateTime::currentDateTime().addDays(-daysAgo), QFileDevice::FileModificationTime));
    };
    WriteFile(Path(QStringLiteral("SHA256SUMS")),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad  nanodet-g.onnx\n");
    WriteFile(Path(ObjectDetector), "abc");
    settle(2);
    EXPECT_TRUE(Problems().isEmpty());
    EXPECT_TRUE(Problems().isEmpty()) << "its checksum is known now";
    WriteFile(Path(ObjectDetector), "abd");
    settle(1);
    EXPECT_EQ(Problems().size(), 1) << "another time";
    WriteFile(Path(ObjectDetector), "abcd");
    settle(1);
    EXPECT_EQ(Problems().size(), 1) << "another size";
    WriteFile(Path(ObjectDetector), "abc");
    settle(1);
    EXPECT_TRUE(Problems().isEmpty());
}
