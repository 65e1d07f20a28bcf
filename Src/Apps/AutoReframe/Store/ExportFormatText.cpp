#include <Apps/AutoReframe/Store/ExportFormatText.h>

#include <KxMedia/Write/KxOutputFormatNames.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace
{

namespace Names = KxOutputFormatNames;

/// Leaves `value` as it is where the name is unknown, as of a later version.
template<typename Value, size_t Count>
void Take(const Names::Named<Value> (&names)[Count], const QJsonValue& name, Value& value)
{
    value = Names::ValueOf(names, name.toString()).value_or(value);
}

std::optional<double> NumberOf(const QJsonValue& value)
{
    return value.isDouble() ? std::optional(value.toDouble()) : std::nullopt;
}

} // namespace

QString ExportFormatText::Write(const KxOutputFormat& format)
{
    QJsonObject object{{QStringLiteral("codec"), Names::NameOf(Names::Codecs, format.codec)},
                       {QStringLiteral("encoder"), Names::NameOf(Names::Encoders, format.encoder)},
                       {QStringLiteral("hdr"), Names::NameOf(Names::HighRanges, format.highRange)},
                       {QStringLiteral("sound"), Names::NameOf(Names::Sounds, format.sound)}};
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
    Take(Names::Codecs, object.value(QStringLiteral("codec")), format.codec);
    Take(Names::Encoders, object.value(QStringLiteral("encoder")), format.encoder);
    Take(Names::HighRanges, object.value(QStringLiteral("hdr")), format.highRange);
    Take(Names::Sounds, object.value(QStringLiteral("sound")), format.sound);
    format.quality = NumberOf(object.value(QStringLiteral("quality")));
    format.loudnessLufs = NumberOf(object.value(QStringLiteral("loudness")));
    return format;
}
