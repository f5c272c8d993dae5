// A thread for what must not be done on the audio thread.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

#include "platform/Shared.h"

namespace korvane {

/// Does what it is given, one thing after another, in order, and looks round by itself now and then: for what the audio
/// thread has left for it, which can wake nobody.
class Worker {
public:
    using Task = std::function<void()>;

    /// The thread begins. std::system_error when the system has none left.
    /// round  what it does at each look round and before each task; what it throws ends that round
    /// pause  the longest between two of them
    Worker(Task round, std::chrono::milliseconds pause);
    ~Worker() { End(); }
    Worker(const Worker&) = delete;

    /// Does the task on the thread, after a round; what it throws comes out here. Any thread that may wait, and the
    /// thread itself, where the task is simply done.
    /// meanwhile  what the caller does again and again while it waits
    void Run(const Task& task, const Task& meanwhile);

    /// Finishes the tasks that wait and ends the thread; those who come to Run afterwards do their tasks themselves,
    /// one after another. Not for the thread itself.
    void End();
    /// The end is near: a round that is long may be cut short.
    bool Ending() const { return ending; }

    /// Look round now. Any thread that may make a system call.
    void Wake();

private:
    struct Job {
        const Task* task;
        std::exception_ptr error;
        std::atomic<bool> done{false};
    };
    void Loop();
    Job* NextJob(); // after a pause, if there is none
    static void Do(const Task& task, std::exception_ptr& error);

    const Task round;
    const std::chrono::milliseconds pause;
    std::mutex lock;
    std::condition_variable news;
    std::deque<Job*> jobs; // under the lock, like the flags
    bool woken = false, ended = false;
    std::atomic<bool> ending{false};
    std::recursive_mutex late;   // of tasks that come after the end
    Shared<std::thread::id> own; // the thread writes
    std::thread thread;          // last: it uses the others
};

} // namespace korvane
