// Files and folders of the system, under the engine's path convention.
#include "platform/Files.h"

#include <algorithm>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace korvane {

std::string SystemPath(const char* path)
{
    std::string result = path ? path : "";
    std::replace(result.begin(), result.end(), '\\', '/');
    return result;
}

std::string EnginePath(const char* systemPath)
{
    std::string result = systemPath ? systemPath : "";
    std::replace(result.begin(), result.end(), '/', '\\');
    return result;
}

static std::FILE* OpenStream(const char* path, int flags, const char* mode)
{
    // O_NONBLOCK: a pipe without a partner must not hold the caller; regular files ignore it.
    const int descriptor = open(SystemPath(path).c_str(), flags | O_CLOEXEC | O_NONBLOCK, 0666);
    if (descriptor < 0) return nullptr;
    struct stat status {};
    const bool reads = (flags & O_ACCMODE) == O_RDONLY;
    const bool usable = fstat(descriptor, &status) == 0 && (!reads || S_ISREG(status.st_mode));
    std::FILE* file = usable ? fdopen(descriptor, mode) : nullptr;
    if (!file) close(descriptor);
    return file;
}

std::FILE* OpenForReading(const char* path) { return OpenStream(path, O_RDONLY, "rb"); }

std::FILE* OpenForWriting(const char* path) { return OpenStream(path, O_WRONLY | O_CREAT | O_TRUNC, "wb"); }

bool FileExists(const char* path)
{
    std::FILE* file = OpenForReading(path);
    if (!file) return false;
    std::fclose(file);
    return true;
}

FileStamp StampOf(const char* path)
{
    struct stat status {};
    if (stat(SystemPath(path).c_str(), &status) != 0) return {};
    return {status.st_size, std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec};
}

bool SameFile(const char* a, const char* b)
{
    struct stat first {};
    struct stat second {};
    return stat(SystemPath(a).c_str(), &first) == 0 && stat(SystemPath(b).c_str(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

static bool IsFolder(const std::string& systemPath)
{
    struct stat status {};
    return stat(systemPath.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool CreateFolder(const char* path)
{
    const std::string folder = SystemPath(path);
    return mkdir(folder.c_str(), 0777) == 0 || IsFolder(folder);
}

bool ListFolder(const char* path, std::vector<FolderEntry>& entries)
{
    const std::string folder = SystemPath(path);
    const std::unique_ptr<DIR, int (*)(DIR*)> search(opendir(folder.c_str()), closedir);
    if (!search) return false;
    while (const dirent* found = readdir(search.get())) {
        const char* name = found->d_name;
        if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0) continue;
        const bool unsure = found->d_type == DT_UNKNOWN || found->d_type == DT_LNK;
        entries.push_back({name, unsure ? IsFolder(folder + "/" + name) : found->d_type == DT_DIR});
    }
    return true;
}

} // namespace korvane
