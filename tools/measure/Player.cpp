// A thread that plays as a sound card asks for it.
#include "measure/Player.h"

#include <pthread.h>

#include <utility>

namespace korvane::measure {

Player::Player(PluginHost& played, std::function<void(int)> before)
    : host(played), intake(std::move(before)), thread([this] { Run(); })
{
}

bool Player::ComeFirst()
{
    const sched_param priority{.sched_priority = 70};
    return pthread_setschedparam(pthread_self(), SCHED_FIFO, &priority) == 0;
}

void Player::Run()
{
    ComeFirst();
    times.micros.reserve(1'000'000);
    auto due = Clock::now();
    for (int n = 0; running; ++n) {
        due += std::chrono::nanoseconds(static_cast<long>(1000.0 * kBlockMicros));
        std::this_thread::sleep_until(due);
        if (starting.exchange(false)) host.SetPlaying(true);
        times.micros.push_back(Micros([this, n] {
            intake(n);
            host.Render(kFrames);
        }));
        blocks = n + 1;
    }
}

const Times& Player::Stop()
{
    running = false;
    if (thread.joinable()) thread.join();
    return times;
}

} // namespace korvane::measure
