// MIDI input: the event queue, the state of keys and controllers, and what an event does to them.
#pragma once

#include <array>
#include <cstdint>

#include "framework/MidiEvent.h"
#include "platform/Shared.h"

namespace korvane {

/// Controller numbers with a meaning of their own.
namespace controller {
inline constexpr int ModWheel = 1, Volume = 7, Pan = 10, BankSelect = 32, Sustain = 64, ResetAll = 121,
                     AllNotesOff = 123;
} // namespace controller

/// What has come in by MIDI. Events are queued just before their block and dispatched inside it, both on the audio
/// thread, on which the notifications come too. Keys are moved by who has the engine to itself; a controller that a
/// host moves as a parameter is announced on whatever thread does. Other threads read the values.
class CMidiController {
public:
    static constexpr int kQueueCapacity = 1024;
    static constexpr int kKeys = 128; // and controllers

    CMidiController();

    // clang-format off
    virtual void NoteEvent(std::int8_t, std::int8_t) {}          // key, velocity; 0: release
    virtual void VoiceNoteOn(std::int8_t, std::int8_t) {}
    virtual void PitchBendChanged() {}
    virtual void ControllerChanged(std::int8_t) {}
    virtual void ChannelPressureChanged() {}
    virtual void ProgramChangeReceived(int) {}
    virtual bool BankSelectReceived(int) { return false; }       // whether it was handled
    // clang-format on

    /// Appends an event; a full queue drops it. Status and data are masked to what a MIDI event can hold.
    /// deltaFrames  frame in the coming block, not below that of the event queued before
    void QueueEvent(std::uint8_t status, std::uint8_t data1, std::uint8_t data2, std::uint8_t data3,
                    std::int32_t deltaFrames);

    /// By a host that has the pressure as a parameter. Any thread.
    /// value  0..1
    void MoveChannelPressure(double value);

    bool Sustained() const { return controllers[controller::Sustain] >= 0.5; }

    Shared<double> controllers[kKeys]; // 0..1; by MIDI sustain is exactly 0 or 1
    Shared<double> channelPressure;    // 0..1
    Shared<double> pitchBend;          // -1..+1

protected:
    ~CMidiController() = default; // through CSynthesizer, whose operations keep their slots

    /// Takes the next event; frames until it, or `rest` when there is none or it lies in the past.
    std::int64_t NextGap(std::int64_t rest);
    /// Does what the event taken last asks.
    void DispatchPending();
    /// The block is over: what was not dispatched is lost.
    void ClearEvents();
    /// Each to its first value, and announced. Any thread.
    void ResetControllers();
    /// Lets every key go; those that the pedal holds sound on. Who has the engine to itself.
    void ReleaseAll();
    /// What no finger holds. Who has the engine to itself.
    void ReleaseUnheld();

private:
    void Dispatch(const MidiEvent& event);
    void NoteOn(int key, std::uint8_t velocity);
    void NoteOff(int key);
    void Control(std::uint8_t number, std::uint8_t value);
    void ReleaseKey(int key);
    void NotifyKey(int key, std::uint8_t velocity);

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
