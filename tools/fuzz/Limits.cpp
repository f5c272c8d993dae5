// What an input may cost.
#include "fuzz/Limits.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace korvane::fuzz {

namespace {

constexpr std::int64_t kMiB = 1 << 20, kUnlimited = INT64_MAX / 2;
std::atomic<std::int64_t> room = kUnlimited; // bytes that may still be taken

void* Take(std::size_t size) noexcept
{
    void* memory = std::malloc(std::max<std::size_t>(size, 1));
    if (memory) Require((room -= static_cast<std::int64_t>(malloc_usable_size(memory))) > 0, "too much memory");
    return memory;
}

void* TakeOrThrow(std::size_t size)
{
    if (void* memory = Take(size)) return memory;
    throw std::bad_alloc();
}

void Give(void* memory) noexcept
{
    if (memory) room += static_cast<std::int64_t>(malloc_usable_size(memory));
    std::free(memory);
}

} // namespace

void Require(bool holds, const char* what)
{
    if (holds) return;
    std::fprintf(stderr, "korvane: %s\n", what);
    std::abort();
}

Limits::Limits(std::size_t inputBytes)
    : end(std::clock() + 2 * CLOCKS_PER_SEC * static_cast<std::clock_t>(std::max<std::size_t>(inputBytes / kMiB, 1)))
{
    room = 64 * kMiB + 16 * static_cast<std::int64_t>(inputBytes);
}

Limits::~Limits()
{
    room = kUnlimited;
    Require(std::clock() <= end, "too much time");
}

} // namespace korvane::fuzz

// Every form, as a sanitizer brings forms of its own.
void* operator new(std::size_t size) { return korvane::fuzz::TakeOrThrow(size); }
void* operator new[](std::size_t size) { return korvane::fuzz::TakeOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return korvane::fuzz::Take(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return korvane::fuzz::Take(size); }
void operator delete(void* memory) noexcept { korvane::fuzz::Give(memory); }
void operator delete[](void* memory) noexcept { korvane::fuzz::Give(memory); }
void operator delete(void* memory, std::size_t) noexcept { korvane::fuzz::Give(memory); }
void operator delete[](void* memory, std::size_t) noexcept { korvane::fuzz::Give(memory); }
