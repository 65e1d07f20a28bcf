#pragma once

#include <KxCore/KxResult.h>

#include <QCommandLineOption>
#include <QList>
#include <QStringList>

class QCommandLineParser;

/// The options for many inputs and for engines that run the program on them.
struct FarmOptions {
    QString status;        ///< file for JSON lines; empty: none
    bool ifNeeded = false; ///< what was written already by the same run is not written again
    /// What --if-needed compares: the version and all that has an influence on what is written, except the aspect ratio
    /// and the content of the input and of the files of --apply and --choices.
    QByteArray settings;

    /// Whether the status file is one of these.
    bool WouldReplaceInput(const QStringList& inputs) const;

    struct Definitions {
        Definitions();
        QList<QCommandLineOption> All() const;

        QCommandLineOption recursive;
        QCommandLineOption inputs;
        QCommandLineOption status;
        QCommandLineOption ifNeeded;
        QCommandLineOption frames;
        QCommandLineOption join;
    };
    /// Empty if the file cannot be read.
    static QByteArray ContentHash(const QString& path);
    static FarmOptions Parse(const QCommandLineParser& parser, const Definitions& definitions);
    /// The input files: those that are named, those of a list, and the videos in folders. An error message where a list
    /// or a folder cannot be read.
    static KxResult<QStringList> Inputs(const QStringList& named, const QCommandLineParser& parser,
                                        const Definitions& definitions);
};
