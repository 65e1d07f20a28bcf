#pragma once

#include <QElapsedTimer>
#include <QJsonObject>
#include <QString>

struct ReframeOptions;

/// What the program tells: a progress line on a terminal, JSON lines for programs, error messages. Main thread.
class ReframeReporter
{
public:
    explicit ReframeReporter(const ReframeOptions& options);
    /// Leaves no half line on the terminal.
    ~ReframeReporter();
    Q_DISABLE_COPY_MOVE(ReframeReporter)

    enum class Stage { Analyze, Preview, Render };
    /// Starts to measure the time of a stage of one input.
    void BeginStage(const QString& input, Stage stage);
    /// `progress` in ten-thousandths of the stage.
    void Progress(int progress);

    void Warn(const QString& input, const QString& message);
    void Fail(const QString& input, const QString& message);
    /// `facts` go into the JSON line; `message` is for people.
    void Succeed(const QString& input, const QString& message, const QJsonObject& facts);

private:
    enum class Voice { People, Json };

    void WriteJson(const QString& event, const QString& input, QJsonObject facts);
    void ClearLine();

    const Voice m_voice;
    const bool m_quiet;
    const bool m_showsLine;
    QString m_input;
    Stage m_stage = Stage::Analyze;
    QElapsedTimer m_stageTimer;
    int m_lastPercent = -1;
    bool m_lineShown = false;
};
