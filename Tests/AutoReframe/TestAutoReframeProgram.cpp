#include <Tests/Support/ProgramRun.h>

#include <gtest/gtest.h>

namespace
{

/// A complete run of the program where nothing can be displayed.
ProgramRun RunWithoutDisplay(const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QLatin1String(name));
    }
    return {QStringLiteral(AUTO_REFRAME_PROGRAM), arguments, environment};
}

} // namespace

TEST(AutoReframeProgram, HelpAndVersionNeedNoDisplay)
{
    const ProgramRun version = RunWithoutDisplay({QStringLiteral("--version")});
    EXPECT_EQ(version.exitStatus, 0);
    EXPECT_EQ(version.standardOutput, QStringLiteral("auto-reframe " KR_VERSION "\n"));
    EXPECT_EQ(version.standardError, QString());
    const ProgramRun help = RunWithoutDisplay({QStringLiteral("--help")});
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
        const ProgramRun run = RunWithoutDisplay(arguments);
        EXPECT_EQ(run.exitStatus, 2);
        EXPECT_EQ(run.standardOutput, QString());
        EXPECT_EQ(run.standardError.toStdString(), "Unknown option 'frobnicate'.\nTry auto-reframe --help.\n");
    }
}
