// MIDI input: the event queue, the state of keys and controllers, and what an event does to them.
#include "framework/CMidiController.h"

namespace korvane {

namespace {

/// After a reset of all controllers.
double ResetValue(int number) { return number == controller::Volume ? 1.0 : number == controller::Pan ? 0.5 : 0.0; }

} // namespace

CMidiController::CMidiController()
{
    for (int n = 0; n < kKeys; ++n) controllers[n] = ResetValue(n);
}

// Queue

void CMidiController::QueueEvent(std::uint8_t status, std::uint8_t data1, std::uint8_t data2, std::uint8_t data3,
                                 std::int32_t deltaFrames)
{
    if (eventCount >= kQueueCapacity) return;
    const auto data = [](std::uint8_t byte) { return static_cast<std::uint8_t>(byte & 0x7F); };
    events[static_cast<std::size_t>(eventCount++)] = {static_cast<std::uint8_t>(status & 0xF0), data(data1),
                                                      data(data2), data(data3), deltaFrames};
}

std::int64_t CMidiController::NextGap(std::int64_t rest)
{
    if (nextEvent >= eventCount) return rest;
    const std::int64_t gap =
        static_cast<std::int64_t>(events[static_cast<std::size_t>(nextEvent)].deltaFrames) - lastDelta;
    if (gap < 0) {
        nextEvent = eventCount; // unsorted: it and all after it are lost
        return rest;
    }
    lastDelta = events[static_cast<std::size_t>(nextEvent)].deltaFrames;
    pendingEvent = nextEvent++;
    return gap;
}

void CMidiController::DispatchPending()
{
    if (pendingEvent >= 0) Dispatch(events[static_cast<std::size_t>(pendingEvent)]);
    pendingEvent = -1;
}

void CMidiController::ClearEvents()
{
    pendingEvent = -1;
    eventCount = nextEvent = lastDelta = 0;
}

// Events

void CMidiController::Dispatch(const MidiEvent& event)
{
    switch (event.status) {
    case 0x80: NoteOff(event.data1); break;
    case 0x90: NoteOn(event.data1, event.data2); break;
    case 0xA0: keys[event.data1].pressure = event.data2 / 127.0; break;
    case 0xB0: Control(event.data1, event.data2); break;
    case 0xC0: ProgramChangeReceived(event.data1); break;
    case 0xD0:
        channelPressure = event.data1 / 127.0;
        ChannelPressureChanged();
        break;
    case 0xE0:
        pitchBend = 2.0 * (event.data1 + 128 * event.data2) / 16383.0 - 1.0;
        PitchBendChanged();
        break;
    default: break;
    }
}

void CMidiController::NoteOn(int number, std::uint8_t velocity)
{
    Key& key = keys[static_cast<std::size_t>(number)];
    if (velocity == 0) {
        NoteOff(number);
    } else if (key.velocity == 0) {
        key.velocity = key.held = velocity;
        NotifyKey(number, velocity);
    }
}

void CMidiController::NoteOff(int key)
{
    keys[static_cast<std::size_t>(key)].held = 0;
    if (!Sustained()) ReleaseKey(key);
}

void CMidiController::Control(std::uint8_t number, std::uint8_t value)
{
    controllers[number] = value / 127.0;
    switch (number) {
    case controller::BankSelect:
        if (!BankSelectReceived(value)) ControllerChanged(controller::BankSelect);
        break;
    case controller::Sustain:
        controllers[controller::Sustain] = value >= 65 ? 1.0 : 0.0;
        if (value < 65) ReleaseUnheld();
        break;
    case controller::ResetAll: ResetControllers(); break;
    case controller::AllNotesOff: ReleaseAll(); break;
    default: ControllerChanged(static_cast<std::int8_t>(number)); break;
    }
}

void CMidiController::MoveChannelPressure(double value)
{
    channelPressure = value;
    ChannelPressureChanged();
}

void CMidiController::ResetControllers()
{
    for (int n = 0; n < kKeys; ++n) {
        controllers[n] = ResetValue(n);
        ControllerChanged(static_cast<std::int8_t>(n));
    }
}

// Keys

void CMidiController::ReleaseUnheld()
{
    for (int key = 0; key < kKeys; ++key)
        if (keys[static_cast<std::size_t>(key)].held == 0) ReleaseKey(key);
}

void CMidiController::ReleaseAll()
{
    for (int key = 0; key < kKeys; ++key) NoteOff(key);
}

void CMidiController::ReleaseKey(int key)
{
    if (keys[static_cast<std::size_t>(key)].velocity == 0) return;
    keys[static_cast<std::size_t>(key)].velocity = 0;
    NotifyKey(key, 0);
}

void CMidiController::NotifyKey(int key, std::uint8_t velocity)
{
    if (voiceHook) VoiceNoteOn(static_cast<std::int8_t>(key), static_cast<std::int8_t>(velocity));
    NoteEvent(static_cast<std::int8_t>(key), static_cast<std::int8_t>(velocity));
}

} // namespace korvane
