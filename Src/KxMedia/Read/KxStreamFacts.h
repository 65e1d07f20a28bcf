#pragma once

#include <KxMedia/Picture/KxVideoFrame.h>
#include <KxMedia/Read/KxMediaFacts.h>
#include <KxMedia/Read/KxVideoPackets.h>

/// What containers say of their streams, brought into the form of KxMediaFacts.

/// Path and sound.
KxMediaFacts KxFactsWithoutVideo(const KxInputFile& input);
/// `input` has a video stream.
KxRational KxGridRateOf(const KxInputFile& input);
KxVideoFrame::Orientation KxOrientationOf(const AVStream& stream);
/// Codec and bit rate; the frame count and the rate stand already.
void KxCompleteVideoFacts(const KxVideoPackets& packets, KxVideoFacts& video, const QVector<KxAudioFacts>& audio);
