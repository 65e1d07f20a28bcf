#pragma once

#include <KxCore/KxExport.h>

#include <QByteArray>

#include <optional>

/// The size of a complete file according to its first bytes, which Matroska, WebM and AVI store there. Empty for other
/// formats, and if the size was left open, as in a live recording.
KXMEDIA_API std::optional<qint64> KxClaimedSize(const QByteArray& head);
