#include <Tests/Support/FileOpenings.h>

#include <KxCore/KxExport.h>

#include <atomic>
#include <cstdarg>
#include <cstring>
#include <filesystem>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

// All libraries open files with open() or open64() of the C library; the linker prefers the definitions of this
// program.

namespace
{

constexpr const char* Clip = "/clip.";
constexpr const char* Result = "/.auto-reframe-";
constexpr int None = -1;

std::atomic_int openings = 0;
std::atomic_int openWhenTheIndexWasWritten = None;

int OpenClips()
{
    int count = 0;
    std::error_code problem;
    for (const auto& file : std::filesystem::directory_iterator("/proc/self/fd")) {
        count += std::filesystem::read_symlink(file, problem).string().find(Clip) != std::string::npos ? 1 : 0;
    }
    return count;
}

/// `arguments` are those behind the flags.
int Open(const char* path, int flags, va_list arguments)
{
    const unsigned mode = (flags & O_CREAT) != 0 ? va_arg(arguments, unsigned) : 0;
    if (std::strstr(path, Clip) != nullptr) {
        ++openings;
    }
    if (std::strstr(path, Result) != nullptr && (flags & O_ACCMODE) == O_RDONLY) {
        openWhenTheIndexWasWritten = OpenClips();
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
    openWhenTheIndexWasWritten = None;
}

std::optional<int> FileOpenings::OpenWhenTheIndexWasWritten()
{
    const int count = openWhenTheIndexWasWritten;
    return count == None ? std::nullopt : std::optional<int>(count);
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
