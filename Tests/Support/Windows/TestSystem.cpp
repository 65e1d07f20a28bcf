#include <Tests/Support/TestSystem.h>

#include <windows.h>

#include <psapi.h>
#include <tlhelp32.h>

bool TestSystem::MakeNamedPipe(const QString&)
{
    return false;
}

QString TestSystem::HostileName()
{
    return QStringLiteral("a & 'c' %1 %2 {{facts}}");
}

bool TestSystem::TakesLanguageFromEnvironment()
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

int TestSystem::Threads()
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    if (snapshot == INVALID_HANDLE_VALUE) {
        return 0;
    }
    THREADENTRY32 entry{};
    entry.dwSize = sizeof entry;
    int count = 0;
    // All threads of all processes are listed.
    for (BOOL isListed = Thread32First(snapshot, &entry); isListed != 0; isListed = Thread32Next(snapshot, &entry)) {
        count += entry.th32OwnerProcessID == GetCurrentProcessId() ? 1 : 0;
    }
    CloseHandle(snapshot);
    return count;
}
