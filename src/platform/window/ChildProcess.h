// A program of the desktop's, run for one answer.
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace korvane {

/// Ends with its owner: the process and what it started are killed then, and leave nothing behind. It gets none of the
/// host's open files, blocked signals or library paths. One thread.
class ChildProcess {
public:
    ChildProcess() = default;
    ~ChildProcess() { End(); }
    ChildProcess(const ChildProcess&) = delete;

    /// words  the program's path, then what it is told; no shell sees them
    bool Start(const std::vector<std::string>& words);
    void End();
    /// Reads what it has written by now; false once it has ended.
    bool Runs();
    /// Readable when it has written; -1: not any more.
    int Descriptor() const { return descriptor; }
    /// 0: it did what it was asked. Also when the host has taken away its result, but it has written something.
    bool Succeeded() const { return result == 0 || (result == kUnknown && !output.empty()); }

    std::string output; // at most kLongest bytes

private:
    static constexpr int kUnknown = -1;
    static constexpr std::size_t kLongest = 1 << 16;

    void Read();
    bool Reap(bool wait);

    pid_t process = 0; // 0: none runs
    int descriptor = -1;
    int result = kUnknown;
};

/// The path of a program on PATH; of a name with a '/' the name itself, when it can be run. Empty: there is none.
std::string FindProgram(const std::string& name);

} // namespace korvane
