// A short text that threads write and read.
#pragma once

#include <algorithm>
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

    /// Stores the text, cut at kSize - 1 bytes; null stores the empty text. Takes as long as the text is.
    void Set(const char* text)
    {
        const std::size_t length = text ? strnlen(text, kSize - 1) : 0;
        std::uint32_t seen = version.load();
        if ((seen & 1u) != 0 || !version.compare_exchange_strong(seen, seen + 1)) return; // somebody is writing
        std::size_t count = 0;
        for (std::size_t at = 0; at < length; at += sizeof(std::uint64_t)) {
            std::uint64_t word = 0;
            std::memcpy(&word, text + at, std::min(length - at, sizeof word));
            words[count++].store(word, std::memory_order_release);
        }
        for (std::size_t n = count; n < used; ++n) words[n].store(0, std::memory_order_release);
        used = count;
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
    std::size_t used = 0; // words that are not all zeros; of who writes
};

} // namespace korvane
