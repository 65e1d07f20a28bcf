#pragma once

#include <QStringList>

/// What the command line says. A plain record.
struct AutoReframeOptions {
    QStringList files;

    struct Parsed;
    /// `arguments` without the program's name, and without those that Qt takes for itself. Pure.
    static Parsed Parse(const QStringList& arguments);
};

struct AutoReframeOptions::Parsed {
    AutoReframeOptions options;
    /// To print, then to end with `exitStatus`; empty: run.
    QString text;
    int exitStatus = 0;
};
