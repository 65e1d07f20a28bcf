#pragma once

#include <KxMedia/Picture/KxVideoFrame.h>
#include <KxMedia/Write/KxVideoEncoder.h>

#include <vector>

/// Decides whether an encoder of the hardware can be trusted: drivers exist that start and then write pictures that are
/// wrong. Blocks; any thread.
namespace KxEncoderProof
{
/// Enough for pictures that depend on earlier and on later ones.
constexpr size_t Frames = 10;

/// Encodes `pictures` with `candidate` and with `reference` and decodes both. Nothing if those of the candidate are all
/// there, in their places, and about as similar to the originals as those of the reference; otherwise a clause that
/// gives the reason.
KxError Compare(const KxVideoEncoder::Settings& candidate, const KxVideoEncoder::Settings& reference,
                const std::vector<KxVideoFrame>& pictures);

struct Choice {
    KxOutputFormat::Encoder encoder = KxOutputFormat::Encoder::Software;
    /// Why the kinds of hardware that were tried before are not used; empty if there were none.
    QString reason;
};
/// The first kind of hardware that Compare() accepts, otherwise Encoder::Software. `pictures` is not empty.
Choice Choose(KxVideoEncoder::Settings settings, const std::vector<KxVideoFrame>& pictures);
} // namespace KxEncoderProof
