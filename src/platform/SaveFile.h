// Files that are written whole or not at all.
#pragma once

#include <cstddef>

namespace korvane {

/// Creates or replaces the file. False when it could not be saved: what was there is then as it was, and nothing is
/// left beside it. Several that save the same file leave one of their versions. Any thread but the audio thread.
///
/// The new file keeps the mode, owner and links of the old one. Where it could not, and where the folder takes no new
/// file, the old one is written over, and a write that fails has cut it; so has one into what is no file.
/// path  as for the operations of Files.h
bool SaveFile(const char* path, const void* bytes, std::size_t size);

} // namespace korvane
