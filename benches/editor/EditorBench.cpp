// What the instrument's editor costs: opening, a tick while a groove plays, a change of page, the score, the skin.
#include <chrono>
#include <memory>
#include <stdexcept>

#include <benchmark/benchmark.h>

#include "demo/ShownEditor.h"
#include "editor/score/ScoreEditControl.h"
#include "platform/window/MemoryWindow.h"

namespace korvane {
namespace {

struct Shown {
    Shown()
    {
        auto made = std::make_unique<MemoryWindow>();
        window = made.get();
        editor = std::make_unique<KVEditor>(std::move(made), nullptr, *sound.instrument);
    }
    void Open()
    {
        if (!editor->Open(kEditorSize.height, kEditorSize.width, nullptr))
            throw std::runtime_error("the window does not open");
    }
    void Tick()
    {
        window->Advance(editor->timerPeriod);
        window->Serve(0);
        window->copies.clear();
    }

    demo::ShownEngine sound;
    MemoryWindow* window = nullptr;
    std::unique_ptr<KVEditor> editor;
};

/// Once in a process: it reads the images, from the system's cache.
void EditorOpensCold(benchmark::State& state)
{
    Shown shown;
    for (auto _ : state) shown.Open();
    double bytes = 0.0;
    for (const SkinImage& skin : kSkinImages) {
        const CBitmap* const picture = Bitmaps().FindBitmap(skin.id);
        const Size size = picture->GetSize();
        bytes += static_cast<double>(size.width) * size.height * (picture->HasAlpha() ? 5.0 : 4.0);
    }
    state.counters["skin MB"] = bytes / 1e6;
}
BENCHMARK(EditorOpensCold)->Iterations(1)->Unit(benchmark::kMillisecond);

void EditorOpensWarm(benchmark::State& state)
{
    Shown shown;
    for (auto _ : state) {
        shown.Open();
        state.PauseTiming();
        shown.editor->Close();
        state.ResumeTiming();
    }
}
BENCHMARK(EditorOpensWarm)->Unit(benchmark::kMillisecond);

/// On each of the three pages.
void EditorTick(benchmark::State& state)
{
    Shown shown;
    shown.Open();
    KVInstrument& instrument = *shown.sound.instrument;
    instrument.engine->selection.selectedChannel = state.range(0) == 0 ? 0 : 9;
    instrument.SetParameter(kScreenSwitchId, state.range(0) == 2);
    instrument.SetParameter(param::Play, 1.0f);
    shown.editor->RefreshAll();
    for (auto _ : state) {
        shown.sound.Play(shown.editor->timerPeriod);
        const auto start = std::chrono::steady_clock::now();
        shown.Tick();
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}
BENCHMARK(EditorTick)->Arg(0)->Arg(1)->Arg(2)->UseManualTime()->Iterations(2000)->Unit(benchmark::kMicrosecond);

void EditorChangesPage(benchmark::State& state)
{
    Shown shown;
    shown.Open();
    Selection& selection = shown.sound.instrument->engine->selection;
    for (auto _ : state) {
        selection.selectedChannel = selection.OnSampler() ? 9 : 0;
        shown.Tick();
    }
}
BENCHMARK(EditorChangesPage)->Unit(benchmark::kMicrosecond);

/// The score editor, open over a pattern with a note in every cell and a lock on every step; 0 the piano roll, 1 the
/// drum grid.
struct ShownScore : Shown {
    explicit ShownScore(bool drums)
    {
        Open();
        GrooveEngine& engine = *sound.instrument->engine;
        const int channel = drums ? 0 : kSamplerChannels;
        engine.selection.selectedChannel = channel;
        GroovePattern& pattern = engine.score.Current();
        for (int n = 0; n < kChannels * kSteps; ++n) pattern.steps[n / kSteps][n % kSteps] = (1u << kNotes) - 1;
        for (int step = 0; step < kSteps; ++step)
            pattern.SetLock(channel, step, slot::FilterCutoff, static_cast<float>(step) / -kSteps);
        Tick();
        constexpr int kCutoff = 92; // of the parameters
        const Rect place = editor->panel.Bound(kCutoff)->rect;
        window->MoveTo(place.x + place.w / 2, place.y + place.h / 2);
        window->Press(mouse::RightDown);
        window->Serve(0);
        if (!Score().IsOpen()) throw std::runtime_error("the score editor does not open");
    }
    ScoreEditControl& Score() { return *editor->panel.Of<ScoreEditControl>(Role::Score); }
};

void ScoreRedraws(benchmark::State& state)
{
    ShownScore shown(state.range(0) == 1);
    CDrawBuffer page;
    page.Create(kEditorSize.height, kEditorSize.width, false);
    for (auto _ : state) shown.Score().Draw(&page);
}
BENCHMARK(ScoreRedraws)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void ScoreTick(benchmark::State& state)
{
    ShownScore shown(state.range(0) == 1);
    for (auto _ : state) shown.Tick();
}
BENCHMARK(ScoreTick)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace korvane
