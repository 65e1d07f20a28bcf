#pragma once

class QWidget;

/// Where and how large a window was when the program ended last, in the configuration file. User-interface thread.
namespace WindowMemory
{
/// False, with the window unchanged, when nothing is known of it.
bool Restore(QWidget& window);
void Save(const QWidget& window);
} // namespace WindowMemory
