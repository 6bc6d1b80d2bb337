#include "confinement.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

// Sanitizers reserve terabytes of addresses.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define HAS_SANITIZER
#endif

namespace Viewer::CameraWorker {

static void limit(int resource, rlim_t value)
{
    rlimit limits{};
    if (getrlimit(static_cast<__rlimit_resource_t>(resource), &limits) == 0
        && limits.rlim_max >= value) {
        limits.rlim_cur = value;
        limits.rlim_max = value;
        setrlimit(static_cast<__rlimit_resource_t>(resource), &limits);
    }
}

void confineProcess()
{
    // Who starts the worker may be told to end by the keyboard; the worker decides for itself.
    setsid();
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    limit(RLIMIT_CORE, 0);
#ifndef HAS_SANITIZER
    constexpr rlim_t ADDRESS_SPACE = rlim_t(1024) * 1024 * 1024;
    limit(RLIMIT_AS, ADDRESS_SPACE);
#endif
    closefrom(STDERR_FILENO + 1);
}

} // namespace Viewer::CameraWorker
