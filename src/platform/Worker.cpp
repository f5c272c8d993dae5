// A thread for what must not be done on the audio thread.
#include "platform/Worker.h"

#include <chrono>
#include <utility>

#include "platform/QuietThread.h"

namespace korvane {

namespace {

constexpr auto kPoll = std::chrono::microseconds(100); // of who waits for a task

} // namespace

Worker::Worker(Task everyRound, std::chrono::milliseconds longest)
    : round(std::move(everyRound)), pause(longest), thread(QuietThread([this] { Loop(); }))
{
}

void Worker::End()
{
    {
        const std::lock_guard guard(lock);
        ending = true;
    }
    news.notify_one();
    if (thread.joinable()) thread.join();
}

void Worker::Run(const Task& task, const Task& meanwhile)
{
    if (std::this_thread::get_id() == own) return task();
    Job job{&task, nullptr};
    {
        std::unique_lock guard(lock);
        if (ended) {
            guard.unlock();
            const std::lock_guard alone(late);
            return task();
        }
        jobs.push_back(&job);
    }
    news.notify_one();
    while (!job.done.load(std::memory_order_acquire)) {
        meanwhile();
        std::this_thread::sleep_for(kPoll);
    }
    if (job.error) std::rethrow_exception(job.error);
}

void Worker::Wake()
{
    {
        const std::lock_guard guard(lock);
        woken = true;
    }
    news.notify_one();
}

void Worker::Loop()
{
    own = std::this_thread::get_id();
    while (!ended) { // which only this thread sets
        Job* const job = NextJob();
        std::exception_ptr ignored; // short of memory; the next round may have more
        Do(round, ignored);
        if (!job) continue;
        Do(*job->task, job->error);
        job->done.store(true, std::memory_order_release);
    }
}

Worker::Job* Worker::NextJob()
{
    std::unique_lock guard(lock);
    news.wait_for(guard, pause, [this] { return ending || woken || !jobs.empty(); });
    woken = false;
    ended = ending && jobs.empty();
    if (jobs.empty()) return nullptr;
    Job* const job = jobs.front();
    jobs.pop_front();
    return job;
}

void Worker::Do(const Task& task, std::exception_ptr& error)
{
    try {
        task();
    } catch (...) {
        error = std::current_exception();
    }
}

} // namespace korvane
