// Files and folders of the system, under the engine's path convention.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace korvane {

// Every path handed in uses backslashes, as the instrument's files store them; a '/' means the same. Only this layer
// turns them round. A name that itself holds a backslash cannot be reached. Any thread but the audio thread.

/// The engine's form of a system path: each '/' becomes a backslash.
std::string EnginePath(const char* systemPath);

/// The other way round.
std::string SystemPath(const char* path);

/// Null when there is no such file or it is not a regular file: a folder, a pipe or a device is never read.
std::FILE* OpenForReading(const char* path);

/// Creates or truncates. Null when that is refused.
std::FILE* OpenForWriting(const char* path);

/// True when the file can be opened for reading.
bool FileExists(const char* path);

/// By what one sees whether a file is still the one that was read.
struct FileStamp {
    std::int64_t size = -1;   // bytes; -1: there is no such file
    std::int64_t changed = 0; // nanoseconds since 1970

    auto operator<=>(const FileStamp&) const = default;
};
FileStamp StampOf(const char* path);

/// True when both paths lead to one file, through whatever links and detours.
bool SameFile(const char* a, const char* b);

/// True when the folder exists afterwards; its parent must exist.
bool CreateFolder(const char* path);

struct FolderEntry {
    std::string name;
    bool isFolder = false; // links count as what they lead to
};

/// Appends the folder's contents, "." and ".." left out, in the order in which the system returns them. False when it
/// cannot be read.
bool ListFolder(const char* path, std::vector<FolderEntry>& entries);

} // namespace korvane
