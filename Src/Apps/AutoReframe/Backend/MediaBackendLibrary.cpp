#include <Apps/AutoReframe/Backend/HostMediaBackend.h>
#include <KxMedia/Container/KxAvLog.h>

/// The program resolves this function by its name; it is the library's only export.
extern "C" Q_DECL_EXPORT MediaBackend* MakeMediaBackend()
{
    KxRouteAvLog();
    return new HostMediaBackend;
}
