#include <Tests/Support/FileOpenings.h>

#include <KxCore/KxExport.h>

#include <atomic>
#include <cstdarg>
#include <cstring>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

// All libraries open files with open() or open64() of the C library; the linker prefers the definitions of this
// program.

namespace
{

std::atomic_int openings = 0;

/// `arguments` are those behind the flags.
int Open(const char* path, int flags, va_list arguments)
{
    const unsigned mode = (flags & O_CREAT) != 0 ? va_arg(arguments, unsigned) : 0;
    if (std::strstr(path, "/clip.") != nullptr) {
        ++openings;
    }
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

} // namespace

int FileOpenings::Count()
{
    return openings;
}

void FileOpenings::Reset()
{
    openings = 0;
}

extern "C" KX_SYMBOL_EXPORT int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int file = Open(path, flags, arguments);
    va_end(arguments);
    return file;
}

extern "C" KX_SYMBOL_EXPORT int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int file = Open(path, flags, arguments);
    va_end(arguments);
    return file;
}
