#pragma once

class QLockFile;

/// The locks beside the library: one file each, which only the end of the process that holds it makes stale.
namespace LibraryLock
{
/// Takes the lock, waiting for so long. A process that was killed between making its lock file and writing into it
/// leaves an empty one, which QLockFile would respect for ever; here it is stale.
bool Take(QLockFile& lock, int patienceMs);
} // namespace LibraryLock
