// Files that are written whole or not at all.
#include "platform/SaveFile.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "platform/Files.h"

namespace korvane {

namespace {

constexpr int kWriting = O_WRONLY | O_CREAT | O_CLOEXEC;

/// Where the new file goes, and what it takes over from the old one.
struct Target {
    std::string path; // links resolved
    bool exists = false;
    struct stat old {};
};

enum class Outcome { Saved, Failed, Refused }; // refused: by rights, not for lack of room

Outcome ByReason()
{
    switch (errno) {
    case EACCES:
    case EPERM:
    case EINVAL: // an owner that this name space does not know
    case EBUSY:  // another file system is mounted on the file
    case ENOTSUP:
    case ENOSYS: // a file system without owners and modes
    case EXDEV: return Outcome::Refused;
    default: return Outcome::Failed;
    }
}

/// Nothing where only a write in place will do.
std::optional<Target> FindTarget(const std::string& path)
{
    Target target{path};
    if (stat(path.c_str(), &target.old) != 0) {
        const bool leadsNowhere = lstat(path.c_str(), &target.old) == 0; // the write makes what the link leads to
        return leadsNowhere ? std::nullopt : std::optional(target);
    }
    target.exists = true;
    if (!S_ISREG(target.old.st_mode) || target.old.st_nlink != 1) return {};
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        return {}; // a folder's rights must not lift the file's
    if (getxattr(path.c_str(), "system.posix_acl_access", nullptr, 0) > 0) return {};
    const std::unique_ptr<char, void (*)(void*)> resolved(realpath(path.c_str(), nullptr), std::free);
    if (!resolved || !SameFile(path.c_str(), resolved.get())) return {};
    target.path = resolved.get();
    return target;
}

/// A new, empty file in the target's folder, and its name. Negative when it could not be created.
int CreateBeside(const Target& target, std::string& name)
{
    const std::string folder = target.path.substr(0, target.path.rfind('/') + 1);
    const mode_t mode = target.exists ? target.old.st_mode & 0777 : 0666;
    int file = -1;
    for (int n = 0; n < 1000 && file < 0; ++n) { // others save here too, and some may have died over it
        name = folder + ".korvane-" + std::to_string(getpid()) + '-' + std::to_string(n) + ".tmp";
        file = open(name.c_str(), kWriting | O_EXCL, mode);
        if (file < 0 && errno != EEXIST) break;
    }
    return file;
}

/// Closes in any case; some disks say only then that they are full.
bool WriteAndClose(int file, const void* bytes, std::size_t size)
{
    const char* next = static_cast<const char*>(bytes);
    while (size > 0) {
        const ssize_t written = write(file, next, size);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) break;
        next += written;
        size -= static_cast<std::size_t>(written);
    }
    return close(file) == 0 && size == 0;
}

Outcome Replace(const Target& target, const void* bytes, std::size_t size)
{
    std::string name;
    const int file = CreateBeside(target, name);
    if (file < 0) return ByReason();
    const auto& old = target.old;
    Outcome outcome = Outcome::Failed;
    if (target.exists && (fchown(file, old.st_uid, old.st_gid) != 0 || fchmod(file, old.st_mode & 07777) != 0)) {
        outcome = ByReason();
        close(file);
    } else if (WriteAndClose(file, bytes, size)) {
        outcome = rename(name.c_str(), target.path.c_str()) == 0 ? Outcome::Saved : ByReason();
    }
    if (outcome != Outcome::Saved) unlink(name.c_str());
    return outcome;
}

} // namespace

bool SaveFile(const char* path, const void* bytes, std::size_t size)
{
    const std::string name = SystemPath(path);
    if (const auto target = FindTarget(name)) {
        const Outcome outcome = Replace(*target, bytes, size);
        if (outcome != Outcome::Refused) return outcome == Outcome::Saved;
    }
    // O_NONBLOCK: a pipe without a partner must not hold the caller.
    const int file = open(name.c_str(), kWriting | O_TRUNC | O_NONBLOCK, 0666);
    return file >= 0 && WriteAndClose(file, bytes, size);
}

} // namespace korvane
