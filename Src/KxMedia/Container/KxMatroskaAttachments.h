#pragma once

#include <KxCore/KxExport.h>

#include <QIODevice>

#include <vector>

/// Where the lists of attachments (fonts, covers) that are larger than `largestBytes` begin in a Matroska or WebM file:
/// the byte positions of their four-byte element IDs. Empty for other formats. `file` is open; looks at the segment's
/// elements before the first cluster and at what their index points to.
KXMEDIA_API std::vector<qint64> KxLargeAttachments(QIODevice& file, qint64 largestBytes);
