#include <Apps/AutoReframe/Store/ExportFormatText.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace
{

template<typename Value>
struct Named {
    const char* name;
    Value value;
};

using Codec = KxOutputFormat::Codec;
using Encoder = KxOutputFormat::Encoder;
using Sound = KxOutputFormat::Sound;

// Stored: a name is never changed.
constexpr Named<Codec> Codecs[] = {{"h264", Codec::H264}, {"hevc", Codec::Hevc}, {"av1", Codec::Av1}};
constexpr Named<Encoder> Encoders[] = {{"software", Encoder::Software},
                                       {"auto", Encoder::Auto},
                                       {"vaapi", Encoder::Vaapi},
                                       {"nvenc", Encoder::Nvenc},
                                       {"qsv", Encoder::Qsv}};
constexpr Named<KxHighRange> HighRanges[] = {{"tonemap", KxHighRange::ToneMapped}, {"keep", KxHighRange::Kept}};
constexpr Named<Sound> Sounds[] = {{"encode", Sound::Encoded}, {"copy", Sound::Copied}, {"auto", Sound::Automatic}};

template<typename Value, size_t Count>
QString NameOf(const Named<Value> (&names)[Count], Value value)
{
    for (const Named<Value>& named : names) {
        if (named.value == value) {
            return QLatin1String(named.name);
        }
    }
    return {};
}

template<typename Value, size_t Count>
void Take(const Named<Value> (&names)[Count], const QJsonValue& name, Value& value)
{
    for (const Named<Value>& named : names) {
        if (name.toString() == QLatin1String(named.name)) {
            value = named.value;
        }
    }
}

std::optional<double> NumberOf(const QJsonValue& value)
{
    return value.isDouble() ? std::optional(value.toDouble()) : std::nullopt;
}

} // namespace

QString ExportFormatText::Write(const KxOutputFormat& format)
{
    QJsonObject object{{QStringLiteral("codec"), NameOf(Codecs, format.codec)},
                       {QStringLiteral("encoder"), NameOf(Encoders, format.encoder)},
                       {QStringLiteral("hdr"), NameOf(HighRanges, format.highRange)},
                       {QStringLiteral("sound"), NameOf(Sounds, format.sound)}};
    if (format.quality) {
        object.insert(QStringLiteral("quality"), *format.quality);
    }
    if (format.loudnessLufs) {
        object.insert(QStringLiteral("loudness"), *format.loudnessLufs);
    }
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

KxOutputFormat ExportFormatText::Read(const QString& text)
{
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    KxOutputFormat format;
    Take(Codecs, object.value(QStringLiteral("codec")), format.codec);
    Take(Encoders, object.value(QStringLiteral("encoder")), format.encoder);
    Take(HighRanges, object.value(QStringLiteral("hdr")), format.highRange);
    Take(Sounds, object.value(QStringLiteral("sound")), format.sound);
    format.quality = NumberOf(object.value(QStringLiteral("quality")));
    format.loudnessLufs = NumberOf(object.value(QStringLiteral("loudness")));
    return format;
}
