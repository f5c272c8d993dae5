// A value that two threads touch.
#pragma once

#include <atomic>
#include <cstddef>
#include <type_traits>

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
    T operator->() const requires std::is_pointer_v<T> { return *this; }
    /// Stores `next` only while the value is still the expected one; whether it was.
    bool Replace(T expected, T next)
    {
        return value.compare_exchange_strong(expected, next, std::memory_order_relaxed);
    }
    /// Stores `next` and answers what stood there.
    T Exchange(T next) { return value.exchange(next, std::memory_order_relaxed); }
    /// Reads, changes and writes in one: no other thread's write in between is lost. Answers what it stored.
    template <class Change>
    T Update(Change change)
    {
        T seen = *this;
        for (;;) {
            const T next = change(seen);
            if (value.compare_exchange_weak(seen, next, std::memory_order_relaxed)) return next;
        }
    }
    /// A flag, the other way; what it is now.
    bool Toggle()
    {
        return Update([](T on) { return !on; });
    }

private:
    std::atomic<T> value;
};

template <class T, std::size_t kCount>
void Fill(Shared<T> (&values)[kCount], T value)
{
    for (auto& entry : values) entry = value;
}

/// Whether a flag of them is set.
template <std::size_t kCount>
bool Any(const Shared<bool> (&flags)[kCount])
{
    for (const bool flag : flags)
        if (flag) return true;
    return false;
}

} // namespace korvane
