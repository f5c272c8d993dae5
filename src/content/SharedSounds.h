// What decoded files become, once in the process however many instruments use them.
#pragma once

#include <memory>

#include "content/CWaveSample.h"
#include "content/WaveTables.h"
#include "platform/Files.h"

namespace korvane {

// Another instrument's copy of the same file, unchanged since, else the file is decoded now. It goes with its last
// user. Any thread but the audio thread; two that ask for a new file at the same time both decode it. std::bad_alloc
// when memory runs out.
//
// path   as the pool has found it
// stamp  of the file

/// kWaveTableFloats floats, all 0 for a file that no reader takes.
std::shared_ptr<const float[]> SharedWaveTables(const char* path, const FileStamp& stamp);

/// Of 0 frames for a file that no reader takes. CWaveSample::kPadFrames zeros follow its sound.
std::shared_ptr<const CWaveSample> SharedSample(const char* path, const FileStamp& stamp);

} // namespace korvane
