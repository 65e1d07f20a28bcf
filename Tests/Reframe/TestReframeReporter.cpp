#include <Apps/Reframe/ReframeOptions.h>
#include <Apps/Reframe/ReframeReporter.h>
#include <Apps/Reframe/TimeLeft.h>

#include <QByteArray>

#include <gtest/gtest.h>

#include <pty.h>
#include <unistd.h>

#include <cstdio>
#include <memory>

namespace
{

/// A terminal in place of standard error.
class ErrorTerminal
{
public:
    ErrorTerminal()
        : m_before(::dup(STDERR_FILENO))
    {
        EXPECT_EQ(::openpty(&m_reader, &m_terminal, nullptr, nullptr, nullptr), 0);
        std::fflush(stderr);
        EXPECT_GE(::dup2(m_terminal, STDERR_FILENO), 0);
    }
    ~ErrorTerminal()
    {
        std::fflush(stderr);
        ::dup2(m_before, STDERR_FILENO);
        for (const int file : {m_before, m_reader, m_terminal}) {
            ::close(file);
        }
    }
    Q_DISABLE_COPY_MOVE(ErrorTerminal)

    /// What was written since the last call.
    QByteArray Take()
    {
        // The mark shows where it ends, without waiting.
        constexpr char mark = '\x01';
        std::fflush(stderr);
        EXPECT_EQ(::write(m_terminal, &mark, 1), 1);
        QByteArray text;
        char next = 0;
        while (::read(m_reader, &next, 1) == 1 && next != mark) {
            text += next;
        }
        return text.replace("\r\n", "\n");
    }

private:
    int m_before = -1;
    int m_reader = -1;
    int m_terminal = -1;
};

const QString Input = QStringLiteral("folder/clip.mp4");
const QByteArray Cleared("\r\033[K");

} // namespace

TEST(TimeLeft, IsEstimatedAfterASecondOfProgress)
{
    EXPECT_EQ(TimeLeft::Text(999, 5000), QString());
    EXPECT_EQ(TimeLeft::Text(1000, 5000), QStringLiteral(", 1 s left"));
    EXPECT_EQ(TimeLeft::Text(60000, 0), QString());
    EXPECT_EQ(TimeLeft::Text(1000, 1), QStringLiteral(", 166 min 39 s left"));
}

TEST(TimeLeft, CountsTheSecondThatHasBegun)
{
    EXPECT_EQ(TimeLeft::Text(4000, 2500), QStringLiteral(", 12 s left"));
    EXPECT_EQ(TimeLeft::Text(4001, 2500), QStringLiteral(", 13 s left"));
    EXPECT_EQ(TimeLeft::Text(59000, 5000), QStringLiteral(", 59 s left"));
    EXPECT_EQ(TimeLeft::Text(59001, 5000), QStringLiteral(", 1 min 0 s left"));
    EXPECT_EQ(TimeLeft::Text(125000, 5000), QStringLiteral(", 2 min 5 s left"));
    EXPECT_EQ(TimeLeft::Text(8000, 10000), QStringLiteral(", 0 s left"));
}

TEST(ReframeReporter, OneLineOfATerminalShowsTheProgress)
{
    ErrorTerminal terminal;
    ReframeReporter reporter{ReframeOptions()};
    reporter.BeginStage(Input, ReframeReporter::Stage::Analyze);
    EXPECT_EQ(terminal.Take(), Cleared + "clip.mp4: analyzing 0 %");
    reporter.Progress(99);
    EXPECT_EQ(terminal.Take(), QByteArray()) << "nothing changed";
    reporter.Progress(100);
    EXPECT_TRUE(terminal.Take().startsWith(Cleared + "clip.mp4: analyzing 1 %"));
    reporter.BeginStage(Input, ReframeReporter::Stage::Render);
    EXPECT_EQ(terminal.Take(), Cleared + "clip.mp4: rendering 0 %");
}

TEST(ReframeReporter, AMessageThatHasTheNameOfTheFileShowsItsPath)
{
    ErrorTerminal terminal;
    ReframeReporter reporter{ReframeOptions()};
    const auto shown = [&](const QString& input, const QString& message) {
        reporter.Fail(input, message);
        return QString::fromUtf8(terminal.Take()).trimmed();
    };
    const QString path = QStringLiteral("a/b/a.mp4");
    EXPECT_EQ(shown(path, QStringLiteral("Cannot open a.mp4: it is empty.")),
              QStringLiteral("Cannot open a/b/a.mp4: it is empty."));
    EXPECT_EQ(shown(path, QStringLiteral("Cannot reframe a/b/a.mp4: a.mp4.")),
              QStringLiteral("Cannot reframe a/b/a.mp4: a.mp4."));
    EXPECT_EQ(shown(path, QStringLiteral("Cannot open Mama.mp4.")), QStringLiteral("Cannot open Mama.mp4."));
    EXPECT_EQ(shown(path, QStringLiteral("Cannot write c\\a.mp4.")), QStringLiteral("Cannot write c\\a.mp4."));
    EXPECT_EQ(shown(QStringLiteral("a/is"), QStringLiteral("Cannot open is: it is empty.")),
              QStringLiteral("Cannot open is: it is empty."));
    EXPECT_EQ(shown(QStringLiteral("a.mp4"), QStringLiteral("Cannot open a.mp4.")),
              QStringLiteral("Cannot open a.mp4."));
}

TEST(ReframeReporter, NamesWithControlCharactersStayOnOneLineAndDoNotControlTheTerminal)
{
    ErrorTerminal terminal;
    ReframeReporter reporter{ReframeOptions()};
    const QString input = QStringLiteral("a\nb\x1b[31m\u00e9.mp4");
    reporter.BeginStage(input, ReframeReporter::Stage::Analyze);
    EXPECT_EQ(terminal.Take(), Cleared + "a?b?[31m\xc3\xa9.mp4: analyzing 0 %");
    reporter.Fail(input, QStringLiteral("Cannot open %1.").arg(input));
    EXPECT_EQ(terminal.Take(), Cleared + "Cannot open a?b?[31m\xc3\xa9.mp4.\n");
    reporter.Warn(input, QStringLiteral("%1 is odd.").arg(input));
    EXPECT_EQ(terminal.Take(), "Warning: a?b?[31m\xc3\xa9.mp4 is odd.\n");
    testing::internal::CaptureStdout();
    reporter.Succeed(input, QStringLiteral("%1: done").arg(input), {});
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "a?b?[31m\xc3\xa9.mp4: done\n");
}

TEST(ReframeReporter, AMessageReplacesTheProgressLine)
{
    ErrorTerminal terminal;
    ReframeReporter reporter{ReframeOptions()};
    for (const char* const kind : {"warning", "error"}) {
        reporter.BeginStage(Input, ReframeReporter::Stage::Analyze);
        terminal.Take();
        if (*kind == 'w') {
            reporter.Warn(Input, QStringLiteral("Odd."));
            EXPECT_EQ(terminal.Take(), Cleared + "Warning: Odd.\n");
        } else {
            reporter.Fail(Input, QStringLiteral("Bad."));
            EXPECT_EQ(terminal.Take(), Cleared + "Bad.\n");
        }
    }
    reporter.Fail(Input, QStringLiteral("Worse."));
    EXPECT_EQ(terminal.Take(), "Worse.\n") << "no line was shown";
}

TEST(ReframeReporter, TheProgressLineDisappearsAtTheEnd)
{
    ErrorTerminal terminal;
    auto reporter = std::make_unique<ReframeReporter>(ReframeOptions());
    reporter->BeginStage(Input, ReframeReporter::Stage::Preview);
    EXPECT_EQ(terminal.Take(), Cleared + "clip.mp4: drawing the preview 0 %");
    reporter.reset();
    EXPECT_EQ(terminal.Take(), Cleared);
}

TEST(ReframeReporter, QuietMeansOnlyErrors)
{
    ErrorTerminal terminal;
    ReframeOptions options;
    options.quiet = true;
    ReframeReporter reporter(options);
    reporter.BeginStage(Input, ReframeReporter::Stage::Analyze);
    reporter.Warn(Input, QStringLiteral("Odd."));
    EXPECT_EQ(terminal.Take(), QByteArray());
    reporter.Fail(Input, QStringLiteral("Bad."));
    EXPECT_EQ(terminal.Take(), QByteArray("Bad.\n"));
}
