#pragma once

#include <KxCore/KxRational.h>

#include <QSize>
#include <QString>
#include <QVector>

#include <optional>

/// What is known of a file's video stream.
struct KxVideoFacts {
    /// As displayed: upright and with square pixels.
    QSize resolution;
    /// Of the frame grid.
    KxRational frameRate;
    /// Length of the frame grid, at least 1.
    qint64 frameCount = 0;
    /// Bits a second; estimated from the file's size where the file does not say.
    qint64 bitRate = 0;
    /// Presentation time of the first picture, microseconds on the file's own clock: sound is placed against it.
    qint64 firstPictureUs = 0;
    QString codecName;
};

/// What is known of one of a file's audio streams.
struct KxAudioFacts {
    int sampleRateHz = 0;
    int channels = 0;
    /// Bits a second; 0 when the file does not say.
    qint64 bitRate = 0;
    QString codecName;
};

struct KxMediaFacts {
    QString path;
    /// Nothing for a file without moving pictures (a cover picture is none).
    std::optional<KxVideoFacts> video;
    QVector<KxAudioFacts> audio;
    /// Index into `audio` of the stream that plays; -1 without sound.
    int defaultAudio = -1;
};
