#pragma once

#include <KxMedia/Write/KxOutputFormat.h>

#include <QLatin1String>

/// The words for an output format, on the command line and where it is stored. So a word is never changed.
namespace KxOutputFormatNames
{
template<typename Value>
struct Named {
    const char* name;
    Value value;
};

constexpr Named<KxOutputFormat::Codec> Codecs[] = {
    {"h264", KxOutputFormat::Codec::H264}, {"hevc", KxOutputFormat::Codec::Hevc}, {"av1", KxOutputFormat::Codec::Av1}};
constexpr Named<KxOutputFormat::Encoder> Encoders[] = {{"software", KxOutputFormat::Encoder::Software},
                                                       {"auto", KxOutputFormat::Encoder::Auto},
                                                       {"vaapi", KxOutputFormat::Encoder::Vaapi},
                                                       {"nvenc", KxOutputFormat::Encoder::Nvenc},
                                                       {"qsv", KxOutputFormat::Encoder::Qsv}};
constexpr Named<KxHighRange> HighRanges[] = {{"tonemap", KxHighRange::ToneMapped}, {"keep", KxHighRange::Kept}};
constexpr Named<KxOutputFormat::Sound> Sounds[] = {{"encode", KxOutputFormat::Sound::Encoded},
                                                   {"copy", KxOutputFormat::Sound::Copied},
                                                   {"auto", KxOutputFormat::Sound::Automatic}};

/// Nothing for a word that is not in the table.
template<typename Value, size_t Count>
std::optional<Value> ValueOf(const Named<Value> (&names)[Count], const QString& name)
{
    for (const Named<Value>& named : names) {
        if (name == QLatin1String(named.name)) {
            return named.value;
        }
    }
    return std::nullopt;
}

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
} // namespace KxOutputFormatNames
