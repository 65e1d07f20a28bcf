#pragma once

#include <KxCore/KxExport.h>

struct AVCodecContext;

/// Sends libav*'s messages to the log instead of the terminal: a damaged file that can be read nevertheless is not an
/// error of the program. This affects the whole process, so only programs call it, at their start; libraries leave
/// libav*'s log as their host configured it. Any thread.
KXMEDIA_API void KxRouteAvLog();

/// Lowers the codec's errors to debug level and suppresses its other messages, regardless of the host's log settings:
/// decoders report every damaged packet, and x264 its settings.
void KxMuteAvCodec(AVCodecContext& codec);
