#pragma once

#include <KxCore/KxExport.h>

#include <QIODevice>

#include <vector>

/// Finds attachment lists (fonts, covers) larger than `largestBytes` in a Matroska or WebM file: the byte positions of
/// their four-byte element IDs. Empty for other formats. `file` is open. Examines the segment's elements before the
/// first cluster and those that its index refers to.
KXMEDIA_API std::vector<qint64> KxLargeAttachments(QIODevice& file, qint64 largestBytes);
