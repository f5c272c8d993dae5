// Writes sounds as RIFF WAVE files, 24 bit, 44.1 kHz.
#pragma once

#include <string>

#include "factory/sound/Sound.h"

namespace korvane::factory {

/// Creates or replaces the file. False when it cannot be written.
/// sound  peaks at full scale or below
bool WriteWav(const std::string& path, const Sound& sound);

} // namespace korvane::factory
