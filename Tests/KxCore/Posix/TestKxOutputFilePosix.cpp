#include <Tests/KxCore/OutputFileTest.h>

#include <KxCore/KxDir.h>
#include <KxCore/KxOutputFile.h>

#include <cerrno>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

/// What was synced and renamed, in order: "sync a.part", "rename a.part a".
std::vector<std::string> g_calls;

std::string NameOf(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

} // namespace

// These override the C library's functions of the same names.
extern "C" {
__attribute__((visibility("default"))) int fsync(int file)
{
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    std::vector<char> path(4096);
    const ssize_t length = ::readlink(link.c_str(), path.data(), path.size());
    g_calls.push_back("sync " + NameOf(std::string(path.data(), static_cast<std::size_t>(length))));
    return static_cast<int>(::syscall(SYS_fsync, file));
}

__attribute__((visibility("default"))) int rename(const char* from, const char* to)
{
    g_calls.push_back("rename " + NameOf(from) + ' ' + NameOf(to));
    return ::renameat(AT_FDCWD, from, AT_FDCWD, to);
}
}

namespace
{

/// Sets the process's umask for its lifetime.
class Umask
{
public:
    explicit Umask(mode_t mask)
        : m_before(::umask(mask))
    {
    }
    ~Umask() { ::umask(m_before); }
    Q_DISABLE_COPY_MOVE(Umask)

private:
    const mode_t m_before;
};

mode_t ModeOf(const QString& path)
{
    struct stat facts {
    };
    return ::stat(QFile::encodeName(path).constData(), &facts) == 0 ? facts.st_mode & 0777 : 0;
}

/// A file system with room for `pages` pages of 4 KiB, at `folder` for its lifetime.
class TinyDisk
{
public:
    TinyDisk(const QString& folder, int pages)
        : m_folder(QFile::encodeName(folder))
    {
        const QByteArray options = "nr_inodes=8,size=" + QByteArray::number(pages * 4096);
        m_isMounted = ::mount("none", m_folder.constData(), "tmpfs", 0, options.constData()) == 0;
    }
    ~TinyDisk()
    {
        if (m_isMounted) {
            ::umount(m_folder.constData());
        }
    }
    Q_DISABLE_COPY_MOVE(TinyDisk)
    bool IsMounted() const { return m_isMounted; }

private:
    const QByteArray m_folder;
    bool m_isMounted = false;
};

} // namespace

TEST_F(KxOutputFileTest, ADeviceIsNotReplaced)
{
    const auto output = KxOutputFile::Create(QStringLiteral("/dev/null"));
    ASSERT_FALSE(output);
    EXPECT_EQ(output.Message(), QStringLiteral("Cannot write /dev/null: it is not a regular file."));
}

TEST_F(KxOutputFileTest, ANewFileHasThePermissionsThatTheUmaskLeaves)
{
    for (const mode_t mask : {0000U, 0022U, 0027U, 0077U}) {
        const Umask umask(mask);
        for (const auto existing : {KxOutputFile::Existing::AddNumber, KxOutputFile::Existing::Replace}) {
            const auto written = KxOutputFile::Write(Path("a.txt"), "x", existing);
            ASSERT_TRUE(written);
            EXPECT_EQ(ModeOf(*written), 0666 & ~mask) << mask;
        }
    }
}

TEST_F(KxOutputFileTest, TheFileIsSyncedBeforeTheRenameAndItsFolderAfterIt)
{
    auto output = KxOutputFile::Create(Path("a.txt"));
    ASSERT_TRUE(output);
    const std::string part = NameOf(QFile::encodeName((*output)->TemporaryPath()).toStdString());
    const std::string folder = NameOf(QFile::encodeName(m_folder.path()).toStdString());
    g_calls.clear();
    ASSERT_TRUE((*output)->Commit(KxOutputFile::Existing::AddNumber));
    EXPECT_EQ(g_calls, (std::vector<std::string>{"sync " + part, "rename " + part + " a.txt", "sync " + folder}));
}

TEST_F(KxOutputFileTest, OnlyPartsAreRemoved)
{
    ASSERT_TRUE(KxOutputFile::Write(Path("kept.txt"), "x", KxOutputFile::Existing::AddNumber));
    ASSERT_TRUE(QFile::link(Path("kept.txt"), Path(".auto-reframe-aaaaaa.part")));
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral(".auto-reframe-bbbbbb.part")));
    ASSERT_EQ(::mkfifo(QFile::encodeName(Path(".auto-reframe-cccccc.part")).constData(), 0600), 0);
    ASSERT_TRUE(KxOutputFile::Create(Path("a.txt")));
    EXPECT_EQ(Content(Path("kept.txt")), QByteArray("x"));
    EXPECT_EQ(QDir(m_folder.path())
                  .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
              (QStringList{QStringLiteral(".auto-reframe-aaaaaa.part"), QStringLiteral(".auto-reframe-bbbbbb.part"),
                           QStringLiteral(".auto-reframe-cccccc.part"), QStringLiteral("kept.txt")}));
}

TEST_F(KxOutputFileTest, AFullDiskIsReportedAsFullAndNotAsMissingPermission)
{
    const TinyDisk disk(m_folder.path(), 2);
    if (!disk.IsMounted()) {
        GTEST_SKIP() << "a file system cannot be mounted here";
    }
    ASSERT_TRUE(KxDir::IsPathWriteAndReadable(m_folder.path()));
    const auto written = KxOutputFile::Write(Path("a.txt"), QByteArray(20000, 'a'), KxOutputFile::Existing::AddNumber);
    ASSERT_FALSE(written);
    EXPECT_EQ(written.Message(), QStringLiteral("Cannot write %1: the disk is full.").arg(Path("a.txt")));
    EXPECT_TRUE(Files().isEmpty());

    ASSERT_TRUE(KxOutputFile::Write(Path("full.txt"), QByteArray(8192, 'a'), KxOutputFile::Existing::AddNumber));
    EXPECT_TRUE(KxDir::IsPathWriteAndReadable(m_folder.path())) << "no room for the content of a file";
    for (int i = 0; i < 8; ++i) {
        QFile(Path(QByteArray::number(i).constData())).open(QIODevice::WriteOnly);
    }
    EXPECT_TRUE(KxDir::IsPathWriteAndReadable(m_folder.path())) << "no room for another file";
    const auto created = KxOutputFile::Create(Path("b.txt"));
    ASSERT_FALSE(created);
    EXPECT_EQ(created.Message(), QStringLiteral("Cannot write %1: the disk is full.").arg(Path("b.txt")));
}

TEST_F(KxOutputFileTest, TheReasonIsGivenWhenANameCannotBeReserved)
{
    const TinyDisk disk(m_folder.path(), 2);
    if (!disk.IsMounted()) {
        GTEST_SKIP() << "a file system cannot be mounted here";
    }
    auto output = KxOutputFile::Create(Path("a.txt"));
    ASSERT_TRUE(output);
    for (int i = 0; i < 8; ++i) {
        QFile(Path(QByteArray::number(i).constData())).open(QIODevice::WriteOnly);
    }
    const auto written = (*output)->Commit(KxOutputFile::Existing::AddNumber);
    ASSERT_FALSE(written);
    EXPECT_EQ(written.Message(), QStringLiteral("Cannot write %1: the disk is full.").arg(Path("a.txt")));
}

TEST_F(KxOutputFileTest, AFailedRenameLeavesNoReservedNameBehind)
{
    auto output = KxOutputFile::Create(Path("a.txt"));
    ASSERT_TRUE(output);
    ASSERT_TRUE(QFile::remove((*output)->TemporaryPath()));
    const auto written = (*output)->Commit(KxOutputFile::Existing::AddNumber);
    ASSERT_FALSE(written);
    EXPECT_EQ(written.Message(), QStringLiteral("Cannot write %1: there is no such file.").arg(Path("a.txt")));
    EXPECT_TRUE(Files().isEmpty()) << Files().join(QLatin1Char(' ')).toStdString();
}
