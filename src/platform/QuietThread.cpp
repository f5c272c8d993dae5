// Threads that the host's signals do not reach.
#include "platform/QuietThread.h"

#include <csignal>
#include <exception>

namespace korvane {

std::thread QuietThread(const std::function<void()>& run)
{
    sigset_t all, before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    std::thread thread;
    std::exception_ptr refused;
    try {
        thread = std::thread(run);
    } catch (...) {
        refused = std::current_exception();
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    if (refused) std::rethrow_exception(refused);
    return thread;
}

} // namespace korvane
