#pragma once

class QEventLoop;

namespace ReframeWait
{
/// Runs `loop` until it quits by itself or the program is interrupted; false for the latter.
bool Run(QEventLoop& loop);
} // namespace ReframeWait
