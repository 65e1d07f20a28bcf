#pragma once

#include <KxMedia/Picture/KxVideoFrame.h>
#include <KxMedia/Read/KxMediaFacts.h>
#include <KxMedia/Read/KxVideoPackets.h>

/// Container metadata in terms of KxMediaFacts.

/// Path and sound.
KxMediaFacts KxFactsWithoutVideo(const KxInputFile& input);
/// `input` has a video stream.
KxRational KxGridRateOf(const KxInputFile& input);
KxVideoFrame::Orientation KxOrientationOf(const AVStream& stream);
/// Adds codec and bit rate; frame count and frame rate are already set.
void KxCompleteVideoFacts(const KxVideoPackets& packets, KxVideoFacts& video, const QVector<KxAudioFacts>& audio);
