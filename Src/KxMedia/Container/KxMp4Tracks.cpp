#include <KxMedia/Container/KxMp4Tracks.h>

#include <QtEndian>

#include <optional>

namespace
{

constexpr int TypeBytes = 4;
constexpr int SizeBytes = 4;
constexpr int HeaderBytes = SizeBytes + TypeBytes;
constexpr int LongSizeBytes = 8;
constexpr int MostBoxes = 1024; ///< of one parent

struct Box {
    QByteArray type;
    qint64 begin = 0;
    qint64 contentBegin = 0;
    qint64 end = 0;
};

/// Nothing unless a box that ends at or before `end` begins here.
std::optional<Box> BoxAt(const KxBytesAt& bytesAt, qint64 begin, qint64 end)
{
    const QByteArray header = bytesAt(begin, HeaderBytes + LongSizeBytes);
    if (header.size() < HeaderBytes) {
        return std::nullopt;
    }
    Box box{header.mid(SizeBytes, TypeBytes), begin, begin + HeaderBytes, end};
    const auto size = qFromBigEndian<quint32>(header.constData());
    qint64 bytes = size;
    if (size == 1) {
        if (header.size() < HeaderBytes + LongSizeBytes) {
            return std::nullopt;
        }
        bytes = qFromBigEndian<qint64>(header.constData() + HeaderBytes);
        box.contentBegin += LongSizeBytes;
    } else if (size == 0) {
        bytes = end - begin;
    }
    if (bytes < box.contentBegin - begin || bytes > end - begin) {
        return std::nullopt;
    }
    box.end = begin + bytes;
    return box;
}

/// The boxes between two positions; nothing if they are damaged.
std::optional<std::vector<Box>> BoxesIn(const KxBytesAt& bytesAt, qint64 begin, qint64 end)
{
    std::vector<Box> boxes;
    for (qint64 place = begin; place < end;) {
        const std::optional<Box> box = BoxAt(bytesAt, place, end);
        if (!box || boxes.size() == MostBoxes) {
            return std::nullopt;
        }
        boxes.push_back(*box);
        place = box->end;
    }
    return boxes;
}

/// The first one of a type; what follows it may be damaged or cut off.
std::optional<Box> FindBox(const KxBytesAt& bytesAt, qint64 begin, qint64 end, const char* type)
{
    std::optional<Box> box = BoxAt(bytesAt, begin, end);
    for (int count = 0; box && box->type != type && count < MostBoxes; ++count) {
        box = BoxAt(bytesAt, box->end, end);
    }
    return box && box->type == type ? box : std::nullopt;
}

KxMp4Track::Kind KindOf(const KxBytesAt& bytesAt, const Box& track)
{
    const std::optional<Box> media = FindBox(bytesAt, track.contentBegin, track.end, "mdia");
    const std::optional<Box> handler =
        media ? FindBox(bytesAt, media->contentBegin, media->end, "hdlr") : std::optional<Box>();
    constexpr qint64 kindOffset = 8;
    const QByteArray kind = handler ? bytesAt(handler->contentBegin + kindOffset, TypeBytes) : QByteArray();
    return kind == "vide"   ? KxMp4Track::Kind::Pictures
           : kind == "soun" ? KxMp4Track::Kind::Sound
                            : KxMp4Track::Kind::Other;
}

} // namespace

std::vector<KxMp4Track> KxMp4TracksOf(const KxBytesAt& bytesAt, qint64 fileBytes)
{
    const std::optional<Box> header = FindBox(bytesAt, 0, fileBytes, "moov");
    const std::optional<std::vector<Box>> boxes =
        header ? BoxesIn(bytesAt, header->contentBegin, header->end) : std::optional<std::vector<Box>>();
    std::vector<KxMp4Track> tracks;
    for (const Box& box : boxes.value_or(std::vector<Box>())) {
        if (box.type == "mvex") {
            return {};
        }
        if (box.type == "trak") {
            tracks.push_back({box.begin + SizeBytes, KindOf(bytesAt, box)});
        }
    }
    return tracks;
}
