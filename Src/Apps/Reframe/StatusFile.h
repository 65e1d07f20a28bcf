#pragma once

#include <KxCore/KxResult.h>

#include <QFile>
#include <QJsonObject>

/// The file of --status, to which each event is added as a line at once, for whoever watches the run. Main thread.
class StatusFile
{
public:
    /// Without a path nothing is written.
    explicit StatusFile(const QString& path);
    Q_DISABLE_COPY_MOVE(StatusFile)

    bool IsWanted() const { return !m_file.fileName().isEmpty(); }
    /// Why the file could not be written; nothing while it can.
    const KxError& Problem() const { return m_problem; }
    /// Ignored after a problem.
    void Write(const QJsonObject& event);

private:
    QFile m_file;
    KxError m_problem;
};
