// OpenCV starts threads of TBB inside its functions and waits for them there. Neither is built for ThreadSanitizer,
// which therefore takes what such a thread leaves to its caller for a race. With one thread OpenCV works on its
// caller's. Built only for ThreadSanitizer.
#include <dlfcn.h>

namespace
{

// Not every test program loads OpenCV, so none is linked with it here.
bool LimitOpenCvToItsCaller()
{
    using SetNumThreads = void (*)(int);
    const auto setNumThreads = reinterpret_cast<SetNumThreads>(dlsym(RTLD_DEFAULT, "_ZN2cv13setNumThreadsEi"));
    if (setNumThreads == nullptr)
        return false;
    setNumThreads(1);
    return true;
}

const bool OpenCvIsLimited = LimitOpenCvToItsCaller();

} // namespace
