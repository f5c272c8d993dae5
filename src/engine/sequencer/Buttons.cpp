// Which buttons of the panel are down.
#include "engine/sequencer/Buttons.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace korvane {

namespace {

constexpr std::int8_t kDefaultPadKeys[kSamplerChannels] = {12, 14, 15, 18, 20, 17, 19, 23};

} // namespace

int Buttons::PlayedChannel(int k, int selectedChannel) const
{
    for (int c = 0; selectedChannel < kSamplerChannels && c < kSamplerChannels; ++c)
        if (padKeys[c] == k) return c;
    return selectedChannel;
}

void Buttons::RefreshStutterCodes(int selectedChannel)
{
    constexpr int kTries = 3; // a button that another thread lets go meanwhile must not stay in the codes
    int pressed = stutterButtons.Code();
    for (int n = 0; n < kTries; ++n) {
        for (int c = 0; c < kChannels; ++c) {
            const int code = Reaches(c, selectedChannel) ? pressed : 0;
            if (code != std::abs(stutterCode[c])) stutterCode[c] = static_cast<std::int8_t>(-code);
        }
        const int now = stutterButtons.Code();
        if (now == pressed) break;
        pressed = now;
    }
}

void Buttons::ClearStutter()
{
    stutterButtons.Clear();
    Fill(stutterCode, std::int8_t{0});
}

void Buttons::Reset()
{
    Fill(channelHeld, false);
    muteModifier = false;
    Fill(stepHeld, false);
    std::copy(std::begin(kDefaultPadKeys), std::end(kDefaultPadKeys), padKeys);
    Fill(fxOn, false);
    ClearStutter();
}

} // namespace korvane
