#include "import/AbortGuard.h"

#include <csetjmp>
#include <csignal>
#include <mutex>

namespace
{

thread_local sigjmp_buf* wayBack = nullptr; // of the guarded code that runs on this thread

void aborted(int signal)
{
    if (wayBack)
        siglongjmp(*wayBack, 1);
    std::signal(signal, SIG_DFL); // anybody else's: abort() goes on to end the program
}

struct WayBack {
    explicit WayBack(sigjmp_buf& here) { wayBack = &here; }
    ~WayBack() { wayBack = nullptr; }
};

} // namespace

bool scopix::survivesAbort(const std::function<void()>& work)
{
    static std::once_flag once;
    std::call_once(once, [] { std::signal(SIGABRT, aborted); });
    sigjmp_buf here;
    const WayBack way(here);
    if (sigsetjmp(here, 1) != 0)
        return false;
    work();
    return true;
}
