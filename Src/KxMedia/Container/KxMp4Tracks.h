#pragma once

#include <KxCore/KxExport.h>

#include <QByteArray>

#include <functional>
#include <vector>

/// A track in the header of an MP4 or MOV file.
struct KxMp4Track {
    enum class Kind { Pictures, Sound, Other };

    qint64 typePosition = 0; ///< of the four bytes that make it a track
    Kind kind = Kind::Other;
};

/// The bytes of a file from `position` on: `count` of them, or fewer at its end.
using KxBytesAt = std::function<QByteArray(qint64 position, int count)>;

/// The tracks of an MP4 or MOV file, in their order. Empty for other formats, for damaged headers, and for files in
/// fragments, whose packets refer to the tracks.
KXMEDIA_API std::vector<KxMp4Track> KxMp4TracksOf(const KxBytesAt& bytesAt, qint64 fileBytes);
