#pragma once

#include <Apps/Reframe/FarmOptions.h>
#include <Apps/Reframe/FollowOption.h>
#include <Apps/Reframe/FramesOption.h>
#include <Apps/Reframe/OutputOptions.h>
#include <KxCore/KxResult.h>

#include <QList>
#include <QSize>
#include <QStringList>

/// The options of a command line, complete and valid.
struct ReframeOptions {
    QStringList inputs;
    std::optional<FramesOption> frames;         ///< a part of the input; nothing: all of it
    QStringList parts;                          ///< of the input, to be joined; empty: none
    QList<QSize> aspects = {QSize(9, 16)};      ///< each once
    QString speedName = QStringLiteral("auto"); ///< auto, fast or slow
    int speedMode = 16;                         ///< the number by which the analysis knows it
    bool followsSpeaker = true;                 ///< where several people talk
    QString output;                             ///< file or folder; empty: beside each input
    QString keyframes;                          ///< file (folder for several results); empty: none
    QStringList editLists;                      ///< files, or only their suffixes
    QString apply;                              ///< a crop track that replaces the analysis; empty: none
    QString choices;                            ///< a file of a person's choices; empty: none
    QString saveChoices;                        ///< a file for the choices that were applied; empty: none
    QList<FollowOption> follow;                 ///< what the crop must follow, besides those
    QString preview;                            ///< file (folder for several results); empty: none
    QString report;                             ///< file (folder for several results); empty: none
    QString cache;                              ///< folder of records, or "none"; empty: the usual one
    QString models;                             ///< folder of the optional detectors, or "none"; empty: the usual ones
    OutputOptions video;
    bool writesVideo = true;
    bool overwrites = false;
    bool json = false;
    bool quiet = false;
    FarmOptions farm;

    /// Whether the preview is a video and not a contact sheet.
    bool PreviewIsVideo() const;

    /// The result of parsing: options, or a text to print and an exit status.
    struct Parsed;
    /// `arguments` start with the program's name, as in main.
    static Parsed Parse(const QStringList& arguments);
};

struct ReframeOptions::Parsed {
    std::optional<ReframeOptions> options;
    QString text; ///< help or version for standard output, or the error message for standard error
    int exitStatus = 0;
};
