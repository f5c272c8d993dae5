// Settings of a channel that survive a load.
#include "content/state/KeptSettings.h"

#include <cassert>

namespace korvane {

KeptSettings::KeptSettings(GrooveEngine& ofEngine, int ofChannel, std::span<const int> settings)
    : engine(ofEngine), channel(ofChannel), bases(settings)
{
    assert(bases.size() <= kMost);
    for (std::size_t n = 0; n < bases.size(); ++n) values[n] = Shown(bases[n]);
}

void KeptSettings::PutBack()
{
    for (std::size_t n = 0; n < bases.size(); ++n) Show(bases[n], values[n]);
}

void KeptSettings::PutBackChanged()
{
    for (std::size_t n = 0; n < bases.size(); ++n)
        if (Shown(bases[n]) != values[n]) Show(bases[n], values[n]);
}

float KeptSettings::Shown(int base) const
{
    return Selected() ? engine.GetChannelParameter(base) : static_cast<float>(engine.storedParams[channel][base]);
}

void KeptSettings::Show(int base, float value)
{
    if (Selected()) return engine.SetChannelParameter(base, value);
    engine.storedParams[channel][base] = value;
    engine.RefreshChannel(channel);
}

} // namespace korvane
