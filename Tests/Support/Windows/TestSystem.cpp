#include <Tests/Support/TestSystem.h>

#include <windows.h>

#include <psapi.h>

bool TestSystem::MakeNamedPipe(const QString&)
{
    return false;
}

bool TestSystem::RemovesOpenFiles()
{
    return false;
}

qint64 TestSystem::PeakMemoryBytes()
{
    PROCESS_MEMORY_COUNTERS counters{};
    return GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters) != 0
               ? static_cast<qint64>(counters.PeakWorkingSetSize)
               : -1;
}

bool TestSystem::ResetPeakMemory()
{
    return false;
}
