#include <KxModel/KxDetectorFiles.h>

#include <QDir>
#include <QFile>
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
    {
        qputenv(name, value.toLocal8Bit());
    }
    ~Environment() { qunsetenv(m_name); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    const char* m_name;
};

void WriteFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(contents), contents.size());
}

QString ProblemOf(const QString& path)
{
    return KxDetectorFiles::Read(path).detectorProblem;
}

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
    EXPECT_EQ(KxDetectorFiles::Read({}).models.faces.frontalCascade, "the contents");
}

TEST(KxDetectorFiles, AMissingCascadeIsNotFound)
{
    EXPECT_TRUE(KxDetectorFiles::FindCascade(QStringLiteral("no-such-cascade.xml")).isEmpty());
}

TEST(KxDetectorFiles, ADetectorThatCannotBeReadIsReported)
{
    const QTemporaryDir folder;
    const QString missing = folder.filePath(QStringLiteral("missing.onnx"));
    EXPECT_EQ(ProblemOf(missing), QStringLiteral("Cannot use the face model %1: there is no such file.").arg(missing));
    EXPECT_EQ(ProblemOf(folder.path()),
              QStringLiteral("Cannot use the face model %1: it is a folder.").arg(folder.path()));
    const QString huge = folder.filePath(QStringLiteral("huge.onnx"));
    WriteFile(huge, "x");
    ASSERT_TRUE(QFile::resize(huge, 1LL << 40));
    EXPECT_EQ(ProblemOf(huge),
              QStringLiteral("Cannot use the face model %1: it is too large for a face detector.").arg(huge));
    EXPECT_TRUE(ProblemOf({}).isEmpty());
}

#if defined(Q_OS_UNIX)
TEST(KxDetectorFiles, ADetectorThatIsADeviceIsNotRead)
{
    EXPECT_EQ(ProblemOf(QStringLiteral("/dev/zero")),
              QStringLiteral("Cannot use the face model /dev/zero: it is not a regular file."));
}
#endif

TEST(KxDetectorFiles, AnyRegularFileIsReadForTheAnalysisToTry)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("model.onnx"));
    WriteFile(path, QByteArray("a\0b", 3));
    const KxDetectorFiles::Contents contents = KxDetectorFiles::Read(path);
    EXPECT_TRUE(contents.detectorProblem.isEmpty());
    EXPECT_EQ(contents.models.faces.detector, std::string("a\0b", 3));
}
