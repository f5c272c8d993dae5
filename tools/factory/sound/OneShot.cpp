// A one-shot of a kit: from a row to a file's sound.
#include "factory/sound/OneShot.h"

namespace korvane::factory {

namespace {

constexpr double kLongest = 2.9; // seconds

/// FNV-1a
std::uint32_t SeedOf(const char* name)
{
    std::uint32_t hash = 2166136261u;
    for (; *name; ++name) hash = (hash ^ static_cast<unsigned char>(*name)) * 16777619u;
    return hash;
}

void Overdrive(Buffer& side, double drive)
{
    const double peak = Peak(Sound(side));
    if (peak > 0.0) Saturate(side, drive / peak);
}

} // namespace

Sound Treated(const std::function<Buffer(std::uint32_t seed)>& model, const Treatment& treatment, std::uint32_t seed)
{
    constexpr std::uint32_t kOtherSide = 1000, kRoom = 2000; // far from the seeds that models derive from theirs
    Sound sound(model(seed));
    if (treatment.wide) sound.right = model(seed + kOtherSide);
    for (Buffer* side : {&sound.left, &sound.right}) {
        if (treatment.crushHold > 0.0) Crush(*side, treatment.crushHold, treatment.crushBits);
        if (treatment.drive > 0.0) Overdrive(*side, treatment.drive);
    }
    return treatment.room.seconds > 0.0 ? InRoom(sound, treatment.room, seed + kRoom) : sound;
}

Sound Render(const OneShot& row) { return Finished(row.make(SeedOf(row.name)), row.peakDb, kLongest); }

} // namespace korvane::factory
