#include <Tests/Reframe/ReframeRun.h>

#include <Tests/Support/MadeVideo.h>
#include <Tests/Support/TestSystem.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

class ReframeLanguageTest : public testing::Test
{
protected:
    void SetUp() override { m_before = qgetenv("LANGUAGE"); }
    void TearDown() override { qputenv("LANGUAGE", m_before); }

    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    static QByteArray Content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Opens a file that does not exist.
    ReframeRun OpenNothing(const QStringList& options) const
    {
        return ReframeRun(options + QStringList(Path("none.mp4")));
    }
    QString Message(const char* text) const { return QString::fromUtf8(text).arg(Path("none.mp4")); }

    QTemporaryDir m_folder;

private:
    QByteArray m_before;
};

const char* const English = "Cannot open %1: there is no such file.\n";
const char* const German = "%1 kann nicht geöffnet werden: es gibt keine solche Datei.\n";

} // namespace

TEST_F(ReframeLanguageTest, MessagesAreInTheLanguageOfTheOption)
{
    EXPECT_EQ(OpenNothing({}).standardError, Message(English));
    EXPECT_EQ(OpenNothing({QStringLiteral("--language"), QStringLiteral("de")}).standardError, Message(German));
}

TEST_F(ReframeLanguageTest, MessagesAreInTheLanguageOfTheSystem)
{
    if (!TestSystem::TakesLanguageFromEnvironment()) {
        GTEST_SKIP() << "a test cannot choose the language of this system";
    }
    qputenv("LANGUAGE", "it:de_AT:fr");
    EXPECT_EQ(OpenNothing({}).standardError, Message(German));
    EXPECT_EQ(OpenNothing({QStringLiteral("--language=en")}).standardError, Message(English));
    qputenv("LANGUAGE", "it");
    EXPECT_EQ(OpenNothing({}).standardError, Message(English));
}

TEST_F(ReframeLanguageTest, AnUnknownLanguageIsWrongUse)
{
    const ReframeRun run = OpenNothing({QStringLiteral("--language"), QStringLiteral("xx")});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_TRUE(run.standardError.startsWith(QLatin1String("\"xx\" is not an available language")));
    EXPECT_TRUE(run.standardError.contains(QLatin1String("en, de, es, fr, ja, pt_BR, zh_CN")));
}

TEST_F(ReframeLanguageTest, TheMessageAboutWrongUseIsInTheLanguageThatTheCommandLineNames)
{
    const ReframeRun run({QStringLiteral("--frobnicate"), QStringLiteral("--language=de")});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_TRUE(run.standardError.endsWith(QStringLiteral("Hilfe: reframe --help.\n")))
        << run.standardError.toStdString();
}

TEST_F(ReframeLanguageTest, HelpIsTranslatedAndNamesTheSameOptions)
{
    const auto options = [](const QString& help) {
        QStringList names;
        for (const QString& line : help.split(QLatin1Char('\n'))) {
            if (line.startsWith(QLatin1String("  -"))) {
                names += line.trimmed().section(QLatin1Char(' '), 0, 0);
            }
        }
        return names;
    };
    const ReframeRun english({QStringLiteral("--help")});
    EXPECT_GT(options(english.standardOutput).size(), 15);
    for (const char* const code : {"de", "es", "fr", "ja", "pt_BR", "zh_CN"}) {
        const ReframeRun run({QStringLiteral("--help"), QStringLiteral("--language"), QLatin1String(code)});
        EXPECT_EQ(run.exitStatus, 0);
        EXPECT_EQ(options(run.standardOutput), options(english.standardOutput)) << code;
        EXPECT_FALSE(run.standardOutput.contains(QLatin1String("Print errors only"))) << code;
    }
}

TEST_F(ReframeLanguageTest, JsonStaysEnglish)
{
    const ReframeRun run = OpenNothing({QStringLiteral("--json"), QStringLiteral("--language"), QStringLiteral("de")});
    const QJsonObject line = QJsonDocument::fromJson(run.standardOutput.toUtf8()).object();
    // The line has the path in a member of its own.
    EXPECT_EQ(line.value(QStringLiteral("message")).toString(),
              QStringLiteral("Cannot open none.mp4: there is no such file."));
}

TEST_F(ReframeLanguageTest, AStatusFileStaysEnglish)
{
    OpenNothing({QStringLiteral("--status"), Path("status.json"), QStringLiteral("--language"), QStringLiteral("de")});
    EXPECT_TRUE(Content(Path("status.json")).contains("there is no such file"));
}

TEST_F(ReframeLanguageTest, FilesForProgramsDoNotDependOnTheLanguageAndTheReportDoes)
{
    MadeVideo::Recipe recipe;
    recipe.frames = 40;
    ASSERT_TRUE(MadeVideo::Make(Path("clip.avi"), recipe));
    const auto run = [this](const char* code, const char* name) {
        const QString base = Path(name);
        return ReframeRun({QStringLiteral("--language"), QLatin1String(code), QStringLiteral("--no-video"),
                           QStringLiteral("--keyframes"), base + QStringLiteral(".json"), QStringLiteral("--edit-list"),
                           base + QStringLiteral(".mlt"), QStringLiteral("--report"), base + QStringLiteral(".html"),
                           Path("clip.avi")});
    };
    const ReframeRun english = run("en", "en");
    const ReframeRun french = run("fr", "fr");
    ASSERT_EQ(english.exitStatus, 0) << english.standardError.toStdString();
    EXPECT_TRUE(english.standardOutput.contains(QLatin1String(": 40 frames -> ")));
    EXPECT_TRUE(french.standardOutput.contains(QLatin1String("40 images -> "))) << french.standardOutput.toStdString();
    EXPECT_EQ(Content(Path("en.json")), Content(Path("fr.json")));
    EXPECT_EQ(Content(Path("en.mlt")), Content(Path("fr.mlt")));
    EXPECT_FALSE(Content(Path("en.json")).isEmpty());
    EXPECT_TRUE(Content(Path("en.html")).contains("<html lang=\"en\">"));
    EXPECT_TRUE(Content(Path("en.html")).contains("<h2>Path of the crop</h2>"));
    EXPECT_TRUE(Content(Path("fr.html")).contains("<html lang=\"fr\">"));
    EXPECT_TRUE(Content(Path("fr.html")).contains("<h2>Trajet du cadre</h2>"));
    EXPECT_FALSE(Content(Path("fr.html")).contains("{{"));
}
