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
    T operator=(T next)
    {
        value.store(next, std::memory_order_relaxed);
        return next;
    }
    T operator=(const Shared& other) { return *this = static_cast<T>(other); }
    /// Stores `next` only while the value is still the expected one.
    bool Replace(T expected, T next)
    {
        return value.compare_exchange_strong(expected, next, std::memory_order_relaxed);
    }

private:
    std::atomic<T> value;
};

} // namespace korvane
