#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>
#include <KxCore/KxResult.h>
#include <KxMedia/Read/KxMediaFacts.h>

#include <memory>

class KxVideoScanner;

/// Reads the facts of a file; of its pictures, only the first one is decoded. The error message names the file and the
/// reason. Blocks; any thread.
KXMEDIA_API KxResult<KxMediaFacts> KxProbeMedia(const QString& path, const KxCancelToken& cancel);

/// The same; `scanner` is the video, still open for an analysis. Null if the file has sound alone.
KXMEDIA_API KxResult<KxMediaFacts> KxProbeMedia(const QString& path, const KxCancelToken& cancel,
                                                std::unique_ptr<KxVideoScanner>& scanner);
