#pragma once

#include <KxCore/KxExport.h>

#include <QByteArray>

#include <optional>

/// How many bytes a file means to hold, from the bytes that it begins with: Matroska, WebM and AVI say so in front.
/// Nothing for other formats, and where the size was left open, as in a recording that is still written.
KXMEDIA_API std::optional<qint64> KxClaimedSize(const QByteArray& head);
