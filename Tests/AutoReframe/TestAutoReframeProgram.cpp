#include <QProcess>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

namespace
{

struct Ended {
    int exitStatus = -1; ///< -1: it crashed or did not end
    QString standardOutput;
    QString standardError;
};

/// A complete run of the program where nothing can be displayed.
Ended RunWithoutDisplay(const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QLatin1String(name));
    }
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(AUTO_REFRAME_PROGRAM), arguments);
    constexpr int longestMs = 60000;
    Ended run;
    if (process.waitForFinished(longestMs) && process.exitStatus() == QProcess::NormalExit) {
        run.exitStatus = process.exitCode();
    }
    run.standardOutput = QString::fromLocal8Bit(process.readAllStandardOutput());
    run.standardError = QString::fromLocal8Bit(process.readAllStandardError());
    return run;
}

} // namespace

TEST(AutoReframeProgram, HelpAndVersionNeedNoDisplay)
{
    const Ended version = RunWithoutDisplay({QStringLiteral("--version")});
    EXPECT_EQ(version.exitStatus, 0);
    EXPECT_EQ(version.standardOutput, QStringLiteral("auto-reframe " KR_VERSION "\n"));
    EXPECT_EQ(version.standardError, QString());
    const Ended help = RunWithoutDisplay({QStringLiteral("--help")});
    EXPECT_EQ(help.exitStatus, 0);
    EXPECT_TRUE(help.standardOutput.contains(QLatin1String("[FILE...]"))) << help.standardOutput.toStdString();
    EXPECT_EQ(help.standardError, QString());
}

TEST(AutoReframeProgram, AnUnknownOptionIsWrongUseAlsoWithoutADisplay)
{
    for (const QStringList& arguments :
         {QStringList{QStringLiteral("--frobnicate")},
          QStringList{QStringLiteral("-platform"), QStringLiteral("xcb"), QStringLiteral("--frobnicate")},
          QStringList{QStringLiteral("a.mp4"), QStringLiteral("--frobnicate")}}) {
        const Ended run = RunWithoutDisplay(arguments);
        EXPECT_EQ(run.exitStatus, 2);
        EXPECT_EQ(run.standardOutput, QString());
        EXPECT_EQ(run.standardError.toStdString(), "Unknown option 'frobnicate'.\nTry auto-reframe --help.\n");
    }
}
