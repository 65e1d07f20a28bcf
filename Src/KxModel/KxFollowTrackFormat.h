#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxFollowTrack.h>

#include <QByteArray>

#include <optional>

/// A track as bytes, exactly.
namespace KxFollowTrackFormat
{
/// Grows with every change of the format, and of how something is followed: older tracks are made anew.
constexpr quint32 Version = 6;

KXMODEL_API QByteArray Write(const KxFollowTrack& track);

/// Nothing if the bytes are damaged or of another version.
KXMODEL_API std::optional<KxFollowTrack> Read(const QByteArray& bytes);
} // namespace KxFollowTrackFormat
