// Starting, hearing and ending a child process.
#include "platform/window/ChildProcess.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace korvane {

static bool IsProgram(const std::string& path)
{
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && access(path.c_str(), X_OK) == 0;
}

std::string FindProgram(const std::string& name)
{
    if (name.find('/') != std::string::npos) return IsProgram(name) ? name : std::string();
    const char* const folders = std::getenv("PATH");
    for (std::string_view rest = folders ? folders : ""; !rest.empty();) {
        const std::string_view folder = rest.substr(0, rest.find(':'));
        rest.remove_prefix(std::min(folder.size() + 1, rest.size()));
        const std::string path = std::string(folder).append("/").append(name);
        if (!folder.empty() && IsProgram(path)) return path;
    }
    return {};
}

static bool SpeaksUtf8()
{
    for (const char* const name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* const value = std::getenv(name);
        if (value && *value) return std::strstr(value, "UTF-8") || std::strstr(value, "utf8");
    }
    return false;
}

/// The process's own, without what is there for the host alone, and so that file names of every script come through.
static std::vector<std::string> EnvironmentOfChild()
{
    std::vector<std::string> result;
    for (char** entry = environ; entry && *entry; ++entry) {
        const std::string_view text = *entry;
        const auto is = [&](std::string_view name) { return text.substr(0, name.size()) == name; };
        if (!is("LD_LIBRARY_PATH=") && !is("LD_PRELOAD=") && !(is("LC_ALL=") && !SpeaksUtf8()))
            result.emplace_back(text);
    }
    if (!SpeaksUtf8()) result.emplace_back("LC_ALL=C.UTF-8");
    return result;
}

static std::vector<char*> PointersTo(const std::vector<std::string>& texts)
{
    std::vector<char*> result;
    for (const std::string& text : texts) result.push_back(const_cast<char*>(text.c_str()));
    result.push_back(nullptr);
    return result;
}

/// output  where its standard output goes
static pid_t Spawn(const std::vector<std::string>& words, int output)
{
    const std::vector<std::string> environment = EnvironmentOfChild();
    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    sigset_t none, all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setpgroup(&attributes, 0); // its own, so that all of it can be ended
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    pid_t process = 0;
    const int error = posix_spawn(&process, words[0].c_str(), &files, &attributes, PointersTo(words).data(),
                                  PointersTo(environment).data());
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return error == 0 ? process : 0;
}

bool ChildProcess::Start(const std::vector<std::string>& words)
{
    End();
    output.clear();
    result = kUnknown;
    int ends[2];
    if (words.empty() || pipe2(ends, O_CLOEXEC) != 0) return false;
    process = Spawn(words, ends[1]);
    close(ends[1]);
    descriptor = ends[0];
    fcntl(descriptor, F_SETFL, O_NONBLOCK);
    if (process == 0) End();
    return process != 0;
}

void ChildProcess::End()
{
    if (process > 0) {
        kill(-process, SIGKILL);
        Reap(true);
    }
    if (descriptor >= 0) close(descriptor);
    descriptor = -1;
}

bool ChildProcess::Reap(bool wait)
{
    int status = 0;
    pid_t ended = 0;
    do {
        ended = waitpid(process, &status, wait ? 0 : WNOHANG);
    } while (ended < 0 && errno == EINTR);
    if (ended == 0) return false;
    process = 0;
    if (ended > 0) result = WIFEXITED(status) ? WEXITSTATUS(status) : 128;
    return true;
}

void ChildProcess::Read()
{
    char bytes[4096];
    while (descriptor >= 0) {
        const ssize_t count = read(descriptor, bytes, sizeof bytes);
        if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
        if (count > 0) {
            output.append(bytes, std::min<std::size_t>(count, kLongest - output.size()));
        } else {
            close(descriptor);
            descriptor = -1;
        }
    }
}

bool ChildProcess::Runs()
{
    if (process <= 0) return false;
    const bool ended = Reap(false); // first, so that nothing is written afterwards
    Read();
    return !ended;
}

} // namespace korvane
