// The window's thread, from its host's Open to its host's Close.
#include "gui/window/EditorThread.h"

#include <exception>

#include "platform/QuietThread.h"

namespace korvane {

using namespace std::chrono_literals;

constexpr auto kPatience = 250ms; // with a thread that the host keeps
constexpr int kRound = 1000;      // milliseconds between two looks; whatever matters wakes the thread

EditorThread::~EditorThread()
{
    Close();
    if (thread.joinable()) thread.join();
}

bool EditorThread::Open(void* parent, int height, int width)
{
    if (OnOwnThread()) return !closing;
    if (IsOpen() && parent == openedIn) return true;
    if (IsOpen()) Close(); // its parent has gone, and the news is on its way
    if (!Forget(kPatience)) return false;
    const int scale = editor->Platform().Scale();
    closing = false;
    openedIn = parent;
    state = State::Opening; // no thread looks at it
    try {
        thread = QuietThread([this, parent, size = Size{height / scale, width / scale}] { Run(parent, size); });
    } catch (const std::exception&) {
        state = State::Closed;
        return false;
    }
    std::unique_lock guard(lock);
    news.wait(guard, [this] { return state != State::Opening; });
    return state == State::Open;
}

void EditorThread::Close()
{
    if (!OnOwnThread() && !thread.joinable()) return;
    closing = true;
    editor->Platform().RequestClose();
    if (!OnOwnThread() && Forget(kPatience)) return;
    handle = nullptr;
    editor->Platform().Withdraw();
}

void EditorThread::GetEditorSize(int& height, int& width) const
{
    const int scale = editor->Platform().Scale();
    height = editor->editorHeight * scale;
    width = editor->editorWidth * scale;
}

void EditorThread::Run(void* parent, Size size)
{
    own = std::this_thread::get_id();
    try {
        if (editor->Open(size.height, size.width, parent)) {
            handle = editor->windowHandle;
            Enter(State::Open);
            while (!closing && editor->Platform().Serve(kRound)) {}
            if (editor->mouseCaptured) editor->CancelAll(); // the host hears of the end of a gesture
        }
    } catch (const std::exception&) { // no memory: the window goes, the host stays
    }
    handle = nullptr;
    editor->Close();
    own = std::thread::id();
    Enter(State::Ended);
}

bool EditorThread::IsOpen()
{
    std::lock_guard guard(lock);
    return state == State::Open && !closing;
}

void EditorThread::Enter(State next)
{
    {
        std::lock_guard guard(lock);
        state = next;
    }
    news.notify_all();
}

bool EditorThread::Forget(std::chrono::milliseconds patience)
{
    if (!thread.joinable()) return true;
    {
        std::unique_lock guard(lock);
        if (!news.wait_for(guard, patience, [this] { return state == State::Ended; })) return false;
        state = State::Closed;
    }
    thread.join();
    return true;
}

} // namespace korvane
