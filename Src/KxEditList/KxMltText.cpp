#include <KxEditList/KxMltText.h>

#include <KxEditList/KxXmlText.h>

#include <QFileInfo>

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
    {
    }

    QByteArray Text();

private:
    void Property(const char* name, const QString& value);
    /// An element of the whole clip's length.
    void StartWhole(const char* element, const KxXmlText::Attribute& attribute);
    void Profile();
    void Source();
    void Crop();
    void Track();
    void KdenliveBin();
    void Timeline();

    const KxCroppedClip& m_clip;
    const std::vector<KxPlacementKey>& m_keys;
    KxMltText::Editor m_editor;
    QString m_last;
    KxXmlText m_xml;
};

void Writer::Property(const char* name, const QString& value)
{
    m_xml.Start("property", {{"name", QLatin1String(name)}});
    m_xml.Characters(value);
    m_xml.End();
}

void Writer::StartWhole(const char* element, const KxXmlText::Attribute& attribute)
{
    m_xml.Start(element, {attribute, {"in", QStringLiteral("0")}, {"out", m_last}});
}

void Writer::Profile()
{
    const auto number = [](int value) { return QString::number(value); };
    const QString width = number(m_clip.outputSize.width());
    const QString height = number(m_clip.outputSize.height());
    m_xml.Leaf("profile", {{"width", width},
                           {"height", height},
                           {"frame_rate_num", number(m_clip.frameRate.numerator)},
                           {"frame_rate_den", number(m_clip.frameRate.denominator)},
                           {"sample_aspect_num", number(1)},
                           {"sample_aspect_den", number(1)},
                           {"display_aspect_num", width},
                           {"display_aspect_den", height},
                           {"progressive", number(1)},
                           {"colorspace", number(m_clip.size.height() < LeastHighDefinitionHeight ? 601 : 709)}});
}

void Writer::Crop()
{
    const bool isShotcut = m_editor == KxMltText::Editor::Shotcut;
    StartWhole("filter", {"id", QStringLiteral("crop")});
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
    m_xml.End();
}

void Writer::Source()
{
    StartWhole("producer", {"id", QStringLiteral("source")});
    Property("length", QString::number(m_clip.FrameCount()));
    Property("eof", QStringLiteral("pause"));
    Property("resource", m_clip.path);
    Property("mlt_service", QStringLiteral("avformat"));
    if (m_editor == KxMltText::Editor::Kdenlive) {
        Property("kdenlive:id", QStringLiteral("2"));
    }
    m_xml.End();
}

void Writer::Track()
{
    m_xml.Start("playlist", {{"id", QStringLiteral("video")}});
    StartWhole("entry", {"producer", QStringLiteral("source")});
    if (m_editor == KxMltText::Editor::Kdenlive) {
        Property("kdenlive:id", QStringLiteral("2"));
    }
    Crop();
    m_xml.End();
    m_xml.End();
}

void Writer::KdenliveBin()
{
    m_xml.Start("playlist", {{"id", QStringLiteral("main_bin")}});
    Property("kdenlive:docproperties.version", QStringLiteral("1.04"));
    Property("xml_retain", QStringLiteral("1"));
    StartWhole("entry", {"producer", QStringLiteral("source")});
    m_xml.End();
    m_xml.End();
}

void Writer::Timeline()
{
    StartWhole("tractor", {"id", QStringLiteral("timeline")});
    if (m_editor == KxMltText::Editor::Shotcut) {
        Property("shotcut", QStringLiteral("1"));
    }
    m_xml.Leaf("track", {{"producer", QStringLiteral("video")}});
    m_xml.End();
}

QByteArray Writer::Text()
{
    const bool isKdenlive = m_editor == KxMltText::Editor::Kdenlive;
    // Numbers have a point whatever the reader's language is.
    m_xml.Start("mlt", {{"LC_NUMERIC", QStringLiteral("C")},
                        {"version", QStringLiteral("7.0.0")},
                        {"title", QFileInfo(m_clip.path).fileName()},
                        {"producer", isKdenlive ? QStringLiteral("main_bin") : QStringLiteral("timeline")}});
    Profile();
    Source();
    if (isKdenlive) {
        KdenliveBin();
    }
    Track();
    Timeline();
    return m_xml.Finish();
}

} // namespace

QByteArray KxMltText::Of(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys, Editor editor)
{
    return Writer(clip, keys, editor).Text();
}
