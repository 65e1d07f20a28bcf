#include <Apps/Reframe/ReframeReporter.h>

#include <Apps/Reframe/ReframeOptions.h>
#include <Apps/Reframe/TimeLeft.h>
#include <KxCore/KxInterrupt.h>
#include <KxCore/KxSystemError.h>
#include <KxCore/KxTerminal.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cerrno>
#include <cstdio>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ReframeReporter)
};

/// Standard error has no other place to report its own failure to.
void WriteError(const QByteArray& text)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stderr);
    std::fflush(stderr);
}

/// As one line of a terminal: file names can have line breaks, and sequences that a terminal would obey.
QByteArray Printable(QString text)
{
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control) {
            character = QLatin1Char('?');
        }
    }
    return text.toLocal8Bit();
}

/// The message with the path of the input where it has the mere name, which several inputs can share. A name without a
/// suffix could be a word of the message, which then stays as it is.
QString WithPath(const QString& message, const QString& input)
{
    const QString name = QFileInfo(input).fileName();
    if (!name.contains(QLatin1Char('.')) || name == input || message.contains(input)) {
        return message;
    }
    const QRegularExpression alone(QStringLiteral(R"((?<![\w/\\])%1(?!\w))").arg(QRegularExpression::escape(name)),
                                   QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch found = alone.match(message);
    return found.hasMatch() ? QString(message).replace(found.capturedStart(), found.capturedLength(), input) : message;
}

/// Of a stage in JSON.
QString StageName(ReframeReporter::Stage stage)
{
    switch (stage) {
    case ReframeReporter::Stage::Analyze:
        return QStringLiteral("analyze");
    case ReframeReporter::Stage::Preview:
        return QStringLiteral("preview");
    case ReframeReporter::Stage::Render:
        return QStringLiteral("render");
    }
    return {};
}

/// Of a progress line: file, percent, and the time that is left or nothing.
QString StageLine(ReframeReporter::Stage stage)
{
    switch (stage) {
    case ReframeReporter::Stage::Analyze:
        return Texts::tr("%1: analyzing %2 %%3");
    case ReframeReporter::Stage::Preview:
        return Texts::tr("%1: drawing the preview %2 %%3");
    case ReframeReporter::Stage::Render:
        return Texts::tr("%1: rendering %2 %%3");
    }
    return {};
}

} // namespace

ReframeReporter::ReframeReporter(const ReframeOptions& options)
    : m_format(options.json ? Format::Json : Format::Text)
    , m_quiet(options.quiet)
    , m_showsLine(!options.quiet && !options.json && KxTerminal::IsErrorStreamInteractive())
    , m_status(options.farm.status)
{
}

ReframeReporter::~ReframeReporter()
{
    ClearLine();
}

void ReframeReporter::BeginStage(const QString& input, Stage stage)
{
    m_input = input;
    m_stage = stage;
    m_stageTimer.start();
    m_lastPercent = -1;
    Progress(0);
}

void ReframeReporter::Progress(int progress)
{
    const int percent = progress / 100;
    if (percent == m_lastPercent) {
        return;
    }
    m_lastPercent = percent;
    if (WritesJson()) {
        WriteJson(QStringLiteral("progress"), m_input,
                  {{QStringLiteral("stage"), StageName(m_stage)}, {QStringLiteral("percent"), percent}});
    }
    if (m_showsLine) {
        const QString line = StageLine(m_stage).arg(QFileInfo(m_input).fileName(), QString::number(percent),
                                                    TimeLeft::Text(m_stageTimer.elapsed(), progress));
        WriteError("\r\033[K" + Printable(line));
        m_lineShown = true;
    }
}

void ReframeReporter::Warn(const QString& input, const QString& message)
{
    if (WritesJson()) {
        WriteJson(QStringLiteral("warning"), input, {{QStringLiteral("message"), message}});
    }
    ClearLine();
    if (!m_quiet) {
        WriteError(Printable(Texts::tr("Warning: %1").arg(WithPath(message, input))) + '\n');
    }
}

void ReframeReporter::Fail(const QString& input, const QString& message)
{
    if (WritesJson()) {
        WriteJson(QStringLiteral("error"), input, {{QStringLiteral("message"), message}});
    }
    ClearLine();
    WriteError(Printable(WithPath(message, input)) + '\n');
}

void ReframeReporter::Succeed(const QString& input, const QString& message, const QJsonObject& facts)
{
    Conclude(QStringLiteral("done"), input, message, facts);
}

void ReframeReporter::Skip(const QString& input, const QString& message, const QJsonObject& facts)
{
    Conclude(QStringLiteral("skipped"), input, message, facts);
}

void ReframeReporter::Conclude(const QString& event, const QString& input, const QString& message,
                               const QJsonObject& facts)
{
    ClearLine();
    WriteJson(event, input, facts);
    if (m_format == Format::Text && !m_quiet) {
        WriteOutput(Printable(message) + '\n');
    }
}

void ReframeReporter::End(int exitStatus)
{
    m_status.Write({{QStringLiteral("event"), QStringLiteral("end")}, {QStringLiteral("exit_status"), exitStatus}});
}

void ReframeReporter::WriteJson(const QString& event, const QString& input, QJsonObject facts)
{
    facts.insert(QStringLiteral("event"), event);
    facts.insert(QStringLiteral("input"), input);
    m_status.Write(facts);
    if (m_format == Format::Json) {
        // Quiet means no progress either.
        if (!m_quiet || event != QLatin1String("progress")) {
            WriteOutput(QJsonDocument(facts).toJson(QJsonDocument::Compact) + '\n');
        }
    }
}

void ReframeReporter::WriteOutput(const QByteArray& text)
{
    if (m_outputProblem) {
        return;
    }
    errno = 0;
    const auto length = static_cast<std::size_t>(text.size());
    if (std::fwrite(text.constData(), 1, length, stdout) == length && std::fflush(stdout) == 0) {
        return;
    }
    const QString reason = KxSystemErrorText(std::error_code(errno, std::generic_category()));
    m_outputProblem = Texts::tr("Cannot write to standard output: %1.")
                          .arg(reason.isEmpty() ? Texts::tr("an error occurred") : reason);
    ClearLine();
    WriteError(m_outputProblem->toLocal8Bit() + '\n');
    KxInterrupt::Request();
}

void ReframeReporter::Interrupted(const QString& input, const QStringList& written)
{
    if (m_outputProblem) {
        return;
    }
    Fail(input,
         written.isEmpty()
             ? Texts::tr("%1: interrupted.").arg(input)
             : Texts::tr("%1: interrupted after %2 was written.").arg(input, written.join(QStringLiteral(", "))));
}

void ReframeReporter::ClearLine()
{
    if (m_lineShown) {
        WriteError("\r\033[K");
        m_lineShown = false;
    }
}
