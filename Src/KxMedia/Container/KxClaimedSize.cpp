#include <KxMedia/Container/KxClaimedSize.h>

#include <QtEndian>

namespace
{

const QByteArray EbmlId = QByteArray::fromHex("1a45dfa3");
const QByteArray SegmentId = QByteArray::fromHex("18538067");

// A number of variable length: its first byte has one leading zero for each byte that follows. Returns nothing if all
// value bits are ones, which means unknown.
std::optional<qint64> TakeSize(const QByteArray& bytes, int& place)
{
    const int first = place < bytes.size() ? static_cast<uchar>(bytes.at(place)) : 0;
    int length = 1;
    while (length <= 8 && (first & (0x80 >> (length - 1))) == 0) {
        ++length;
    }
    if (length > 8 || place + length > bytes.size()) {
        return std::nullopt;
    }
    qint64 value = first & (0x7f >> (length - 1));
    for (int i = 1; i < length; ++i) {
        value = value << 8 | static_cast<uchar>(bytes.at(place + i));
    }
    place += length;
    const qint64 unknown = (qint64{1} << (7 * length)) - 1;
    return value != unknown ? std::optional<qint64>(value) : std::nullopt;
}

std::optional<qint64> MatroskaSize(const QByteArray& head)
{
    int place = EbmlId.size();
    const std::optional<qint64> headerSize = TakeSize(head, place);
    if (!headerSize || *headerSize > head.size()) {
        return std::nullopt;
    }
    place += static_cast<int>(*headerSize);
    if (head.mid(place, SegmentId.size()) != SegmentId) {
        return std::nullopt;
    }
    place += SegmentId.size();
    const std::optional<qint64> segmentSize = TakeSize(head, place);
    return segmentSize ? std::optional<qint64>(place + *segmentSize) : std::nullopt;
}

} // namespace

std::optional<qint64> KxClaimedSize(const QByteArray& head)
{
    if (head.startsWith(EbmlId)) {
        return MatroskaSize(head);
    }
    constexpr int riffHeaderBytes = 12;
    if (head.size() >= riffHeaderBytes && head.startsWith("RIFF") && head.mid(8, 4) == "AVI ") {
        const qint64 size = qFromLittleEndian<quint32>(head.constData() + 4);
        return size > 0 ? std::optional<qint64>(size + 8) : std::nullopt;
    }
    return std::nullopt;
}
