// Durations, and what is told of them.
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace korvane::measure {

using Clock = std::chrono::steady_clock;

/// Microseconds, in the order in which they were taken. Adding asks for memory unless it was reserved.
struct Times {
    double Median() const
    {
        auto sorted = micros;
        const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
        std::nth_element(sorted.begin(), middle, sorted.end());
        return sorted.empty() ? 0.0 : *middle;
    }
    double Longest() const { return micros.empty() ? 0.0 : *std::max_element(micros.begin(), micros.end()); }
    long Above(double limit) const
    {
        return std::count_if(micros.begin(), micros.end(), [limit](double time) { return time > limit; });
    }

    std::vector<double> micros;
};

/// How long something takes, in microseconds.
template <class Act>
double Micros(const Act& act)
{
    const auto begin = Clock::now();
    act();
    return std::chrono::duration<double, std::micro>(Clock::now() - begin).count();
}

} // namespace korvane::measure
