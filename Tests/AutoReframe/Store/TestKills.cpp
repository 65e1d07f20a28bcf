#include <Apps/AutoReframe/Store/LibraryDatabase.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <chrono>
#include <random>

namespace
{

qint64 NowMs()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

class TestKills : public testing::Test
{
protected:
    struct Killed {
        qint64 lastWritten = 0;
        QMap<qint64, qint64> changedAtMs;
        qint64 killedAtMs = 0;
    };

    /// Runs the driver and kills it when it has printed so many lines.
    Killed RunAndKill(int lines) const
    {
        QProcess driver;
        driver.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        driver.start(QStringLiteral(KILL_DRIVER), {m_path});
        QByteArray output;
        constexpr int patienceMs = 60000;
        EXPECT_TRUE(driver.waitForStarted(patienceMs));
        while (output.count('\n') < lines && driver.waitForReadyRead(patienceMs)) {
            output += driver.readAllStandardOutput();
        }
        EXPECT_GE(output.count('\n'), lines);
        Killed killed;
        killed.killedAtMs = NowMs();
        driver.kill();
        EXPECT_TRUE(driver.waitForFinished(patienceMs));
        EXPECT_EQ(driver.exitStatus(), QProcess::CrashExit);
        output += driver.readAllStandardOutput();
        for (const QByteArray& line : output.split('\n')) {
            const QList<QByteArray> words = line.split(' ');
            if (words.size() == 3 && words[0] == "written") {
                killed.lastWritten = words[1].toLongLong();
            } else if (words.size() == 3) {
                killed.changedAtMs.insert(words[1].toLongLong(), words[2].toLongLong());
            }
        }
        return killed;
    }

    /// The newest change in the file, which must hold every one before it.
    static qint64 NewestChange(const StoredContents& contents)
    {
        qint64 newest = 0;
        for (const VideoEdits& edits : contents.edits) {
            newest = std::max<qint64>(newest, edits.choices.toLongLong());
        }
        for (qint64 change = newest; change > 0 && change > newest - 3; --change) {
            const QString path = QStringLiteral("/clips/%1.mp4").arg(change % 3);
            EXPECT_EQ(contents.edits.value(path).choices, QByteArray::number(change));
            EXPECT_EQ(contents.edits.value(path).editPoints.size(), 20);
            EXPECT_EQ(contents.edits.value(path).editPoints.value(7).x(), 0.001 * static_cast<double>(change % 1000));
        }
        return newest;
    }

    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("library.db"));
};

} // namespace

TEST_F(TestKills, AfterEachOf100KillsTheFileIsWholeAndHoldsAllThatWasWritten)
{
    constexpr int kills = 100;
    constexpr int mostLines = 120;
    std::mt19937 random(7);
    qint64 newest = 0;
    qint64 longestLossMs = 0;
    int interrupted = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const Killed killed = RunAndKill(static_cast<int>(random() % mostLines));
        const KxResult<std::unique_ptr<LibraryDatabase>> opened = LibraryDatabase::Open(m_path);
        ASSERT_TRUE(opened) << opened.Message().toStdString();
        LibraryDatabase& database = **opened;
        EXPECT_EQ(database.Notice().toStdString(), std::string());
        EXPECT_EQ(database.Connection().Value(QStringLiteral("PRAGMA integrity_check"))->toString().toStdString(),
                  "ok");
        EXPECT_FALSE(database.Connection().Value(QStringLiteral("PRAGMA foreign_key_check"))->isValid());
        const KxResult<StoredContents> contents = database.ReadContents();
        ASSERT_TRUE(contents) << contents.Message().toStdString();
        const qint64 found = NewestChange(*contents);
        EXPECT_GE(found, std::max(newest, killed.lastWritten)) << "kill " << kill;
        newest = found;
        const auto lost = killed.changedAtMs.upperBound(found);
        if (lost != killed.changedAtMs.end()) {
            longestLossMs = std::max(longestLossMs, killed.killedAtMs - *lost);
        }
        for (const StoredExport& item : contents->exports) {
            interrupted += item.state == StoredExport::State::Interrupted ? 1 : 0;
            EXPECT_EQ(item.request.source.crops != nullptr, item.state == StoredExport::State::Interrupted);
        }
    }
    EXPECT_LE(QDir(m_folder.path()).entryList({QStringLiteral("run-*.lock")}, QDir::Files).size(), 1);
    EXPECT_GT(newest, kills);
    EXPECT_GT(interrupted, 0);
    // A figure for a person to read: how long a machine takes to write is no property of the program.
    std::printf("%lld changes; the oldest change that a kill took was %lld ms old\n", static_cast<long long>(newest),
                static_cast<long long>(longestLossMs));
}
