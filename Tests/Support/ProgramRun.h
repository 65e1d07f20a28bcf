#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// One complete run of a program. What it prints is read as UTF-8; lines end with "\n" on all systems.
struct ProgramRun {
    ProgramRun(const QString& program, const QStringList& arguments,
               const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());

    bool ended = false;  ///< within two minutes
    int exitStatus = -1; ///< -1: it crashed, did not start, or did not end
    QString standardOutput;
    QString standardError;
};
