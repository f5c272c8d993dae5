// What a window costs: a full redraw, a tick in which nothing happens, a tick with one knob to draw.
#include <memory>
#include <stdexcept>

#include <benchmark/benchmark.h>

#include "demo/DemoSkin.h"
#include "gui/controls/CControlKnob.h"
#include "gui/controls/CControlTextDisplay.h"
#include "gui/window/CSynthEditor.h"
#include "platform/window/MemoryWindow.h"

namespace korvane {
namespace {

constexpr Size kEditor{630, 1065};
constexpr int kControls = 300;

/// As many controls as the instrument's editor has: knobs of 65 frames with alpha, every third a text.
struct FullEditor : CSynthEditor {
    explicit FullEditor(std::unique_ptr<Window> window) : CSynthEditor(std::move(window), nullptr, kEditor, nullptr) {}

    bool CreateContent() override
    {
        if (!demo::LoadSkin(*this)) return false;
        SetBackground(demo::image::Page);
        for (int n = 0; n < kControls; ++n) {
            const Rect place{n % 20 * 52 + 10, n / 20 * 41, demo::kKnobSize, demo::kKnobSize};
            if (n % 3 == 2) {
                auto* label = new CControlTextDisplay(place, -1);
                label->bitmap = FindBitmap(demo::image::Panel);
                label->SetText("-12.5 dB");
                AddControl(label);
                continue;
            }
            auto* knob = new CControlKnob(place, -1);
            knob->bitmap = FindBitmap(demo::image::Knob);
            knob->frameCount = demo::kKnobFrames;
            knob->crossfade = true;
            knob->SetValue(static_cast<float>(n) / kControls);
            AddControl(knob);
        }
        return true;
    }
};

struct OpenWindow {
    OpenWindow()
    {
        auto made = std::make_unique<MemoryWindow>();
        window = made.get();
        editor = std::make_unique<FullEditor>(std::move(made));
        if (!editor->Open(kEditor.height, kEditor.width, nullptr)) throw std::runtime_error("the window does not open");
    }
    void Tick()
    {
        window->Advance(editor->timerPeriod);
        window->Serve(0);
        window->copies.clear();
    }

    MemoryWindow* window;
    std::unique_ptr<FullEditor> editor;
};

void FullRedraw(benchmark::State& state)
{
    OpenWindow open;
    for (auto _ : state) {
        open.editor->SetDirty(true);
        open.editor->Idle();
        open.window->copies.clear();
    }
}
BENCHMARK(FullRedraw)->Unit(benchmark::kMicrosecond);

void IdleTick(benchmark::State& state)
{
    OpenWindow open;
    for (auto _ : state) open.Tick();
}
BENCHMARK(IdleTick)->Unit(benchmark::kMicrosecond);

void OneDirtyKnob(benchmark::State& state)
{
    OpenWindow open;
    for (auto _ : state) {
        open.editor->GetMainGroup()->GetControlByIndex(150)->SetDirty(true);
        open.Tick();
    }
}
BENCHMARK(OneDirtyKnob)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace korvane
