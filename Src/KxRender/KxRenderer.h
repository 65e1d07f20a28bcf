#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxRender/KxRenderSettings.h>
#include <KxRender/KxRenderSource.h>

#include <functional>

/// What became of a rendering.
struct KxRenderResult {
    KxOutcome outcome = KxOutcome::Failed;
    /// Why it failed, for a person; empty otherwise.
    QString message;
    /// The file that was written; empty unless done. Its name may have got a number.
    QString outputPath;
    /// What a person should know of a file that was written all the same (its source ends early …); mostly empty.
    QString warning;
};

/// Renders a source into an MP4 file: crop by crop, sound alongside, as long as the source. A rendering that is
/// cancelled or fails leaves no file. Memory does not grow with the length.
namespace KxRenderer
{
/// In ten-thousandths, ascending; 10000 is told once the file has its name. Called on the thread of Run().
using Progress = std::function<void(int tenThousandths)>;

/// Blocks until all is done, on any thread; uses a second one for decoding. `cancel` is looked at once a frame.
KXRENDER_API KxRenderResult Run(const KxRenderSource& source, const KxRenderSettings& settings,
                                const Progress& progress, const KxCancelToken& cancel);
} // namespace KxRenderer
