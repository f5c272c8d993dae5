// The plug-in's window: opening, groups, the routing of events, ticks, redraws, the mouse that it holds.
#include <gtest/gtest.h>

#include "gui/window/CFileSelector.h"
#include "platform/Files.h"
#include "support/EditorRig.h"

namespace korvane {
namespace {

/// A control that writes down what it hears, with its id.
struct Ear : CControl {
    Ear(Rect place, int number, Log& lines) : CControl(place, number), log(lines) {}
    void OnLeftDown(int x, int y) override { Note("down", x, y); }
    void OnMouseMove(int x, int y) override { Note("move", x, y); }
    void OnLeftUp(int x, int y) override { Note("up", x, y); }
    void OnTick() override { ++ticks, onTick(); }
    void Draw(CDrawBuffer* buffer) override
    {
        ++draws;
        buffer->SetFillColor(Rgb(0, 0, id));
        buffer->FillRect(rect);
    }
    bool OnFileDrop(const char*, int, int) override { return takesFiles; }
    void Note(const char* what, int x, int y)
    {
        log.push_back(std::to_string(id) + " " + what + " " + std::to_string(x) + " " + std::to_string(y));
    }

    std::function<void()> onTick = [] {};
    int ticks = 0, draws = 0;
    bool takesFiles = false;
    Log& log;
};

struct WindowTest : testing::Test, EditorRig {
    Ear* Add(Rect place, int number, CControlGroup* group = nullptr)
    {
        auto* ear = new Ear(place, number, log);
        if (group)
            group->AddControl(ear);
        else
            editor->AddControl(ear);
        return ear;
    }
    CControlGroup* AddGroup(int number)
    {
        auto* group = new CControlGroup(editor.get(), number);
        editor->AddGroup(group);
        return group;
    }
    const std::vector<Rect> none{}, all{{0, 0, 300, 200}};
};

TEST_F(WindowTest, OpensOnceAndAgainAfterClose)
{
    int fills = 0;
    editor->fill = [&] { return ++fills, Add({0, 0, 10, 10}, 5) != nullptr; };
    EXPECT_EQ(editor->timerPeriod, 40);
    engine.SetParameter(5, 0.25f);
    ASSERT_TRUE(editor->Open(200, 300, nullptr));
    EXPECT_TRUE(editor->Open(200, 300, nullptr)) << "what is open stays open";
    EXPECT_EQ(std::pair(fills, window->timerPeriod), std::pair(1, 40));
    EXPECT_EQ(editor->FindControl(5)->GetValue(), 0.25f);
    EXPECT_EQ(window->shown[0], 5u) << "the first tick is part of opening";
    editor->SetBackground(77);
    for (int n = 0; n < 2; ++n) editor->Close();
    EXPECT_TRUE(editor->GetBackgroundId() == -1 && !editor->GetMainGroup());
    EXPECT_EQ(editor->PointerPosition(), (Point{-1, -1}));
    EXPECT_TRUE(Open() && fills == 2);
    editor->Close();
    editor->fill = [] { return false; };
    EXPECT_FALSE(Open() || editor->windowHandle || window->Handle()) << "without content";
    editor->fill = nullptr;
    EXPECT_FALSE(editor->Open(0, 300, nullptr)) << "without a size";
    EXPECT_TRUE(Open());
}

TEST_F(WindowTest, GroupsAreFoundAfterTheMainOne)
{
    ASSERT_TRUE(Open());
    CControlGroup *first = AddGroup(7), *second = AddGroup(8);
    editor->AddGroup(first);
    for (const auto& [index, group] : {std::pair{0, first}, {1, second}, {2, {}}, {-1, {}}})
        EXPECT_EQ(editor->GetGroupByIndex(index), group) << index;
    EXPECT_TRUE(editor->FindGroupById(8) == second && !editor->FindGroupById(-1)) << "the main group is not found";
    CControl* control = Add({0, 0, 5, 5}, 9, second);
    EXPECT_EQ(editor->FindControl(9), control);
    editor->SetActiveGroup(second);
    second->Capture(editor->FindControl(9), false);
    editor->SetDirty(false);
    editor->RemoveGroup(second);
    EXPECT_TRUE(!editor->activeGroup && !editor->capturingGroup && !window->grabbed && editor->IsDirty());
    editor->RemoveGroup(editor->GetMainGroup());
    EXPECT_NE(editor->GetMainGroup(), nullptr);
    editor->SetActiveGroup(first);
    Add({0, 0, 5, 5}, 9, first)->SetFocus(true);
    editor->Close();
    EXPECT_EQ(editor->activeGroup, nullptr);
}

TEST_F(WindowTest, EventsAndTicksReachTheActiveGroupAlone)
{
    ASSERT_TRUE(Open());
    Ear* below = Add({0, 0, 50, 50}, 1);
    CControlGroup* layer = AddGroup(7);
    Ear* above = Add({0, 0, 50, 50}, 2, layer);
    Move(10, 20);
    EXPECT_EQ(Take(), (Log{"mouse 10 20 mod 0 type 6", "1 move 10 20", "2 move 10 20"}));
    editor->SetActiveGroup(layer);
    Press(mouse::LeftDown);
    EXPECT_EQ(Take(), (Log{"mouse 10 20 mod 0 type 0", "2 down 10 20"}));
    below->ticks = above->ticks = 0;
    Tick();
    EXPECT_EQ(std::pair(below->ticks, above->ticks), std::pair(0, 1));
    below->takesFiles = true;
    EXPECT_FALSE(editor->DropFile("a", 1, 1));
    editor->SetActiveGroup(nullptr);
    EXPECT_TRUE(editor->DropFile("a", 1, 1));
}

TEST_F(WindowTest, TellsPositionModifiersWheelKeysAndDrops)
{
    ASSERT_TRUE(Open());
    window->MoveTo(-3, 250); // outside: a release may come from there
    window->HoldModifiers(modifier::Shift | modifier::Alt);
    window->Press(mouse::MiddleUp);
    window->Wheel(-2);
    window->Key(key::Space, true);
    window->Key('Q', true);
    window->Key('Q', false);
    window->Drop("D:\\a b.wav");
    window->Serve(0);
    EXPECT_EQ(Take(), (Log{"mouse -3 250 mod 0 type 6", "mouse -3 250 mod 6 type 4", "mouse 0 -2 mod 6 type 7",
                           "key 32", "key 81", "drop D:\\a b.wav -3 250"}));
    EXPECT_EQ(editor->lastMousePosition, (Point{-3, 250})) << "a wheel has no place";
    EXPECT_EQ(window->usedKeys, (std::vector<bool>{true, false, false}));
    for (const auto& [flags, kind] : {std::pair{3, mouse::RightDown}, {3, mouse::LeftDown}, {2, mouse::LeftDown}}) {
        window->focused = false;
        editor->flags = flags;
        Press(kind);
        EXPECT_EQ(window->focused, flags == 3 && kind == mouse::LeftDown);
    }
}

TEST_F(WindowTest, AHiddenDragHasNoEnd)
{
    struct Step {
        const char* what;
        Point to, pointer, reported; // on the screen, afterwards on the screen, as reported
    };
    const Step steps[] = {
        {"plain", {150, 160}, {150, 160}, {50, 110}},
        {"bottom edge", {150, 1079}, {150, 1}, {50, 1029}},
        {"goes on", {150, 101}, {150, 101}, {50, 1129}},
        {"top edge", {150, 0}, {150, 1078}, {50, 1028}},
        {"left edge", {0, 1078}, {1918, 1078}, {-100, 1028}},
        {"right edge", {1919, 1078}, {1, 1078}, {-99, 1028}},
        {"corner: first up and down", {0, 0}, {0, 1078}, {-100, -50}},
    };
    ASSERT_TRUE(Open());
    window->MoveToScreen(150, 150); // (50, 100) in the window
    window->Serve(0);
    editor->CaptureMouse(true);
    editor->CaptureMouse(false); // is captured already
    EXPECT_TRUE(window->pointerHidden);
    Take();
    for (const Step& step : steps) {
        SCOPED_TRACE(step.what);
        window->MoveToScreen(step.to.x, step.to.y);
        window->Serve(0);
        EXPECT_EQ(window->pointer, step.pointer);
        char line[64];
        std::snprintf(line, sizeof line, "mouse %d %d mod 0 type 6", step.reported.x, step.reported.y);
        EXPECT_EQ(Take(), Log{line});
    }
    window->MoveToScreen(0, 1078); // to where it is: the left edge sends it across, but nothing moved
    window->Serve(0);
    EXPECT_EQ(Take(), Log{});
    editor->ReleaseMouse();
    EXPECT_EQ(window->pointer, (Point{150, 150}));
    EXPECT_FALSE(window->pointerHidden || window->grabbed || editor->IsMouseCaptured());
}

TEST_F(WindowTest, WithoutWarpsAHiddenDragEndsAtTheEdge)
{
    ASSERT_TRUE(Open());
    window->warps = false;
    window->MoveToScreen(150, 150);
    window->Serve(0);
    editor->CaptureMouse(true);
    Take();
    for (const int y : {1079, 1079, 1070}) window->MoveToScreen(150, y);
    window->Serve(0);
    EXPECT_EQ(Take(), (Log{"mouse 50 1029 mod 0 type 6", "mouse 50 1020 mod 0 type 6"}));
}

TEST_F(WindowTest, ALostGrabCancelsEverything)
{
    ASSERT_TRUE(Open());
    Ear* ear = Add({0, 0, 50, 50}, 1);
    ear->CaptureMouse(false);
    EXPECT_TRUE(ear->IsCapturing());
    window->StealGrab();
    Take();
    Tick();
    EXPECT_EQ(Take(), Log{"1 up -1 -1"});
    EXPECT_FALSE(editor->IsMouseCaptured());
}

TEST_F(WindowTest, ATickShowsWhatIsDirtyAndNoMore)
{
    ASSERT_TRUE(Open());
    Ear* left = Add({10, 20, 30, 40}, 1);
    Ear* right = Add({100, 20, 30, 40}, 2);
    Tick();
    window->copies.clear();
    left->draws = right->draws = 0;
    Tick();
    EXPECT_EQ(window->copies, none);
    left->SetDirty(true);
    Tick();
    EXPECT_EQ(window->copies, (std::vector<Rect>{{10, 20, 30, 40}}));
    EXPECT_EQ(std::pair(left->draws, right->draws), std::pair(1, 0));
    editor->SetDirty(true);
    window->copies.clear();
    Tick();
    EXPECT_EQ(window->copies, all) << "one copy at the end";
    EXPECT_EQ(std::pair(left->draws, right->draws), std::pair(2, 1));
    EXPECT_FALSE(editor->IsDirty());
    Move(12, 22);
    Tick();
    EXPECT_TRUE(left->hovered);
    left->CaptureMouse(false);
    Move(105, 22);
    Tick();
    EXPECT_TRUE(left->hovered) << "nothing hovers anew while the mouse is held";
    EXPECT_FALSE(right->hovered);
    window->copies.clear();
    window->Expose({1, 2, 3, 4});
    window->Serve(0);
    EXPECT_EQ(window->copies, (std::vector<Rect>{{1, 2, 3, 4}}));
}

TEST_F(WindowTest, LockedRedrawsAreShownOnceAfterwards)
{
    ASSERT_TRUE(Open());
    editor->LockRedraw();
    editor->LockRedraw();
    editor->RedrawRect({1, 1, 2, 2});
    editor->UnlockRedrawPending();
    EXPECT_EQ(window->copies, none);
    editor->UnlockRedrawPending();
    EXPECT_EQ(window->copies, all);
    window->copies.clear();
    editor->LockRedraw();
    editor->UnlockRedrawPending();
    EXPECT_EQ(window->copies, none) << "there was nothing to show";
    editor->UnlockRedraw(false); // one too many
    EXPECT_EQ(editor->redrawLock, 0);
    editor->LockRedraw();
    editor->UnlockRedraw(true);
    EXPECT_EQ(window->copies, all);
}

TEST_F(WindowTest, ATickWithinATickIsNone)
{
    ASSERT_TRUE(Open());
    Ear* nested = Add({0, 0, 5, 5}, 1);
    nested->onTick = [&] { Tick(); };
    for (const int ticks : {1, 2}) {
        Tick();
        EXPECT_EQ(nested->ticks, ticks);
    }
}

TEST_F(WindowTest, ControlsShowTheEngine)
{
    ASSERT_TRUE(Open());
    Ear* knob = Add({0, 0, 5, 5}, 92);
    Ear* label = Add({0, 0, 5, 5}, -1);
    char text[1024];
    const auto read = [&](auto ask) { return (knob->*ask)(text), std::string(text); };
    EXPECT_EQ(read(&CControl::GetParameterName), "name 92");
    EXPECT_EQ(read(&CControl::GetParameterDisplay), "display 92");
    EXPECT_EQ(read(&CControl::GetParameterLabel), "label 92");
    EXPECT_EQ(knob->GetDefaultValue(), 0.092f);
    Add({0, 0, 5, 5}, 153)->BeginEdit();
    Ear* stored = Add({0, 0, 5, 5}, 154); // no host knows it
    for (Ear* ear : {stored, label}) ear->BeginEdit(), ear->EndEdit();
    knob->EndEdit();
    EXPECT_EQ(Take(), (Log{"begin 153 0", "end 92 0"}));

    Tick();
    for (const int index : {92, 196, -1}) editor->notices.Post(index, 0.75f);
    EXPECT_EQ(knob->GetValue(), 0.0f) << "the window's thread takes it";
    knob->draws = 0;
    Tick();
    EXPECT_EQ(std::pair(knob->GetValue(), knob->draws), std::pair(0.75f, 1));
    engine.SetParameter(92, 0.5f);
    editor->notices.PostAll();
    editor->SetActiveGroup(AddGroup(7)); // keeps the rest as it is
    Tick();
    editor->SetActiveGroup(nullptr);
    Tick();
    EXPECT_TRUE(knob->GetValue() == 0.5f && Take().empty()) << "the host hears of none of it";
    editor->notices.Post(92, 0.25f);
    editor->Close();
    editor->ParameterChanged(92, 0.25f);
    ASSERT_TRUE(Open());
    Ear* again = Add({0, 0, 5, 5}, 92);
    Tick();
    EXPECT_EQ(again->GetValue(), 0.5f) << "what was noticed before the opening is old";
}

TEST_F(WindowTest, IsADropTarget)
{
    void* answer = editor.get();
    EXPECT_EQ(editor->QueryInterface(kDropTargetId, &answer), 0u);
    EXPECT_EQ(answer, static_cast<IDropTarget*>(editor.get()));
    EXPECT_EQ(editor->QueryInterface(InterfaceId{}, &answer), kNoInterface);
    EXPECT_TRUE(!answer && editor->Drop(nullptr) == 0 && Take().empty());
    editor->Drop(std::string(2000, 'x').c_str());
    EXPECT_EQ(Take(), Log{"drop " + std::string(1024, 'x') + " -1 -1"});
}

TEST_F(WindowTest, AsksForFiles)
{
    FileQuestion asked;
    std::string answer = EnginePath(KORVANE_SOURCE "/README.md");
    window->answerQuestion = [&](const FileQuestion& question) { return asked = question, answer; };
    CFileSelector selector(nullptr);
    EXPECT_EQ(selector.Open(editor.get()), nullptr) << "no filter";
    selector.AddFilter("All supported", {"wav", "", "aif", "aiff", "a", "b"});
    selector.SetTitle("Import Wave 1");
    selector.SetFolder("C:\\x");
    selector.SetName("kick");
    EXPECT_STREQ(selector.Open(editor.get()), answer.c_str());
    EXPECT_EQ(std::pair(asked.title + asked.folder + asked.name, asked.save),
              std::pair(std::string("Import Wave 1C:\\xkick"), false));
    EXPECT_EQ(asked.filters.at(0).extensions, (std::vector<std::string>{"wav", "aif", "aiff", "a"}));
    answer = "C:\\x\\it's \"new\"\n.kvprj";
    EXPECT_EQ(selector.Open(editor.get()), nullptr) << "there is no such file";
    EXPECT_STREQ(selector.Save(editor.get()), answer.c_str());
    EXPECT_TRUE(asked.save);
    for (const std::string& nothing : {std::string(), std::string(1024, 'x')}) {
        answer = nothing;
        EXPECT_EQ(selector.Save(editor.get()), nullptr);
        EXPECT_STREQ(selector.path, "");
    }
    EXPECT_EQ(selector.Open(nullptr), nullptr);
}

} // namespace
} // namespace korvane
