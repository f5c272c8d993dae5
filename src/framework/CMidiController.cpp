// MIDI input: the event queue and the state of keys and controllers.
#include "framework/CMidiController.h"

namespace korvane {

CMidiController::CMidiController()
{
    controllers[7] = 1.0;
    controllers[10] = 0.5;
}

void CMidiController::QueueEvent(std::uint8_t status, std::uint8_t data1, std::uint8_t data2, std::uint8_t data3,
                                 std::int32_t deltaFrames)
{
    if (eventCount >= kQueueCapacity) return;
    const auto data = [](std::uint8_t byte) { return static_cast<std::uint8_t>(byte & 0x7F); };
    events[static_cast<std::size_t>(eventCount++)] = {static_cast<std::uint8_t>(status & 0xF0), data(data1),
                                                      data(data2), data(data3), deltaFrames};
}

} // namespace korvane
