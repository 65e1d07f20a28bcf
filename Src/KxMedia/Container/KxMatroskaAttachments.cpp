#include <KxMedia/Container/KxMatroskaAttachments.h>

#include <QByteArray>

#include <algorithm>
#include <optional>

namespace
{

constexpr quint32 EbmlId = 0x1a45dfa3;
constexpr quint32 SegmentId = 0x18538067;
constexpr quint32 SeekHeadId = 0x114d9b74;
constexpr quint32 SeekId = 0x4dbb;
constexpr quint32 SeekIdId = 0x53ab;
constexpr quint32 SeekPositionId = 0x53ac;
constexpr quint32 ClusterId = 0x1f43b675;
constexpr quint32 AttachmentsId = 0x1941a469;
constexpr int MostElements = 64;
constexpr qint64 LargestSeekHead = 64 * 1024;

struct Element {
    quint32 id = 0;
    qint64 begin = 0;
    qint64 contentBegin = 0;
    qint64 contentBytes = 0;

    qint64 End() const { return contentBegin + contentBytes; }
};

// One byte more than the first byte has leading zero bits.
int LengthOf(uchar first)
{
    int length = 1;
    while (length <= 8 && (first & (0x80 >> (length - 1))) == 0) {
        ++length;
    }
    return length;
}

quint64 BigEndian(const QByteArray& bytes)
{
    quint64 value = 0;
    for (const char byte : bytes.left(8)) {
        value = value << 8 | static_cast<uchar>(byte);
    }
    return value;
}

// Empty unless an element of known size begins here.
std::optional<Element> ElementIn(const QByteArray& bytes, qint64 position)
{
    const int idBytes = bytes.isEmpty() ? 9 : LengthOf(static_cast<uchar>(bytes.at(0)));
    if (idBytes > 4 || idBytes >= bytes.size()) {
        return std::nullopt;
    }
    const auto first = static_cast<uchar>(bytes.at(idBytes));
    const int sizeBytes = LengthOf(first);
    if (sizeBytes > 8 || idBytes + sizeBytes > bytes.size()) {
        return std::nullopt;
    }
    const quint64 mask = (quint64{1} << (7 * sizeBytes)) - 1;
    const quint64 size = BigEndian(bytes.mid(idBytes, sizeBytes)) & mask;
    constexpr quint64 largestFile = quint64{1} << 56;
    if (size == mask || size >= largestFile - 1) {
        return std::nullopt;
    }
    return Element{static_cast<quint32>(BigEndian(bytes.left(idBytes))), position, position + idBytes + sizeBytes,
                   static_cast<qint64>(size)};
}

bool SeekTo(QIODevice& file, qint64 position)
{
    return position <= file.size() && file.seek(position);
}

std::optional<Element> ElementAt(QIODevice& file, qint64 position)
{
    constexpr qint64 longestHeader = 12;
    return SeekTo(file, position) ? ElementIn(file.read(longestHeader), position) : std::nullopt;
}

// Positions of attachment lists according to an index, relative to the segment's content.
std::vector<qint64> IndexedAttachments(const QByteArray& seekHead)
{
    std::vector<qint64> positions;
    qint64 place = 0;
    quint64 id = 0;
    while (const std::optional<Element> element = ElementIn(seekHead.mid(static_cast<int>(place)), place)) {
        const QByteArray content =
            seekHead.mid(static_cast<int>(element->contentBegin),
                         static_cast<int>(std::min<qint64>(element->contentBytes, LargestSeekHead)));
        if (element->id == SeekIdId) {
            id = BigEndian(content);
        } else if (element->id == SeekPositionId && id == AttachmentsId) {
            positions.push_back(static_cast<qint64>(BigEndian(content) & ((quint64{1} << 56) - 1)));
        }
        place = element->id == SeekId ? element->contentBegin : element->End();
    }
    return positions;
}

} // namespace

std::vector<qint64> KxLargeAttachments(QIODevice& file, qint64 largestBytes)
{
    std::vector<qint64> found;
    const auto note = [&](const std::optional<Element>& element) {
        if (element && element->id == AttachmentsId && element->contentBytes > largestBytes) {
            found.push_back(element->begin);
        }
    };
    const std::optional<Element> header = ElementAt(file, 0);
    if (!header || header->id != EbmlId || !SeekTo(file, header->End())) {
        return found;
    }
    // A segment may have an unknown size, as in a live recording.
    const QByteArray segment = file.read(12);
    const int sizeBytes = segment.size() > 4 ? LengthOf(static_cast<uchar>(segment.at(4))) : 9;
    if (sizeBytes > 8 || BigEndian(segment.left(4)) != SegmentId) {
        return found;
    }
    const qint64 begin = header->End() + 4 + sizeBytes;
    std::optional<Element> element = ElementAt(file, begin);
    for (int count = 0; element && element->id != ClusterId && count < MostElements; ++count) {
        note(element);
        if (element->id == SeekHeadId && SeekTo(file, element->contentBegin)) {
            for (const qint64 position :
                 IndexedAttachments(file.read(std::min(element->contentBytes, LargestSeekHead)))) {
                note(ElementAt(file, begin + position));
            }
        }
        element = ElementAt(file, element->End());
    }
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}
