#pragma once

#include <KxCore/KxRational.h>

#include <QSize>
#include <QString>
#include <QVector>

#include <optional>

/// Properties of a file's video stream.
struct KxVideoFacts {
    /// As displayed: upright and with square pixels.
    QSize resolution;
    /// Of the frame grid.
    KxRational frameRate;
    /// Length of the frame grid, at least 1.
    qint64 frameCount = 0;
    /// Bits per second; estimated from the file's size if the file does not specify it.
    qint64 bitRate = 0;
    /// Presentation time of the first picture, microseconds on the file's own clock; time zero of the sound.
    qint64 firstPictureUs = 0;
    QString codecName;
};

/// Properties of one of a file's audio streams.
struct KxAudioFacts {
    int sampleRateHz = 0;
    int channels = 0;
    /// Bits per second; 0 if the file does not specify it.
    qint64 bitRate = 0;
    QString codecName;
};

struct KxMediaFacts {
    QString path;
    /// Empty for a file without moving pictures (a cover picture does not count).
    std::optional<KxVideoFacts> video;
    QVector<KxAudioFacts> audio;
    /// Index into `audio` of the stream to play by default; -1 without sound.
    int defaultAudio = -1;
};
