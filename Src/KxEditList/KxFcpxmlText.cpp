#include <KxEditList/KxFcpxmlText.h>

#include <KxEditList/KxXmlText.h>

#include <QFileInfo>
#include <QUrl>

namespace
{

class Writer
{
public:
    Writer(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys)
        : m_clip(clip)
        , m_keys(keys)
        , m_name(QFileInfo(clip.path).completeBaseName())
        , m_duration(Time(clip.FrameCount()))
    {
    }

    QByteArray Text();

private:
    QString Time(qint64 frame) const;
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
    KxXmlText m_xml;
};

QString Writer::Time(qint64 frame) const
{
    return QStringLiteral("%1/%2s").arg(QString::number(frame * m_clip.frameRate.denominator),
                                        QString::number(m_clip.frameRate.numerator));
}

void Writer::Format(const QString& id, const QSize& size)
{
    m_xml.Leaf("format", {{"id", id},
                          {"frameDuration", Time(1)},
                          {"width", QString::number(size.width())},
                          {"height", QString::number(size.height())}});
}

void Writer::Asset()
{
    m_xml.Start("asset", {{"id", QStringLiteral("r3")},
                          {"name", m_name},
                          {"start", QStringLiteral("0s")},
                          {"duration", m_duration},
                          {"hasVideo", QStringLiteral("1")},
                          {"format", QStringLiteral("r1")}});
    if (m_clip.hasSound) {
        m_xml.Add({"hasAudio", QStringLiteral("1")});
        m_xml.Add({"audioSources", QStringLiteral("1")});
    }
    const QUrl url = QUrl::fromLocalFile(QFileInfo(m_clip.path).absoluteFilePath());
    m_xml.Leaf("media-rep",
               {{"kind", QStringLiteral("original-media")}, {"src", QString::fromLatin1(url.toEncoded())}});
    m_xml.End();
}

void Writer::Resources()
{
    m_xml.Start("resources");
    Format(QStringLiteral("r1"), m_clip.size);
    Format(QStringLiteral("r2"), m_clip.outputSize);
    Asset();
    m_xml.End();
}

template<typename ValueOf>
void Writer::Parameter(const QString& name, ValueOf valueOf)
{
    m_xml.Start("param", {{"name", name}});
    m_xml.Start("keyframeAnimation");
    for (const KxPlacementKey& key : m_keys) {
        const QPointF value = valueOf(key);
        m_xml.Leaf("keyframe", {{"time", Time(key.frame)},
                                {"value", QStringLiteral("%1 %2").arg(QString::number(value.x(), 'f', 8),
                                                                      QString::number(value.y(), 'f', 8))},
                                {"curve", QStringLiteral("linear")}});
    }
    m_xml.End();
    m_xml.End();
}

void Writer::Clip()
{
    m_xml.Start("asset-clip", {{"ref", QStringLiteral("r3")},
                               {"offset", QStringLiteral("0s")},
                               {"name", m_name},
                               {"start", QStringLiteral("0s")},
                               {"duration", m_duration},
                               {"tcFormat", QStringLiteral("NDF")}});
    // The picture's pixels are the project's before the transform.
    m_xml.Leaf("adjust-conform", {{"type", QStringLiteral("none")}});
    m_xml.Start("adjust-transform");
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
    m_xml.End();
    m_xml.End();
}

QByteArray Writer::Text()
{
    m_xml.DocType(QStringLiteral("<!DOCTYPE fcpxml>"));
    m_xml.Start("fcpxml", {{"version", QStringLiteral("1.10")}});
    Resources();
    m_xml.Start("library");
    m_xml.Start("event", {{"name", m_name}});
    m_xml.Start("project", {{"name", m_name}});
    m_xml.Start("sequence", {{"format", QStringLiteral("r2")},
                             {"duration", m_duration},
                             {"tcStart", QStringLiteral("0s")},
                             {"tcFormat", QStringLiteral("NDF")}});
    m_xml.Start("spine");
    Clip();
    return m_xml.Finish();
}

} // namespace

QByteArray KxFcpxmlText::Of(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys)
{
    return Writer(clip, keys).Text();
}
