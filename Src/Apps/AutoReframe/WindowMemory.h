#pragma once

class QSize;
class QWidget;

/// Size and place of a window at the end of the last run, in a file beside the configuration file. It is not in the
/// configuration file because people edit that one. User-interface thread.
namespace WindowMemory
{
/// False, with the window unchanged, if nothing usable was saved. The window fits on its screen in either case.
bool Restore(QWidget& window);
void Save(const QWidget& window);

/// Gives a window that was never shown `size`, or less where its screen is too small for it and its frame.
void ResizeToFit(QWidget& window, const QSize& size);
} // namespace WindowMemory
