// What a native plug-in meets: a host, and states that it saves and restores.
#pragma once

#include "fuzz/Instrument.h"
#include "shell/native/TBramblyPlug.h"

namespace korvane::fuzz {

/// Its voices are on the heap, so that one that ends twice or is read later is seen. A tag is the voice's address.
struct NativeHost : TBramblyHost {
    std::intptr_t HostDispatch(std::int32_t, std::int32_t, std::int32_t, std::intptr_t) override { return 0; }
    void HostParameterChanged(std::int32_t, std::int32_t index, std::int32_t) override
    {
        Require(index >= 0 && index < param::HostCount, "a parameter that no host knows");
    }
    void HostShowHint(std::int32_t, const char*) override {}
    void HostVoiceFinished(std::intptr_t voiceTag, std::intptr_t) override
    {
        --voices;
        delete reinterpret_cast<NativeVoice*>(voiceTag);
    }
    std::intptr_t HostVoiceNotification(std::intptr_t, std::int32_t, std::intptr_t, std::intptr_t) override
    {
        return 0;
    }
    float* HostGetMixBuffer(std::int32_t, std::int32_t) override
    {
        Require(locked, "a mix buffer is asked for that is not locked");
        const bool none = asked++ % 4 == 0;
        return none ? nullptr : mixes.emplace_back(mixes[0].size()).data();
    }
    void HostLockMix() override { locked = true; }
    void HostUnlockMix() override { locked = false; }

    int voices = 0;
    std::vector<std::vector<float>> mixes{{}}; // of a block, the main one first; not a float more than it has
    int asked = 0;                             // for mix buffers
    bool locked = false;
};

/// Bytes of a state; who reads them is told what `lie` says of how many they were.
struct NativeState : NativeStream {
    enum Lie { None, FewAtATime, Failed, TooMany };

    explicit NativeState(Bytes from = {}, int how = None) : bytes(std::move(from)), lie(how) {}
    std::int32_t Read(void* buffer, std::int32_t size) override
    {
        const auto left = static_cast<std::int32_t>(bytes.size() - position);
        const std::int32_t count = std::min({size, left, lie == FewAtATime ? 1000 : size});
        std::copy_n(bytes.data() + position, count, static_cast<std::uint8_t*>(buffer));
        position += static_cast<std::size_t>(count);
        return lie == Failed ? -1 : lie == TooMany ? size + 1 : count;
    }
    std::int32_t Write(const void* buffer, std::int32_t size) override
    {
        const auto* from = static_cast<const std::uint8_t*>(buffer);
        bytes.insert(bytes.end(), from, from + size);
        return size;
    }

    Bytes bytes;
    std::size_t position = 0;
    const int lie;
};

} // namespace korvane::fuzz
