#pragma once

#include <KxCore/KxExport.h>

struct AVCodecContext;

/// Sends what libav* reports to the log instead of to the terminal: a damaged file that is read all the same is no
/// error of the program. This changes the whole process, so only a program calls it, at its start; a library leaves
/// libav*'s log as its host set it up. Any thread.
KXMEDIA_API void KxRouteAvLog();

/// Makes the codec report its errors as debug output and everything else not at all, whatever the host does with
/// libav*'s log: a decoder reports every damaged packet, and x264 its settings.
void KxMuteAvCodec(AVCodecContext& codec);
