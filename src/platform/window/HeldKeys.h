// The keys that are down, as the window's listener knows them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace korvane {

struct HeldKey {
    std::uint8_t number = 0; // the server's
    int code = 0; // of key::, as told when it went down, whatever the layout says when it comes up; 0: not told
    bool handedOn = false; // to the host, for the listener has no use for it
    bool released = false; // while nobody was to hear of it
};

class HeldKeys {
public:
    HeldKey* Find(std::uint8_t number)
    {
        const auto found = std::find_if(keys.begin(), keys.end(), [=](const HeldKey& k) { return k.number == number; });
        return found == keys.end() ? nullptr : &*found;
    }
    bool AnyWith(int code) const
    {
        return std::any_of(keys.begin(), keys.end(), [=](const HeldKey& k) { return k.code == code; });
    }
    void Add(const HeldKey& key) { keys.push_back(key); }
    HeldKey Remove(std::uint8_t number)
    {
        const HeldKey* const found = Find(number);
        const HeldKey key = found ? *found : HeldKey{};
        std::erase_if(keys, [=](const HeldKey& k) { return k.number == number; });
        return key;
    }
    /// One that was released unheard; null when there is none.
    HeldKey* Released()
    {
        const auto found = std::find_if(keys.begin(), keys.end(), [](const HeldKey& k) { return k.released; });
        return found == keys.end() ? nullptr : &*found;
    }
    void ReleaseAll()
    {
        for (HeldKey& key : keys) key.released = true;
    }

private:
    std::vector<HeldKey> keys;
};

} // namespace korvane
