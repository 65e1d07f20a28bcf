#include <Tests/KxEditList/CroppedClips.h>

#include <KxEditList/KxEditList.h>
#include <KxEditList/KxPlacementKeys.h>

#include <KxCore/KxCropWindow.h>

#include <QRegularExpression>
#include <QUrl>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace
{

/// Position and scale of a picture by frame, as a list of keys states them.
struct Transform {
    std::map<qint64, QPointF> position;
    std::map<qint64, QPointF> scale;
};

QPointF At(const std::map<qint64, QPointF>& keys, qint64 frame)
{
    const auto next = keys.lower_bound(frame);
    if (next->first == frame) {
        return next->second;
    }
    const auto before = std::prev(next);
    const double share = static_cast<double>(frame - before->first) / static_cast<double>(next->first - before->first);
    return before->second + (next->second - before->second) * share;
}

/// The middle of the picture in pixels of the frame, y downwards, and factors of its size, give the crop in pixels.
QRectF CropOf(const KxCroppedClip& clip, const QPointF& middle, const QPointF& factor)
{
    const QSizeF window(clip.outputSize.width() / factor.x(), clip.outputSize.height() / factor.y());
    return {
        QPointF(clip.size.width() / 2.0 - middle.x() / factor.x(), clip.size.height() / 2.0 - middle.y() / factor.y()),
        window};
}

void ExpectCropTrack(const KxCroppedClip& clip, const Transform& read)
{
    ASSERT_FALSE(read.position.empty());
    ASSERT_FALSE(read.scale.empty());
    ASSERT_EQ(read.position.rbegin()->first, clip.FrameCount() - 1);
    const std::vector<KxPlacementKey> keys = KxPlacementKeys::Of(clip);
    ASSERT_EQ(read.position.size(), keys.size());
    for (qint64 frame = 0; frame < clip.FrameCount(); ++frame) {
        const QRectF crop = CropOf(clip, At(read.position, frame), At(read.scale, frame));
        const QRectF wanted = KxCropWindow::Pixels(clip.crops[static_cast<std::size_t>(frame)], clip.size);
        // At a key to a hundredth of a pixel; the tolerance applies in between.
        const double tolerance = read.position.count(frame) > 0 ? 0.01 : KxPlacementKeys::TolerancePx + 0.01;
        EXPECT_NEAR(crop.left(), wanted.left(), tolerance) << "frame " << frame;
        EXPECT_NEAR(crop.top(), wanted.top(), tolerance) << "frame " << frame;
        EXPECT_NEAR(crop.width(), wanted.width(), tolerance) << "frame " << frame;
        EXPECT_NEAR(crop.height(), wanted.height(), tolerance) << "frame " << frame;
    }
}

Transform ReadKeyframeText(const KxCroppedClip& clip, const QByteArray& text)
{
    Transform read;
    std::map<qint64, QPointF>* rows = nullptr;
    for (const QByteArray& line : text.split('\n')) {
        const QList<QByteArray> cells = line.split('\t');
        if (line == "Transform\tPosition") {
            rows = &read.position;
        } else if (line == "Transform\tScale") {
            rows = &read.scale;
        } else if (rows != nullptr && cells.size() == 6 && cells.at(1) != "Frame") {
            const QPointF value(cells.at(2).toDouble(), cells.at(3).toDouble());
            (*rows)[cells.at(1).toLongLong()] = rows == &read.scale ? value / 100.0 : value;
        }
    }
    EXPECT_FALSE(clip.crops.empty());
    return read;
}

/// Frame numbers of times on the frame grid; anything else is an error.
qint64 FrameOf(const KxCroppedClip& clip, const QString& time)
{
    const QRegularExpressionMatch match = QRegularExpression(QStringLiteral("^(\\d+)/(\\d+)s$")).match(time);
    EXPECT_TRUE(match.hasMatch()) << time.toStdString();
    const qint64 numerator = match.captured(1).toLongLong();
    EXPECT_EQ(match.captured(2).toLongLong(), clip.frameRate.numerator);
    EXPECT_EQ(numerator % clip.frameRate.denominator, 0) << time.toStdString();
    return numerator / clip.frameRate.denominator;
}

Transform ReadFcpxml(const KxCroppedClip& clip, const QByteArray& text)
{
    Transform read;
    std::map<qint64, QPointF>* keys = nullptr;
    QXmlStreamReader xml(text);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == QLatin1String("param")) {
            keys = attributes.value(QLatin1String("name")) == QLatin1String("scale") ? &read.scale : &read.position;
        } else if (xml.name() == QLatin1String("keyframe")) {
            const QStringList numbers = attributes.value(QLatin1String("value")).toString().split(QLatin1Char(' '));
            EXPECT_EQ(numbers.size(), 2);
            EXPECT_EQ(attributes.value(QLatin1String("curve")), QLatin1String("linear"));
            QPointF value(numbers.value(0).toDouble(), numbers.value(1).toDouble());
            if (keys == &read.position) {
                // Hundredths of the frame's height, upwards, from its middle.
                value *= clip.outputSize.height() / 100.0;
                value = {clip.outputSize.width() / 2.0 + value.x(), clip.outputSize.height() / 2.0 - value.y()};
            }
            (*keys)[FrameOf(clip, attributes.value(QLatin1String("time")).toString())] = value;
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return read;
}

/// Each element with its children in order, from the first element of every kind.
std::map<QString, QStringList> Structure(const QByteArray& text)
{
    std::map<QString, QStringList> structure;
    QStringList open;
    std::map<QString, bool> isClosed;
    QXmlStreamReader xml(text);
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            const QString name = xml.name().toString();
            if (!open.isEmpty() && !isClosed[open.last()]) {
                structure[open.last()] += name;
            }
            open += name;
        } else if (token == QXmlStreamReader::EndElement) {
            isClosed[open.takeLast()] = true;
        }
    }
    return structure;
}

/// The attribute of the first such element.
QString AttributeOf(const QByteArray& text, const QString& element, const QString& attribute)
{
    QXmlStreamReader xml(text);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == element) {
            return xml.attributes().value(attribute).toString();
        }
    }
    return {};
}

} // namespace

TEST(KxEditListTest, KeyframeTextReadsBackAsTheCropTrack)
{
    const KxCroppedClip clip = CroppedClips::Pan();
    const QByteArray text = KxEditList::Text(clip, QStringLiteral("txt"));
    EXPECT_TRUE(text.startsWith("Adobe After Effects 8.0 Keyframe Data\n"));
    EXPECT_TRUE(text.endsWith("End of Keyframe Data\n"));
    EXPECT_TRUE(text.contains("\tUnits Per Second\t29.970030\n"));
    ExpectCropTrack(clip, ReadKeyframeText(clip, text));
}

TEST(KxEditListTest, FcpxmlReadsBackAsTheCropTrack)
{
    const KxCroppedClip clip = CroppedClips::Pan();
    ExpectCropTrack(clip, ReadFcpxml(clip, KxEditList::Text(clip, QStringLiteral("fcpxml"))));
}

TEST(KxEditListTest, FcpxmlHasThePublishedStructure)
{
    const KxCroppedClip clip = CroppedClips::Pan();
    const QByteArray text = KxEditList::Text(clip, QStringLiteral("fcpxml"));
    std::map<QString, QStringList> structure = Structure(text);
    EXPECT_EQ(structure[QStringLiteral("fcpxml")],
              (QStringList{QStringLiteral("resources"), QStringLiteral("library")}));
    EXPECT_EQ(structure[QStringLiteral("resources")],
              (QStringList{QStringLiteral("format"), QStringLiteral("format"), QStringLiteral("asset")}));
    EXPECT_EQ(structure[QStringLiteral("asset")], QStringList{QStringLiteral("media-rep")});
    EXPECT_EQ(structure[QStringLiteral("library")], QStringList{QStringLiteral("event")});
    EXPECT_EQ(structure[QStringLiteral("event")], QStringList{QStringLiteral("project")});
    EXPECT_EQ(structure[QStringLiteral("project")], QStringList{QStringLiteral("sequence")});
    EXPECT_EQ(structure[QStringLiteral("sequence")], QStringList{QStringLiteral("spine")});
    EXPECT_EQ(structure[QStringLiteral("spine")], QStringList{QStringLiteral("asset-clip")});
    EXPECT_EQ(structure[QStringLiteral("asset-clip")],
              (QStringList{QStringLiteral("adjust-conform"), QStringLiteral("adjust-transform")}));
    EXPECT_EQ(structure[QStringLiteral("adjust-transform")],
              (QStringList{QStringLiteral("param"), QStringLiteral("param")}));
    EXPECT_EQ(structure[QStringLiteral("param")], QStringList{QStringLiteral("keyframeAnimation")});
    EXPECT_EQ(AttributeOf(text, QStringLiteral("fcpxml"), QStringLiteral("version")), QStringLiteral("1.10"));
    EXPECT_EQ(AttributeOf(text, QStringLiteral("format"), QStringLiteral("frameDuration")),
              QStringLiteral("1001/30000s"));
    EXPECT_EQ(AttributeOf(text, QStringLiteral("sequence"), QStringLiteral("duration")),
              QStringLiteral("200200/30000s"));
    EXPECT_EQ(AttributeOf(text, QStringLiteral("asset"), QStringLiteral("hasAudio")), QStringLiteral("1"));
}

TEST(KxEditListTest, FcpxmlNamesTheFileAsAUrl)
{
    const QByteArray text = KxEditList::Text(CroppedClips::Pan(), QStringLiteral("fcpxml"));
    const QString url = AttributeOf(text, QStringLiteral("media-rep"), QStringLiteral("src"));
    EXPECT_TRUE(url.startsWith(QLatin1String("file:///"))) << url.toStdString();
    EXPECT_FALSE(url.contains(QLatin1Char(' '))) << url.toStdString();
    EXPECT_EQ(QUrl(url).fileName(), QStringLiteral("one & two.mp4"));
}

TEST(KxEditListTest, MltMovesLinearlyAndHoldsAtACut)
{
    KxCroppedClip clip = CroppedClips::Pan();
    clip.outputSize = QSize(608, 1080);
    const QString text = QString::fromUtf8(KxEditList::Text(clip, QStringLiteral("mlt")));
    const QRegularExpression rect(QStringLiteral("<property name=\"transition.rect\">([^<]*)</property>"));
    const QStringList keys = rect.match(text).captured(1).split(QLatin1Char(';'));
    ASSERT_EQ(static_cast<std::size_t>(keys.size()), KxPlacementKeys::Of(clip).size());
    EXPECT_EQ(keys.first(), QStringLiteral("0=0.0000 0.0000 1921.5802 1080.0000 1"));
    EXPECT_EQ(keys.filter(QStringLiteral("|=")).size(), 1);
    EXPECT_TRUE(keys.filter(QStringLiteral("|=")).first().startsWith(QLatin1String("149|=")));
    EXPECT_TRUE(text.contains(QLatin1String("LC_NUMERIC=\"C\"")));
    EXPECT_TRUE(text.contains(QLatin1String("<property name=\"resource\">/videos/one &amp; two.mp4</property>")));
}

TEST(KxEditListTest, KdenliveHasTheSameKeysForItsOwnFilterAHundredthWider)
{
    const KxCroppedClip clip = CroppedClips::Pan();
    const auto keysOf = [&clip](const char* suffix, const char* property) {
        const QString text = QString::fromUtf8(KxEditList::Text(clip, QLatin1String(suffix)));
        const QRegularExpression rect(
            QStringLiteral("<property name=\"%1\">([^<]*)</property>").arg(QLatin1String(property)));
        return rect.match(text).captured(1);
    };
    const QStringList wider = keysOf("kdenlive", "rect").split(QLatin1Char(';'));
    const QStringList keys = keysOf("mlt", "transition.rect").split(QLatin1Char(';'));
    ASSERT_EQ(wider.size(), keys.size());
    for (int i = 0; i < keys.size(); ++i) {
        QStringList numbers = keys.at(i).split(QLatin1Char(' '));
        numbers[2] = QString::number(numbers.at(2).toDouble() + 0.01, 'f', 4);
        EXPECT_EQ(wider.at(i), numbers.join(QLatin1Char(' ')));
    }
}

TEST(KxEditListTest, TheSuffixMayBeInCapitals)
{
    const KxCroppedClip clip = CroppedClips::Pan();
    EXPECT_EQ(KxEditList::Text(clip, QStringLiteral("MLT")), KxEditList::Text(clip, QStringLiteral("mlt")));
}
