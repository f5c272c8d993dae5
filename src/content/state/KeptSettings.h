// Settings of a channel that survive a load.
#pragma once

#include <span>

#include "engine/GrooveEngine.h"

namespace korvane {

/// What a channel shows of some settings before a load, to be put back after it. The selected channel shows an edited
/// step's locks, too. Who has the engine to itself.
class KeptSettings {
public:
    static constexpr int kMost = 4;

    /// settings  up to kMost channel parameters, which outlive this
    KeptSettings(GrooveEngine& ofEngine, int ofChannel, std::span<const int> settings);

    void PutBack();
    void PutBackChanged(); // those that the load has moved

private:
    bool Selected() const { return channel == engine.selection.selectedChannel; }
    float Shown(int base) const;
    void Show(int base, float value);

    GrooveEngine& engine;
    const int channel;
    const std::span<const int> bases;
    float values[kMost] = {};
};

} // namespace korvane
