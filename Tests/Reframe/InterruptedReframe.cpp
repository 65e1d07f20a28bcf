// The program reframe with functions of the C library replaced, so that a signal comes at an exact place:
// INTERRUPT_AT="open NAME 2" raises INTERRUPT_BY (a number; SIGINT if unset) when a file whose path ends in NAME is
// opened for the second time, "create NAME 1" when it is opened by a call that may create it, "rename NAME 1" right
// after a file was renamed to NAME. "memory NAME 1" makes the first allocation after the opening of NAME fail.

#include <QByteArray>
#include <QList>

#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <new>

#include <atomic>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

std::atomic_bool g_memoryIsOut{false};

bool IsThePlace(const char* event, const char* path)
{
    static const QList<QByteArray> place = qgetenv("INTERRUPT_AT").split(' ');
    static std::atomic_int count{0};
    if (place.size() != 3 || place.at(0) != event || !QByteArray(path).endsWith(place.at(1))) {
        return false;
    }
    return ++count == place.at(2).toInt();
}

void Interrupt()
{
    const int number = qEnvironmentVariableIntValue("INTERRUPT_BY");
    std::raise(number != 0 ? number : SIGINT);
}

int Open(const char* path, int flags, unsigned mode)
{
    if (IsThePlace("open", path) || ((flags & O_CREAT) != 0 && IsThePlace("create", path))) {
        Interrupt();
    }
    if (IsThePlace("memory", path)) {
        g_memoryIsOut = true;
    }
    return static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

} // namespace

extern "C" {
__attribute__((visibility("default"))) int open64(const char* path, int flags, ...)
{
    std::va_list more;
    va_start(more, flags);
    const unsigned mode = (flags & O_CREAT) != 0 ? va_arg(more, unsigned) : 0U;
    va_end(more);
    return Open(path, flags, mode);
}

__attribute__((visibility("default"))) int open(const char* path, int flags, ...)
{
    std::va_list more;
    va_start(more, flags);
    const unsigned mode = (flags & O_CREAT) != 0 ? va_arg(more, unsigned) : 0U;
    va_end(more);
    return Open(path, flags, mode);
}

__attribute__((visibility("default"))) int rename(const char* from, const char* to)
{
    const int result = ::renameat(AT_FDCWD, from, AT_FDCWD, to);
    if (IsThePlace("rename", to)) {
        Interrupt();
    }
    return result;
}
}

__attribute__((visibility("default"))) void* operator new(std::size_t size)
{
    if (g_memoryIsOut.exchange(false)) {
        throw std::bad_alloc();
    }
    void* const memory = std::malloc(size != 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

__attribute__((visibility("default"))) void operator delete(void* memory) noexcept
{
    std::free(memory);
}

__attribute__((visibility("default"))) void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
