#pragma once

#include <QStringList>

/// The command line. A plain record.
struct AutoReframeOptions {
    QStringList files;
    QString language; ///< a code of KxLanguage; empty: the saved choice or the system's

    struct Parsed;
    /// `arguments` begins with the program's name and may contain the options that Qt takes. Needs an application
    /// object: Qt asks it for the program's name.
    static Parsed Parse(const QStringList& arguments);
};

struct AutoReframeOptions::Parsed {
    AutoReframeOptions options;
    /// To print before the program ends with `exitStatus`; empty if the program is to run.
    QString text;
    int exitStatus = 0;
};
