// Kernels of every instruction set that runs here.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

#include "engine/kernels/Kernels.h"

namespace korvane {

/// check(const Kernels&) for each instruction set of this machine.
template <class Check>
void OnEachIsa(Check check)
{
    for (const Isa isa : kIsas) {
        SCOPED_TRACE(static_cast<int>(isa));
        if (Runs(isa)) check(KernelsOf(isa));
    }
}

/// Of rows of the same length.
template <class T>
bool SameBits(const std::vector<T>& a, const std::vector<T>& b)
{
    return a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

/// Numbers that loops stumble over, among ordinary ones.
struct Edges {
    std::minstd_rand random{1};

    int Below(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }
    float operator()()
    {
        constexpr float kEdges[] = {0.0f, -0.0f, 1.0f, -1.0f, 1e-9f, -1e-10f, 1e-30f, 4e7f, -3e5f, 0.5f};
        if (Below(8) == 0) return kEdges[Below(std::size(kEdges))];
        return static_cast<float>(Below(1 << 22)) * 0x1p-21f - 1.0f;
    }
    std::vector<float> Row(int frames)
    {
        std::vector<float> row(static_cast<std::size_t>(frames));
        for (float& x : row) x = (*this)();
        return row;
    }
};

} // namespace korvane
