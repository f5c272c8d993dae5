// A value that two threads touch.
#pragma once

#include <atomic>

namespace korvane {

/// One number or flag that two threads touch. Never torn; says nothing about the order of other writes.
template <class T>
class Shared {
    static_assert(std::atomic<T>::is_always_lock_free);

public:
    Shared(T initial = {}) : value(initial) {}
    Shared(const Shared&) = delete;
    operator T() const { return value.load(std::memory_order_relaxed); }
    void operator=(T next) { value.store(next, std::memory_order_relaxed); }
    void operator=(const Shared& other) { *this = static_cast<T>(other); }

private:
    std::atomic<T> value;
};

} // namespace korvane
