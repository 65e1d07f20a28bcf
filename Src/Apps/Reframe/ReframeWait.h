#pragma once

class QEventLoop;

namespace ReframeWait
{
/// Runs `loop` until it is told to quit or the person interrupts the program; false for the latter.
bool Run(QEventLoop& loop);
} // namespace ReframeWait
