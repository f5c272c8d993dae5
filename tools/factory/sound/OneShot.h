// A one-shot of a kit: what a model plays, and what happens to it on its way to the file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "factory/sound/Sound.h"
#include "factory/sound/Synthesis.h"

namespace korvane::factory {

/// What happens to a model's sound, in this order.
struct Treatment {
    bool wide = false;      // other noise left and right
    double crushHold = 0.0; // frames that a value stays; 0 leaves the sound alone
    int crushBits = 8;
    double drive = 0.0; // tanh at full level; 0 leaves the sound alone
    RoomSize room = {}; // 0 seconds: none
};
inline constexpr Treatment kDry;
inline constexpr Treatment kWide{.wide = true};

struct OneShot {
    const char* name; // the kit's name and what it is; also the file's name
    double peakDb;    // dBFS
    std::function<Sound(std::uint32_t seed)> make;
};
using Kit = std::vector<OneShot>;

template <class Shape>
struct KitRow {
    const char* name;
    double peakDb;
    Treatment treatment;
    Shape shape;
};

/// The model's sound, treated.
Sound Treated(const std::function<Buffer(std::uint32_t seed)>& model, const Treatment& treatment, std::uint32_t seed);

/// Adds a table of sounds that one model makes.
template <class Shape, std::size_t count>
void Add(Kit& kit, Buffer (*model)(const Shape&, std::uint32_t), const KitRow<Shape> (&rows)[count])
{
    for (const KitRow<Shape>& row : rows)
        kit.push_back({row.name, row.peakDb, [model, &row](std::uint32_t seed) {
                           const auto sound = [model, &row](std::uint32_t s) { return model(row.shape, s); };
                           return Treated(sound, row.treatment, seed);
                       }});
}

/// The one-shot as it is written; its noise follows from its name alone.
Sound Render(const OneShot& row);

} // namespace korvane::factory
