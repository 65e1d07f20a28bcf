#pragma once

#include <KxMedia/Picture/KxHighRange.h>

#include <QString>

#include <optional>

/// How a video is encoded. A plain value; the default is H.264 by libx264 at a bit rate, with the sound encoded anew.
struct KxOutputFormat {
    enum class Codec { H264, Hevc, Av1 };
    enum class Encoder {
        Software,
        Auto, ///< the first hardware that proves to work, otherwise Software
        Vaapi,
        Nvenc,
        Qsv,
    };
    enum class Sound {
        Encoded,
        Copied,    ///< packet by packet where MP4 can hold the codec, otherwise encoded
        Automatic, ///< copied if players of MP4 take it as it is and nothing about it changes, otherwise encoded
    };

    Codec codec = Codec::H264;
    Encoder encoder = Encoder::Software;
    std::optional<double> quality;                   ///< 0 to 100; nothing: the bit rate decides
    KxHighRange highRange = KxHighRange::ToneMapped; ///< Kept needs Codec::Hevc
    Sound sound = Sound::Encoded;
    std::optional<double> loudnessLufs; ///< that of the whole sound, EBU R128; nothing: unchanged
};

/// The encoder that wrote a video.
struct KxUsedEncoder {
    QString name; ///< that of libavcodec: "libx264"
    /// After KxOutputFormat::Encoder::Auto, why the kinds of hardware that were tried before are not used.
    QString reason;
};
