#pragma once

#include <KxCore/KxOutputSize.h>
#include <KxMedia/Write/KxOutputFormat.h>

#include <QCommandLineOption>
#include <QList>

class QCommandLineParser;

/// The options that say how the video is written.
struct OutputOptions {
    KxOutputSize size;
    double frameRate = 0.0; ///< frames a second; 0: that of the source
    int videoBitRate = 0;   ///< bits a second; 0: that of the source
    KxOutputFormat format;

    struct Definitions {
        Definitions();
        QList<QCommandLineOption> All() const;

        QCommandLineOption size;
        QCommandLineOption frameRate;
        QCommandLineOption quality;
        QCommandLineOption bitRate;
        QCommandLineOption codec;
        QCommandLineOption encoder;
        QCommandLineOption highRange;
        QCommandLineOption sound;
        QCommandLineOption loudness;
    };
    /// On failure, the message about the option that is wrong.
    static KxResult<OutputOptions> Parse(const QCommandLineParser& parser, const Definitions& definitions);
};
