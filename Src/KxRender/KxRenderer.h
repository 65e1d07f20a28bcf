#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxRender/KxRenderSettings.h>
#include <KxRender/KxRenderSource.h>

#include <functional>

/// The end of a rendering.
struct KxRenderResult {
    KxOutcome outcome = KxOutcome::Failed;
    /// The error message of a failure; empty otherwise.
    QString message;
    /// The file that was written, possibly with a number added to its name; empty unless done.
    QString outputPath;
    /// What the user should know about a file that was written nevertheless, such as a damaged source; usually empty.
    QString warning;
    KxUsedEncoder encoder = {}; ///< of the file that was written
};

/// Renders a source to an MP4 file with its sound, as long as the source. A rendering that is cancelled or fails leaves
/// no file.
///
/// Memory does not grow with the length. With H.264 by libx264 it is the decoder's (see KxVideoScanner), plus 48 bytes
/// per pixel of the result, plus the pictures that the encoder looks ahead: 320 MB, or 8 bytes per pixel of the result
/// if that is more. Results above 4096 x 4096 pixels take 18 instead of 48 bytes: they have one reference picture and
/// no B pictures.
namespace KxRenderer
{
/// Called on the thread of Run() with ascending ten-thousandths; 10000 means that the file has its final name.
using Progress = std::function<void(int tenThousandths)>;

/// Blocks until the rendering has ended. Any thread; a second one decodes. `cancel` is checked once a frame. No
/// exception leaves this function.
KXRENDER_API KxRenderResult Run(const KxRenderSource& source, const KxRenderSettings& settings,
                                const Progress& progress, const KxCancelToken& cancel);
} // namespace KxRenderer
