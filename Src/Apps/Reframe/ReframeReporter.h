#pragma once

#include <Apps/Reframe/StatusFile.h>
#include <KxCore/KxResult.h>

#include <QElapsedTimer>
#include <QJsonObject>
#include <QString>
#include <QStringList>

struct ReframeOptions;

/// The program's output: a progress line on a terminal, JSON lines for programs, error messages. Main thread.
///
/// When standard output can no longer be written, because its reader has gone or its disk is full, the reporter asks
/// the program to stop (KxInterrupt).
class ReframeReporter
{
public:
    explicit ReframeReporter(const ReframeOptions& options);
    /// Clears the progress line.
    ~ReframeReporter();
    Q_DISABLE_COPY_MOVE(ReframeReporter)

    enum class Stage { Analyze, Preview, Render };
    /// Starts the clock of a stage of one input.
    void BeginStage(const QString& input, Stage stage);
    /// `progress` in ten-thousandths of the stage.
    void Progress(int progress);

    void Warn(const QString& input, const QString& message);
    void Fail(const QString& input, const QString& message);
    /// `written` are files that were complete before the interrupt.
    void Interrupted(const QString& input, const QStringList& written);
    /// `facts` go into the JSON line; `message` is for people.
    void Succeed(const QString& input, const QString& message, const QJsonObject& facts);

    /// The results of an input were there already.
    void Skip(const QString& input, const QString& message, const QJsonObject& facts);
    /// The run ends with this exit status: the last line of the status file.
    void End(int exitStatus);

    /// Why standard output could not be written; nothing while it can.
    const KxError& OutputProblem() const { return m_outputProblem; }

    /// The same for the status file, which the run does not depend on.
    const KxError& StatusProblem() const { return m_status.Problem(); }

private:
    enum class Format { Text, Json };

    void Conclude(const QString& event, const QString& input, const QString& message, const QJsonObject& facts);
    /// To the status file, and to standard output if that is asked for.
    void WriteJson(const QString& event, const QString& input, QJsonObject facts);
    bool WritesJson() const { return m_format == Format::Json || m_status.IsWanted(); }
    void WriteOutput(const QByteArray& text);
    void ClearLine();

    const Format m_format;
    const bool m_quiet;
    const bool m_showsLine;
    QString m_input;
    Stage m_stage = Stage::Analyze;
    QElapsedTimer m_stageTimer;
    int m_lastPercent = -1;
    bool m_lineShown = false;
    KxError m_outputProblem;
    StatusFile m_status;
};
