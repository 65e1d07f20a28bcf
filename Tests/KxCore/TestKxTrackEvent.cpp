#include <Tests/Support/TestSystem.h>

#include <KxCore/KrAutoReframeClickEvent.h>
#include <KxCore/KxTrackEvent.h>
#include <KxCore/KxUsageTracker.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

class KxTrackEventTest : public testing::Test
{
protected:
    KxTrackEventTest()
        : m_hadConfig(qEnvironmentVariableIsSet("KX_CONFIG_FILE"))
        , m_config(qgetenv("KX_CONFIG_FILE"))
    {
        qputenv("KX_CONFIG_FILE", PathOf(QStringLiteral("host.ini")).toUtf8());
    }

    ~KxTrackEventTest() override
    {
        KxUsageTracker::SetRecorder({});
        if (m_hadConfig) {
            qputenv("KX_CONFIG_FILE", m_config);
        } else {
            qunsetenv("KX_CONFIG_FILE");
        }
    }

    QString PathOf(const QString& name) const { return m_folder.filePath(name); }

    void NameLog(const QString& path)
    {
        QSettings settings(PathOf(QStringLiteral("host.ini")), QSettings::IniFormat);
        settings.setValue(QStringLiteral("Auto Reframe/UsageLog"), path);
    }

    static void Send(const QString& name)
    {
        KrAutoReframeClickEvent event(name);
        event.sendEvent();
    }

    static QStringList LinesOf(const QString& path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            return {};
        }
        return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

private:
    QTemporaryDir m_folder;
    bool m_hadConfig;
    QByteArray m_config;
};

} // namespace

TEST_F(KxTrackEventTest, WritesNothingUntilALogIsNamed)
{
    const QDir folder(PathOf(QString()));
    Send(QStringLiteral("export_btn"));

    EXPECT_TRUE(folder.entryList(QDir::Files).isEmpty());
}

TEST_F(KxTrackEventTest, AppendsTimeAndNameOfEachEvent)
{
    const QString path = PathOf(QStringLiteral("usage.log"));
    NameLog(path);
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    Send(QStringLiteral("anlyze_btn"));
    Send(QStringLiteral("export_btn"));

    const QStringList lines = LinesOf(path);
    ASSERT_EQ(lines.size(), 2);
    const QStringList first = lines.at(0).split(QLatin1Char(' '));
    ASSERT_EQ(first.size(), 2);
    const QDateTime time = QDateTime::fromString(first.at(0), Qt::ISODate);
    EXPECT_TRUE(time >= before && time <= QDateTime::currentDateTimeUtc()) << first.at(0).toStdString();
    EXPECT_EQ(first.at(1), QStringLiteral("anlyze_btn"));
    EXPECT_TRUE(lines.at(1).endsWith(QStringLiteral(" export_btn")));
}

TEST_F(KxTrackEventTest, ARelativeLogIsBesideTheConfigurationFile)
{
    NameLog(QStringLiteral("usage.log"));
    Send(QStringLiteral("close_window"));

    EXPECT_EQ(LinesOf(PathOf(QStringLiteral("usage.log"))).size(), 1);
}

TEST_F(KxTrackEventTest, ALogThatCannotBeWrittenIsNotAFailure)
{
    NameLog(PathOf(QStringLiteral("no/such/folder/usage.log")));
    Send(QStringLiteral("close_window"));

    EXPECT_FALSE(QFile::exists(PathOf(QStringLiteral("no"))));
}

TEST_F(KxTrackEventTest, ARecorderReceivesTheNamesInsteadOfTheLog)
{
    NameLog(QStringLiteral("usage.log"));
    QStringList heard;
    KxUsageTracker::SetRecorder([&heard](const QString& name) { heard.append(name); });
    Send(QStringLiteral("anlyze_btn"));
    KxUsageTracker::SetRecorder({});
    Send(QStringLiteral("export_btn"));

    EXPECT_EQ(heard, QStringList{QStringLiteral("anlyze_btn")});
    const QStringList lines = LinesOf(PathOf(QStringLiteral("usage.log")));
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines.at(0).endsWith(QStringLiteral(" export_btn")));
}

TEST_F(KxTrackEventTest, ALogThatIsAPipeIsNotWritten)
{
    const QString pipe = PathOf(QStringLiteral("pipe"));
    if (!TestSystem::MakeNamedPipe(pipe)) {
        GTEST_SKIP() << "this system has no pipes in folders";
    }
    NameLog(pipe);
    // Opening it would wait for a reader.
    Send(QStringLiteral("close_window"));
}
