#include <KxModel/KxFollowTrackFormat.h>

#include <QCryptographicHash>
#include <QDataStream>

#include <cmath>

namespace
{

constexpr quint32 Magic = 0x4B584654; // "KXFT"
constexpr int ChecksumBytes = 20;
constexpr int HeaderBytes = 12;
constexpr int PointBytes = 46;

QByteArray ChecksumOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

bool IsValid(const KxFollowTrack::Point& point, qint64 frameBefore)
{
    const KxSubjectBox& box = point.box;
    return point.frame > frameBefore && std::isfinite(box.x) && std::isfinite(box.y) && std::isfinite(box.width) &&
           std::isfinite(box.height) && point.confidence >= 0.0F && point.confidence <= 1.0F;
}

} // namespace

QByteArray KxFollowTrackFormat::Write(const KxFollowTrack& track)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_12);
    stream << Magic << Version << static_cast<quint32>(track.points.size());
    for (const KxFollowTrack::Point& point : track.points) {
        stream << point.frame << point.box.x << point.box.y << point.box.width << point.box.height
               << static_cast<double>(point.confidence) << point.isDoubted << point.isAmbiguous;
    }
    return bytes + ChecksumOf(bytes);
}

std::optional<KxFollowTrack> KxFollowTrackFormat::Read(const QByteArray& bytes)
{
    const QByteArray content = bytes.left(bytes.size() - ChecksumBytes);
    if (bytes.size() < HeaderBytes + ChecksumBytes || bytes.right(ChecksumBytes) != ChecksumOf(content)) {
        return std::nullopt;
    }
    QDataStream stream(content);
    stream.setVersion(QDataStream::Qt_5_12);
    quint32 magic = 0;
    quint32 version = 0;
    quint32 count = 0;
    stream >> magic >> version >> count;
    if (magic != Magic || version != Version || qint64{count} * PointBytes != content.size() - HeaderBytes) {
        return std::nullopt;
    }
    KxFollowTrack track;
    qint64 frameBefore = -1;
    for (quint32 i = 0; i < count; ++i) {
        KxFollowTrack::Point point;
        double confidence = 0.0;
        stream >> point.frame >> point.box.x >> point.box.y >> point.box.width >> point.box.height >> confidence >>
            point.isDoubted >> point.isAmbiguous;
        point.confidence = static_cast<float>(confidence);
        if (!IsValid(point, frameBefore)) {
            return std::nullopt;
        }
        frameBefore = point.frame;
        track.points.push_back(point);
    }
    return track;
}
