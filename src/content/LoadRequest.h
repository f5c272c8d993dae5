// A mailbox for one path.
#pragma once

#include <atomic>
#include <cstdint>

namespace korvane {

/// The file that a slot shall load next, posted by any thread, taken by the loader. "!" asks to clear the slot. Neither
/// side ever waits.
class LoadRequest {
public:
    static constexpr int kPathBytes = 512;

    /// Replaces a request that nobody took yet. Of two posts at the same time one stands, as if the other had come
    /// just before. The path is cut at kPathBytes - 1; an empty one, or null, withdraws what is there.
    void Post(const char* path);

    /// Takes back what nobody took yet; one that is just being posted counts as the later. Any thread.
    void Withdraw();

    /// Moves the request out. False when there is none, or when somebody is just posting one: it is here next time.
    /// The loader.
    bool Take(char (&path)[kPathBytes]);

private:
    static constexpr int kWords = kPathBytes / 8;
    static constexpr std::uint32_t kEmpty = 0, kWriting = 1, kFull = 2, kPhase = 3, kTurn = 4;

    std::atomic<std::uint32_t> state{kEmpty}; // phase, and above it a count of posts
    std::atomic<std::uint64_t> words[kWords]{};
};

} // namespace korvane
