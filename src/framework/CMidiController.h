// MIDI input: the event queue and the state of keys and controllers.
#pragma once

#include <array>
#include <cstdint>

#include "framework/MidiEvent.h"
#include "platform/Shared.h"

namespace korvane {

/// What has come in by MIDI. Events are queued just before their block and dispatched inside it, both on the audio
/// thread; other threads read the values.
class CMidiController {
public:
    static constexpr int kQueueCapacity = 1024;
    static constexpr int kKeys = 128;

    CMidiController();

    /// Appends an event; a full queue drops it. Status and data are masked to what a MIDI event can hold.
    /// deltaFrames  frame in the coming block, not below that of the event queued before
    void QueueEvent(std::uint8_t status, std::uint8_t data1, std::uint8_t data2, std::uint8_t data3,
                    std::int32_t deltaFrames);

    bool Sustained() const { return controllers[64] >= 0.5; }

    Shared<double> controllers[kKeys]; // 0..1; 64 is exactly 0 or 1
    Shared<double> channelPressure;    // 0..1
    Shared<double> pitchBend;          // -1..+1

protected:
    ~CMidiController() = default; // through CSynthesizer, whose operations keep their slots

    std::array<MidiEvent, kQueueCapacity> events;
    std::int32_t eventCount = 0;
    std::int32_t nextEvent = 0;     // to take
    std::int32_t lastDelta = 0;     // of the event taken last
    std::int32_t pendingEvent = -1; // taken but not dispatched, -1 none

    struct Key {
        std::uint8_t velocity = 0; // 0: not sounding; keeps the velocity while sustained
        std::uint8_t held = 0;     // velocity while physically down
        double pressure = 0.0;     // 0..1
    };
    std::array<Key, kKeys> keys;
    bool voiceHook = true; // key changes go to VoiceNoteOn before NoteEvent
};

} // namespace korvane
