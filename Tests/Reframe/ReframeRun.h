#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// One complete run of the program `reframe`.
struct ReframeRun {
    explicit ReframeRun(const QStringList& arguments)
    {
        QProcess process;
        process.start(QStringLiteral(REFRAME_PROGRAM), arguments);
        constexpr int longestMs = 120000;
        ended = process.waitForFinished(longestMs);
        exitStatus = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        standardOutput = QString::fromUtf8(process.readAllStandardOutput());
        standardError = QString::fromUtf8(process.readAllStandardError());
    }

    bool ended = false;
    int exitStatus = -1; ///< -1: it crashed
    QString standardOutput;
    QString standardError;
};
