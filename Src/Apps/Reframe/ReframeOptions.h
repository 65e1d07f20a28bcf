#pragma once

#include <KxCore/KxResult.h>

#include <QSize>
#include <QStringList>

/// What the command line asks for. Complete and checked once made.
struct ReframeOptions {
    QStringList inputs;
    QSize aspect = QSize(9, 16);
    QString speedName = QStringLiteral("auto"); ///< auto, fast or slow
    int speedMode = 16;                         ///< the number that the analysis takes for it
    QString output;                             ///< file or folder; empty: beside each input
    QString keyframes;                          ///< file (folder for several inputs); empty: none
    QString apply;                              ///< a crop track to take instead of an analysis; empty: none
    QString preview;                            ///< file (folder for several inputs); empty: none
    QString report;                             ///< file (folder for several inputs); empty: none
    QString faceModel;                          ///< empty: none
    bool writesVideo = true;
    bool overwrites = false;
    bool json = false;
    bool quiet = false;

    /// The preview is a video, not a contact sheet.
    bool PreviewIsVideo() const;

    /// What a command line turned out to be: options to work with, or a text to show and an exit status.
    struct Parsed;
    /// `arguments` as in main, the program's name first.
    static Parsed Parse(const QStringList& arguments);
};

struct ReframeOptions::Parsed {
    std::optional<ReframeOptions> options;
    QString text; ///< help or version for standard output, or the error message for standard error
    int exitStatus = 0;
};
