#include <KxEditList/KxMltText.h>

#include <QFileInfo>
#include <QXmlStreamWriter>

namespace
{

/// In pictures of less height, video without colour tags is taken as BT.601, in others as BT.709.
constexpr int LeastHighDefinitionHeight = 720;

QString Number(double value)
{
    return QString::number(value, 'f', 4);
}

/// The filter `qtblend` moves a picture of unchanged size in whole pixels; one that is wider by this much moves evenly.
constexpr double WiderPx = 0.01;

/// MLT's animation syntax: `=` is linear until the next key, `|=` holds.
QString Animation(const std::vector<KxPlacementKey>& keys, double widerPx)
{
    QStringList parts;
    for (const KxPlacementKey& key : keys) {
        parts += QStringLiteral("%1%2%3 %4 %5 %6 1")
                     .arg(QString::number(key.frame), key.holds ? QStringLiteral("|=") : QStringLiteral("="),
                          Number(key.place.x()), Number(key.place.y()), Number(key.place.width() + widerPx),
                          Number(key.place.height()));
    }
    return parts.join(QLatin1Char(';'));
}

class Writer
{
public:
    Writer(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys, KxMltText::Editor editor)
        : m_clip(clip)
        , m_keys(keys)
        , m_editor(editor)
        , m_last(QString::number(clip.FrameCount() - 1))
        , m_length(QString::number(clip.FrameCount()))
        , m_xml(&m_text)
    {
    }

    QByteArray Text();

private:
    void Property(const char* name, const QString& value);
    void Profile();
    void Source();
    void Crop();
    void Playlist(const QString& id, const QString& producer);
    void KdenliveBin();
    void Timeline();

    const KxCroppedClip& m_clip;
    const std::vector<KxPlacementKey>& m_keys;
    KxMltText::Editor m_editor;
    QString m_last;
    QString m_length;
    QByteArray m_text;
    QXmlStreamWriter m_xml;
};

void Writer::Property(const char* name, const QString& value)
{
    m_xml.writeStartElement(QStringLiteral("property"));
    m_xml.writeAttribute(QStringLiteral("name"), QLatin1String(name));
    m_xml.writeCharacters(value);
    m_xml.writeEndElement();
}

void Writer::Profile()
{
    const QSize size = m_clip.outputSize;
    m_xml.writeStartElement(QStringLiteral("profile"));
    const QList<std::pair<const char*, int>> numbers{
        {"width", size.width()},
        {"height", size.height()},
        {"frame_rate_num", m_clip.frameRate.numerator},
        {"frame_rate_den", m_clip.frameRate.denominator},
        {"sample_aspect_num", 1},
        {"sample_aspect_den", 1},
        {"display_aspect_num", size.width()},
        {"display_aspect_den", size.height()},
        {"progressive", 1},
        {"colorspace", m_clip.size.height() < LeastHighDefinitionHeight ? 601 : 709},
    };
    for (const auto& [name, number] : numbers) {
        m_xml.writeAttribute(QLatin1String(name), QString::number(number));
    }
    m_xml.writeEndElement();
}

void Writer::Crop()
{
    const bool isShotcut = m_editor == KxMltText::Editor::Shotcut;
    m_xml.writeStartElement(QStringLiteral("filter"));
    m_xml.writeAttribute(QStringLiteral("id"), QStringLiteral("crop"));
    m_xml.writeAttribute(QStringLiteral("out"), m_last);
    if (isShotcut) {
        Property("mlt_service", QStringLiteral("affine"));
        Property("shotcut:filter", QStringLiteral("affineSizePosition"));
        Property("background", QStringLiteral("color:#000000"));
        Property("transition.fill", QStringLiteral("1"));
        Property("transition.distort", QStringLiteral("1"));
        Property("transition.repeat_off", QStringLiteral("1"));
        Property("transition.mirror_off", QStringLiteral("1"));
        Property("transition.rect", Animation(m_keys, 0.0));
    } else {
        Property("mlt_service", QStringLiteral("qtblend"));
        Property("kdenlive_id", QStringLiteral("qtblend"));
        Property("compositing", QStringLiteral("0"));
        Property("distort", QStringLiteral("1"));
        Property("rect", Animation(m_keys, WiderPx));
    }
    m_xml.writeEndElement();
}

void Writer::Source()
{
    m_xml.writeStartElement(QStringLiteral("producer"));
    m_xml.writeAttribute(QStringLiteral("id"), QStringLiteral("source"));
    m_xml.writeAttribute(QStringLiteral("in"), QStringLiteral("0"));
    m_xml.writeAttribute(QStringLiteral("out"), m_last);
    Property("length", m_length);
    Property("eof", QStringLiteral("pause"));
    Property("resource", m_clip.path);
    Property("mlt_service", QStringLiteral("avformat"));
    if (m_editor == KxMltText::Editor::Kdenlive) {
        Property("kdenlive:id", QStringLiteral("2"));
    }
    m_xml.writeEndElement();
}

void Writer::Playlist(const QString& id, const QString& producer)
{
    m_xml.writeStartElement(QStringLiteral("playlist"));
    m_xml.writeAttribute(QStringLiteral("id"), id);
    m_xml.writeStartElement(QStringLiteral("entry"));
    m_xml.writeAttribute(QStringLiteral("producer"), producer);
    m_xml.writeAttribute(QStringLiteral("in"), QStringLiteral("0"));
    m_xml.writeAttribute(QStringLiteral("out"), m_last);
    if (m_editor == KxMltText::Editor::Kdenlive) {
        Property("kdenlive:id", QStringLiteral("2"));
    }
    Crop();
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

void Writer::KdenliveBin()
{
    m_xml.writeStartElement(QStringLiteral("playlist"));
    m_xml.writeAttribute(QStringLiteral("id"), QStringLiteral("main_bin"));
    Property("kdenlive:docproperties.version", QStringLiteral("1.04"));
    Property("xml_retain", QStringLiteral("1"));
    m_xml.writeStartElement(QStringLiteral("entry"));
    m_xml.writeAttribute(QStringLiteral("producer"), QStringLiteral("source"));
    m_xml.writeAttribute(QStringLiteral("in"), QStringLiteral("0"));
    m_xml.writeAttribute(QStringLiteral("out"), m_last);
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

void Writer::Timeline()
{
    m_xml.writeStartElement(QStringLiteral("tractor"));
    m_xml.writeAttribute(QStringLiteral("id"), QStringLiteral("timeline"));
    m_xml.writeAttribute(QStringLiteral("in"), QStringLiteral("0"));
    m_xml.writeAttribute(QStringLiteral("out"), m_last);
    if (m_editor == KxMltText::Editor::Shotcut) {
        Property("shotcut", QStringLiteral("1"));
    }
    m_xml.writeStartElement(QStringLiteral("track"));
    m_xml.writeAttribute(QStringLiteral("producer"), QStringLiteral("video"));
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

QByteArray Writer::Text()
{
    m_xml.setAutoFormatting(true);
    m_xml.writeStartDocument();
    m_xml.writeStartElement(QStringLiteral("mlt"));
    // Numbers have a point whatever the reader's language is.
    m_xml.writeAttribute(QStringLiteral("LC_NUMERIC"), QStringLiteral("C"));
    m_xml.writeAttribute(QStringLiteral("version"), QStringLiteral("7.0.0"));
    m_xml.writeAttribute(QStringLiteral("title"), QFileInfo(m_clip.path).fileName());
    m_xml.writeAttribute(QStringLiteral("producer"), m_editor == KxMltText::Editor::Kdenlive
                                                         ? QStringLiteral("main_bin")
                                                         : QStringLiteral("timeline"));
    Profile();
    Source();
    if (m_editor == KxMltText::Editor::Kdenlive) {
        KdenliveBin();
    }
    Playlist(QStringLiteral("video"), QStringLiteral("source"));
    Timeline();
    m_xml.writeEndDocument();
    return m_text;
}

} // namespace

QByteArray KxMltText::Of(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys, Editor editor)
{
    return Writer(clip, keys, editor).Text();
}
