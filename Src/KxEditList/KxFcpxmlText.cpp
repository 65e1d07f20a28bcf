#include <KxEditList/KxFcpxmlText.h>

#include <QFileInfo>
#include <QUrl>
#include <QXmlStreamWriter>

#include <initializer_list>

namespace
{

struct Attribute {
    const char* name;
    QString value;
};

class Writer
{
public:
    Writer(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys)
        : m_clip(clip)
        , m_keys(keys)
        , m_name(QFileInfo(clip.path).completeBaseName())
        , m_duration(Time(clip.FrameCount()))
        , m_xml(&m_text)
    {
    }

    QByteArray Text();

private:
    QString Time(qint64 frame) const;
    void Start(const char* name, std::initializer_list<Attribute> attributes = {});
    void Leaf(const char* name, std::initializer_list<Attribute> attributes);
    void Resources();
    void Format(const QString& id, const QSize& size);
    void Asset();
    void Clip();
    /// `valueOf` gives the pair of numbers of a key.
    template<typename ValueOf>
    void Parameter(const QString& name, ValueOf valueOf);

    const KxCroppedClip& m_clip;
    const std::vector<KxPlacementKey>& m_keys;
    QString m_name;
    QString m_duration;
    QByteArray m_text;
    QXmlStreamWriter m_xml;
};

QString Writer::Time(qint64 frame) const
{
    return QStringLiteral("%1/%2s").arg(QString::number(frame * m_clip.frameRate.denominator),
                                        QString::number(m_clip.frameRate.numerator));
}

void Writer::Start(const char* name, std::initializer_list<Attribute> attributes)
{
    m_xml.writeStartElement(QLatin1String(name));
    for (const Attribute& attribute : attributes) {
        m_xml.writeAttribute(QLatin1String(attribute.name), attribute.value);
    }
}

void Writer::Leaf(const char* name, std::initializer_list<Attribute> attributes)
{
    Start(name, attributes);
    m_xml.writeEndElement();
}

void Writer::Format(const QString& id, const QSize& size)
{
    Leaf("format", {{"id", id},
                    {"frameDuration", Time(1)},
                    {"width", QString::number(size.width())},
                    {"height", QString::number(size.height())}});
}

void Writer::Asset()
{
    Start("asset", {{"id", QStringLiteral("r3")},
                    {"name", m_name},
                    {"start", QStringLiteral("0s")},
                    {"duration", m_duration},
                    {"hasVideo", QStringLiteral("1")},
                    {"format", QStringLiteral("r1")}});
    if (m_clip.hasSound) {
        m_xml.writeAttribute(QStringLiteral("hasAudio"), QStringLiteral("1"));
        m_xml.writeAttribute(QStringLiteral("audioSources"), QStringLiteral("1"));
    }
    const QUrl url = QUrl::fromLocalFile(QFileInfo(m_clip.path).absoluteFilePath());
    Leaf("media-rep", {{"kind", QStringLiteral("original-media")}, {"src", QString::fromLatin1(url.toEncoded())}});
    m_xml.writeEndElement();
}

void Writer::Resources()
{
    Start("resources");
    Format(QStringLiteral("r1"), m_clip.size);
    Format(QStringLiteral("r2"), m_clip.outputSize);
    Asset();
    m_xml.writeEndElement();
}

template<typename ValueOf>
void Writer::Parameter(const QString& name, ValueOf valueOf)
{
    Start("param", {{"name", name}});
    Start("keyframeAnimation");
    for (const KxPlacementKey& key : m_keys) {
        const QPointF value = valueOf(key);
        Leaf("keyframe", {{"time", Time(key.frame)},
                          {"value", QStringLiteral("%1 %2").arg(QString::number(value.x(), 'f', 8),
                                                                QString::number(value.y(), 'f', 8))},
                          {"curve", QStringLiteral("linear")}});
    }
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

void Writer::Clip()
{
    Start("asset-clip", {{"ref", QStringLiteral("r3")},
                         {"offset", QStringLiteral("0s")},
                         {"name", m_name},
                         {"start", QStringLiteral("0s")},
                         {"duration", m_duration},
                         {"tcFormat", QStringLiteral("NDF")}});
    // The picture's pixels are the project's before the transform.
    Leaf("adjust-conform", {{"type", QStringLiteral("none")}});
    Start("adjust-transform");
    // How far the middle of the picture lies from the middle of the frame, to the right and up, in hundredths of the
    // frame's height.
    const QSizeF frame = m_clip.outputSize;
    Parameter(QStringLiteral("position"), [&frame](const KxPlacementKey& key) {
        constexpr double hundredths = 100.0;
        const QPointF middle = key.place.center();
        return QPointF(middle.x() - frame.width() / 2.0, frame.height() / 2.0 - middle.y()) * hundredths /
               frame.height();
    });
    Parameter(QStringLiteral("scale"), [this](const KxPlacementKey& key) {
        return QPointF(key.place.width() / m_clip.size.width(), key.place.height() / m_clip.size.height());
    });
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

QByteArray Writer::Text()
{
    m_xml.setAutoFormatting(true);
    m_xml.writeStartDocument();
    m_xml.writeDTD(QStringLiteral("<!DOCTYPE fcpxml>"));
    Start("fcpxml", {{"version", QStringLiteral("1.10")}});
    Resources();
    Start("library");
    Start("event", {{"name", m_name}});
    Start("project", {{"name", m_name}});
    Start("sequence", {{"format", QStringLiteral("r2")},
                       {"duration", m_duration},
                       {"tcStart", QStringLiteral("0s")},
                       {"tcFormat", QStringLiteral("NDF")}});
    Start("spine");
    Clip();
    m_xml.writeEndDocument();
    return m_text;
}

} // namespace

QByteArray KxFcpxmlText::Of(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys)
{
    return Writer(clip, keys).Text();
}
