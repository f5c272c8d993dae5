// An editor as bridges see it: the thread that its window lives on.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "gui/window/CSynthEditor.h"
#include "platform/Shared.h"
#include "shell/CPluginEditor.h"

namespace korvane {

/// Hosts call from threads of theirs, in any order, and some never call at all while a window is open; so each open
/// window has a thread to itself, on which everything of the editor happens. Open waits until the window shows. Close
/// waits for the end of that thread, but not for long: while the thread calls the host, the host may be waiting for who
/// is in Close. Then the window goes from the screen and the thread ends when the host lets it return.
///
/// Open and Close come from one thread at a time, which may be the window's own, called back by the host.
class EditorThread : public CPluginEditor {
public:
    explicit EditorThread(std::unique_ptr<CSynthEditor> content) : editor(std::move(content)) {}
    /// Waits for the thread, however long the host keeps it.
    ~EditorThread() override;

    /// True when the window is open in that parent afterwards; one in another parent is closed. False also when the
    /// last window's thread is still kept by the host.
    ///
    /// height, width  as GetEditorSize told them
    bool Open(void* parent, int height, int width) override;
    void Close() override;
    void GetEditorSize(int& height, int& width) const override; // in pixels of the screen
    void ShowParameter(int index, float value) override { editor->notices.Post(index, value); }
    void RefreshAll() override { editor->notices.PostAll(); }

    /// The window's number in the system, for hosts that ask; null while closed. Any thread.
    void* Handle() const override { return handle; }

private:
    enum class State { Closed, Opening, Open, Ended }; // Ended: the thread is done and waits to be joined

    void Run(void* parent, Size size);
    bool IsOpen();
    void Enter(State next);
    bool Forget(std::chrono::milliseconds patience); // joins a thread that ended or does so in time
    bool OnOwnThread() const { return std::this_thread::get_id() == own; }

    const std::unique_ptr<CSynthEditor> editor;
    std::thread thread;
    void* openedIn = nullptr; // the last parent; for Open alone
    std::atomic<bool> closing{false};
    Shared<std::thread::id> own; // the thread writes, as the next one
    Shared<void*> handle = nullptr;
    std::mutex lock;
    std::condition_variable news;
    State state = State::Closed; // under the lock while there is a thread
};

} // namespace korvane
