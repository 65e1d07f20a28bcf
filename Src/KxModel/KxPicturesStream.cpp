#include <KxModel/KxPicturesStream.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr quint64 Magic = 0x4b58506963730002; // grows with each change of the format
constexpr qint64 EndMark = -1;
constexpr double SecondsBefore = 0.5;

} // namespace

bool KxPicturesStream::Header::IsOf(const KxVideoFacts& video) const
{
    return frameCount == video.frameCount && resolution == video.resolution && frameRate == video.frameRate;
}

qint64 KxPicturesStream::FramesBefore(const KxFrameRange& frames, const KxRational& rate)
{
    return std::min(frames.first, static_cast<qint64>(std::ceil(SecondsBefore * rate.ToDouble())));
}

void KxPicturesStream::Write(QDataStream& stream, const Header& header)
{
    stream << Magic << header.madeBy << header.frames.first << header.frames.end << header.frameCount
           << header.resolution << header.frameRate.numerator << header.frameRate.denominator;
}

void KxPicturesStream::Write(QDataStream& stream, const Record& record)
{
    if (record.frame) {
        stream << *record.frame << record.shot << record.whole;
    } else {
        stream << EndMark << record.endedEarly;
    }
}

std::optional<KxPicturesStream::Header> KxPicturesStream::ReadHeader(QDataStream& stream)
{
    quint64 magic = 0;
    stream >> magic;
    if (magic != Magic) {
        return std::nullopt;
    }
    Header header;
    stream >> header.madeBy >> header.frames.first >> header.frames.end >> header.frameCount >> header.resolution >>
        header.frameRate.numerator >> header.frameRate.denominator;
    const bool isSane = stream.status() == QDataStream::Ok && header.frames.first >= 0 && header.frames.Count() > 0 &&
                        header.frames.end <= header.frameCount && header.frameRate.IsPositive();
    return isSane ? std::optional(header) : std::nullopt;
}

std::optional<KxPicturesStream::Record> KxPicturesStream::ReadRecord(QDataStream& stream)
{
    Record record;
    qint64 frame = EndMark;
    stream >> frame;
    if (frame == EndMark) {
        stream >> record.endedEarly;
    } else {
        record.frame = frame;
        stream >> record.shot >> record.whole;
    }
    return stream.status() == QDataStream::Ok ? std::optional(record) : std::nullopt;
}
