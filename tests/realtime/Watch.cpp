// What the audio thread asks of the system: calls that are counted where none may be made.
#include "realtime/Watch.h"

#include <dlfcn.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstddef>

namespace korvane {
namespace {

struct Count {
    const char* name;
    int times;
};
std::array<Count, 64> counts{}; // more than there are calls; the watched thread counts, others read when it is done

void Note(const char* name)
{
    if (!Watch::here) return;
    std::size_t n = 0;
    while (counts[n].name && counts[n].name != name) ++n;
    counts[n] = {name, counts[n].times + 1};
}

} // namespace

std::string Watch::Seen()
{
    std::string seen;
    for (const Count& count : counts)
        if (count.name)
            seen += (seen.empty() ? "" : ", ") + std::string(count.name) + ' ' + std::to_string(count.times);
    counts = {};
    return seen;
}

} // namespace korvane

#define KORVANE_EXPORT extern "C" __attribute__((visibility("default"))) // libraries shall find it, too

// Memory: by the names under which the library keeps its own, for looking one up may itself ask for memory.
extern "C" {
void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);
void* __libc_memalign(std::size_t, std::size_t);
void __libc_free(void*);
}
using korvane::Note;
// clang-format off
KORVANE_EXPORT void* malloc(std::size_t size) noexcept { Note("malloc"); return __libc_malloc(size); }
KORVANE_EXPORT void* calloc(std::size_t n, std::size_t size) noexcept { Note("calloc"); return __libc_calloc(n, size); }
KORVANE_EXPORT void* realloc(void* old, std::size_t size) noexcept { Note("realloc"); return __libc_realloc(old, size); }
KORVANE_EXPORT void* aligned_alloc(std::size_t unit, std::size_t size) noexcept { Note("aligned_alloc"); return __libc_memalign(unit, size); }
KORVANE_EXPORT void free(void* memory) noexcept { Note("free"); __libc_free(memory); }
// clang-format on
KORVANE_EXPORT int posix_memalign(void** memory, std::size_t unit, std::size_t size) noexcept
{
    Note("posix_memalign");
    *memory = __libc_memalign(unit, size);
    return *memory ? 0 : ENOMEM;
}

// The others take up to seven whole numbers or pointers, the last on the stack, and give back one: whatever they are, a
// function of seven hands on what it got.
using Call = long(long, long, long, long, long, long, long);
#define KORVANE_WATCH(name)                                                                                            \
    KORVANE_EXPORT Call Watched_##name __asm__(#name);                                                                 \
    long Watched_##name(long a, long b, long c, long d, long e, long f, long g)                                        \
    {                                                                                                                  \
        static std::atomic<void*> library{nullptr};                                                                    \
        if (!library) library = dlsym(RTLD_NEXT, #name);                                                               \
        Note(#name);                                                                                                   \
        return reinterpret_cast<Call*>(library.load())(a, b, c, d, e, f, g);                                           \
    }
// clang-format off
KORVANE_WATCH(mmap) KORVANE_WATCH(munmap) KORVANE_WATCH(madvise)
KORVANE_WATCH(pthread_mutex_lock) KORVANE_WATCH(pthread_mutex_trylock) KORVANE_WATCH(pthread_mutex_unlock)
KORVANE_WATCH(pthread_rwlock_rdlock) KORVANE_WATCH(pthread_rwlock_wrlock) KORVANE_WATCH(pthread_rwlock_unlock)
KORVANE_WATCH(pthread_cond_wait) KORVANE_WATCH(pthread_cond_timedwait) KORVANE_WATCH(pthread_cond_clockwait)
KORVANE_WATCH(pthread_cond_signal) KORVANE_WATCH(pthread_cond_broadcast)
KORVANE_WATCH(sem_wait) KORVANE_WATCH(sem_trywait) KORVANE_WATCH(sem_timedwait) KORVANE_WATCH(sem_post)
KORVANE_WATCH(pthread_create) KORVANE_WATCH(pthread_join) KORVANE_WATCH(syscall) KORVANE_WATCH(sched_yield)
KORVANE_WATCH(nanosleep) KORVANE_WATCH(clock_nanosleep) KORVANE_WATCH(usleep) KORVANE_WATCH(poll)
KORVANE_WATCH(open) KORVANE_WATCH(open64) KORVANE_WATCH(openat) KORVANE_WATCH(opendir) KORVANE_WATCH(close)
KORVANE_WATCH(fopen) KORVANE_WATCH(fopen64) KORVANE_WATCH(fclose) KORVANE_WATCH(fread) KORVANE_WATCH(fwrite)
KORVANE_WATCH(read) KORVANE_WATCH(write) KORVANE_WATCH(access)
KORVANE_WATCH(stat) KORVANE_WATCH(fstat) KORVANE_WATCH(lstat) KORVANE_WATCH(fstatat)
    // clang-format on
