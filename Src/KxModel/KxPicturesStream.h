#pragma once

#include <KxCore/KxFrameRange.h>
#include <KxMedia/Read/KxMediaFacts.h>

#include <QByteArray>
#include <QDataStream>
#include <QString>

#include <optional>

/// The layout of a file of pictures (KxPicturesFile): a header, a record for each picture, and an end.
namespace KxPicturesStream
{
struct Header {
    QString madeBy;
    KxFrameRange frames;
    qint64 frameCount = 0;
    QSize resolution;
    KxRational frameRate;

    bool IsOf(const KxVideoFacts& video) const;
};

struct Record {
    std::optional<qint64> frame; ///< nothing: the end of the file
    bool endedEarly = false;     ///< at the end: the video could not be decoded up to there
    QByteArray shot{};           ///< KxPicturePacker
    QByteArray whole{};
};

/// How many frames before its own a part has.
qint64 FramesBefore(const KxFrameRange& frames, const KxRational& rate);

void Write(QDataStream& stream, const Header& header);
void Write(QDataStream& stream, const Record& record);
/// Nothing if the file is none of pictures, or is damaged.
std::optional<Header> ReadHeader(QDataStream& stream);
std::optional<Record> ReadRecord(QDataStream& stream);
} // namespace KxPicturesStream
