// A short text that threads write and read.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace korvane {

/// Zero-terminated text of at most kSize - 1 bytes. Writers never wait: of two at the same time one stands, as if the
/// other had come just before. A reader that meets a write reads again, so it must not be the audio thread unless that
/// thread is the only writer.
template <std::size_t kSize>
class SharedText {
    static_assert(kSize % sizeof(std::uint64_t) == 0);
    static constexpr std::size_t kWords = kSize / sizeof(std::uint64_t);

public:
    SharedText() = default;
    explicit SharedText(const char* text) { Set(text); }

    /// Stores the text, cut at kSize - 1 bytes; null stores the empty text.
    void Set(const char* text)
    {
        std::array<std::uint64_t, kWords> packed{};
        if (text) std::memcpy(packed.data(), text, strnlen(text, kSize - 1));
        std::uint32_t seen = version.load();
        if ((seen & 1u) != 0 || !version.compare_exchange_strong(seen, seen + 1)) return; // somebody is writing
        for (std::size_t n = 0; n < kWords; ++n) words[n].store(packed[n], std::memory_order_release);
        version.fetch_add(1);
    }

    /// Writes the text and its padding zeros into a buffer of kSize bytes.
    void Get(char* buffer) const
    {
        std::array<std::uint64_t, kWords> packed;
        std::uint32_t before = 0;
        do {
            before = version.load();
            for (std::size_t n = 0; n < kWords; ++n) packed[n] = words[n].load(std::memory_order_acquire);
        } while ((before & 1u) != 0 || version.load() != before);
        std::memcpy(buffer, packed.data(), kSize);
    }

    bool Empty() const { return words[0].load(std::memory_order_relaxed) == 0; }

private:
    std::atomic<std::uint32_t> version{0}; // odd while somebody writes
    std::atomic<std::uint64_t> words[kWords]{};
};

} // namespace korvane
