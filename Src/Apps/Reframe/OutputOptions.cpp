#include <Apps/Reframe/OutputOptions.h>

#include <KxMedia/Write/KxOutputFormatNames.h>

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cmath>
#include <functional>
#include <vector>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(OutputOptions)
};

using Parsed = KxResult<OutputOptions>;
using Codec = KxOutputFormat::Codec;
using Encoder = KxOutputFormat::Encoder;
namespace Names = KxOutputFormatNames;

std::optional<double> NumberIn(const QString& text, double least, double most)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) && number >= least && number <= most ? std::optional(number)
                                                                                  : std::nullopt;
}

/// "800k", "6M" or bits a second.
std::optional<int> BitRateOf(QString text)
{
    double unit = 1.0;
    if (text.endsWith(QLatin1Char('k')) || text.endsWith(QLatin1Char('M'))) {
        unit = text.endsWith(QLatin1Char('k')) ? 1e3 : 1e6;
        text.chop(1);
    }
    constexpr double least = 1e4;
    constexpr double most = 3e8;
    const std::optional<double> number = NumberIn(text, least / unit, most / unit);
    return number ? std::optional(static_cast<int>(std::lround(*number * unit))) : std::nullopt;
}

/// Sets `target` if there is a value.
template<typename Target, typename Value>
bool Set(Target& target, const std::optional<Value>& value)
{
    if (value) {
        target = *value;
    }
    return value.has_value();
}

/// One option: how its value is taken, and the message if that is not possible.
struct Rule {
    const QCommandLineOption& option;
    std::function<bool(const QString& value)> take;
    const char* message;
};

std::vector<Rule> Rules(const OutputOptions::Definitions& definitions, OutputOptions& options)
{
    KxOutputFormat& format = options.format;
    constexpr double fastest = 240.0;
    return {
        {definitions.size, [&](const QString& text) { return Set(options.size, KxOutputSize::Parse(text)); },
         QT_TRANSLATE_NOOP("OutputOptions",
                           "--size takes even numbers up to 16384 such as 1080x1920, or a height such as "
                           "1920p; \"%1\" is neither.")},
        {definitions.frameRate,
         [&](const QString& text) { return Set(options.frameRate, NumberIn(text, 1.0, fastest)); },
         QT_TRANSLATE_NOOP("OutputOptions", "--fps takes a number from 1 to 240; \"%1\" is none.")},
        {definitions.quality, [&](const QString& text) { return Set(format.quality, NumberIn(text, 0.0, 100.0)); },
         QT_TRANSLATE_NOOP("OutputOptions", "--quality takes a number from 0 to 100; \"%1\" is none.")},
        {definitions.bitRate, [&](const QString& text) { return Set(options.videoBitRate, BitRateOf(text)); },
         QT_TRANSLATE_NOOP("OutputOptions", "--bitrate takes bits a second from 10k to 300M; \"%1\" are none.")},
        {definitions.codec, [&](const QString& name) { return Set(format.codec, Names::ValueOf(Names::Codecs, name)); },
         QT_TRANSLATE_NOOP("OutputOptions", "--codec takes h264, hevc or av1; \"%1\" is none of them.")},
        {definitions.encoder,
         [&](const QString& name) { return Set(format.encoder, Names::ValueOf(Names::Encoders, name)); },
         QT_TRANSLATE_NOOP("OutputOptions",
                           "--encoder takes auto, software, vaapi, nvenc or qsv; \"%1\" is none of them.")},
        {definitions.highRange,
         [&](const QString& name) { return Set(format.highRange, Names::ValueOf(Names::HighRanges, name)); },
         QT_TRANSLATE_NOOP("OutputOptions", "--hdr takes keep or tonemap; \"%1\" is neither.")},
        {definitions.sound,
         [&](const QString& name) {
             // The default, which only a missing option means.
             const auto sound = Names::ValueOf(Names::Sounds, name);
             return sound != KxOutputFormat::Sound::Automatic && Set(format.sound, sound);
         },
         QT_TRANSLATE_NOOP("OutputOptions", "--sound takes copy or encode; \"%1\" is neither.")},
        {definitions.loudness,
         [&](const QString& text) { return Set(format.loudnessLufs, NumberIn(text, -70.0, -5.0)); },
         QT_TRANSLATE_NOOP("OutputOptions", "--loudness takes LUFS from -70 to -5; \"%1\" are none.")},
    };
}

KxError Contradiction(const OutputOptions& options, bool hasCodec, bool hasBitRate)
{
    const KxOutputFormat& format = options.format;
    if (format.quality && hasBitRate) {
        return Texts::tr("--quality and --bitrate exclude each other.");
    }
    if (format.loudnessLufs && format.sound == KxOutputFormat::Sound::Copied) {
        return Texts::tr("--loudness changes the sound, which --sound copy does not.");
    }
    if (format.highRange != KxHighRange::Kept) {
        return std::nullopt;
    }
    if (hasCodec && format.codec != Codec::Hevc) {
        return Texts::tr("--hdr keep needs --codec hevc.");
    }
    if (format.encoder != Encoder::Software && format.encoder != Encoder::Auto) {
        return Texts::tr("--hdr keep needs --encoder software or auto.");
    }
    return std::nullopt;
}

} // namespace

OutputOptions::Definitions::Definitions()
    : size(QStringLiteral("size"),
           Texts::tr("Size of the result, or its height, such as 1080x1920 or 1920p; as large as the crop when not "
                     "given."),
           QStringLiteral("WxH|HEIGHTp"))
    , frameRate(QStringLiteral("fps"), Texts::tr("Frames a second of the result; those of the source when not given."),
                QStringLiteral("N"))
    , quality(QStringLiteral("quality"),
              Texts::tr("Constant quality from 0 to 100, about alike in each codec, instead of a bit rate."),
              QStringLiteral("N"))
    , bitRate(QStringLiteral("bitrate"),
              Texts::tr("Bits a second of the picture, such as 800k or 6M; those of the source when not given."),
              QStringLiteral("N"))
    , codec(QStringLiteral("codec"), Texts::tr("Codec of the picture: h264, hevc or av1 (h264)."),
            QStringLiteral("CODEC"), QStringLiteral("h264"))
    , encoder(QStringLiteral("encoder"),
              Texts::tr("What encodes the picture: software, vaapi, nvenc, qsv, or auto: hardware if ten frames of "
                        "the video show that it works (software)."),
              QStringLiteral("ENCODER"), QStringLiteral("software"))
    , highRange(QStringLiteral("hdr"),
                Texts::tr("What becomes of a picture in high dynamic range: tonemap to the usual range, or keep, as "
                          "10-bit HEVC (tonemap)."),
                QStringLiteral("MODE"), QStringLiteral("tonemap"))
    , sound(QStringLiteral("sound"),
            Texts::tr("What becomes of the sound: encode as AAC, or copy bit for bit where MP4 can hold it. When not "
                      "given, AAC in mono or stereo that nothing changes is copied, and any other sound is encoded."),
            QStringLiteral("MODE"))
    , loudness(QStringLiteral("loudness"),
               Texts::tr("Bring the sound to this loudness in LUFS (EBU R128), such as -14."), QStringLiteral("LUFS"))
{
}

QList<QCommandLineOption> OutputOptions::Definitions::All() const
{
    return {size, frameRate, quality, bitRate, codec, encoder, highRange, sound, loudness};
}

Parsed OutputOptions::Parse(const QCommandLineParser& parser, const Definitions& definitions)
{
    OutputOptions options;
    options.format.sound = KxOutputFormat::Sound::Automatic;
    for (const Rule& rule : Rules(definitions, options)) {
        if (parser.isSet(rule.option) && !rule.take(parser.value(rule.option))) {
            return Parsed::Failure(Texts::tr(rule.message).arg(parser.value(rule.option)));
        }
    }
    if (const KxError message =
            Contradiction(options, parser.isSet(definitions.codec), parser.isSet(definitions.bitRate))) {
        return Parsed::Failure(*message);
    }
    if (options.format.highRange == KxHighRange::Kept) {
        options.format.codec = Codec::Hevc;
    }
    return options;
}
