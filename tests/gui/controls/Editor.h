// An editor for tests: a window without a screen that writes down what its controls tell.
#pragma once

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "gui/window/CPluginUI.h"
#include "platform/window/MemoryWindow.h"

namespace korvane::test {

constexpr Color kPage = 0x102030; // all over the page

/// 300 wide, 200 high.
class Editor : public CPluginUI {
public:
    Editor() : CPluginUI(std::make_unique<MemoryWindow>(), nullptr, {200, 300})
    {
        page.Create(200, 300, false);
        std::fill_n(page.pixels.get(), 200 * 300, kPage);
        backgroundId = 77;
        Open(200, 300, this);
        SetBackground(77);
        Idle();
    }
    ~Editor() override { Close(); }

    bool CreateContent() override { return true; }
    CBitmap* FindBitmap(int number) override { return number == 77 ? &page : nullptr; }
    float GetParameterValue(CControl* control) override { return values[control->id]; }
    float GetDefaultValue(CControl*) override { return 0.25f; }
    void GetParameterDisplay(CControl*, char* text) override { std::snprintf(text, 1024, "50"); }
    void GetParameterLabel(CControl*, char* text) override { std::snprintf(text, 1024, "%%"); }
    void BeginEdit(CControl*) override { Write("begin"); }
    void EndEdit(CControl*) override { Write("end"); }
    void ControlChanged(CControl* control) override
    {
        char text[32];
        std::snprintf(text, sizeof text, "%.4g", control->value);
        Write(text);
        if (const auto hears = onChange) hears(control); // a copy: it may end what it is kept in
    }

    template <class T>
    T* Add(Rect place, int id = 5)
    {
        auto* const control = new T(place, id);
        AddControl(control);
        return control;
    }
    void Mouse(int type, int x, int y, int modifiers = 0) { MouseEvent(x, y, modifiers, type); }
    void Click(int x, int y, int modifiers = 0)
    {
        Mouse(mouse::LeftDown, x, y, modifiers);
        Mouse(mouse::LeftUp, x, y, modifiers);
    }
    /// What was told since the last call.
    std::string Heard() { return std::exchange(told, ""); }
    void Write(const std::string& line) { told += (told.empty() ? "" : " ") + line; }
    Color At(int x, int y) const { return backBuffer.pixels[(199 - y) * 300 + x]; }
    Color Drawn(CControl* control, int x, int y)
    {
        control->Draw(&backBuffer);
        return At(x, y);
    }
    MemoryWindow& Screen() { return static_cast<MemoryWindow&>(Platform()); }

    std::map<int, float> values;
    std::function<void(CControl*)> onChange;
    CBitmap page{77};
    std::string told;
};

/// An image of cells; each has the colour 0x101010 times its number, counted from 1, row by row from the top.
/// alpha  of all pixels; negative: no plane
struct Cells : CBitmap {
    Cells(int columns, int rows, int cellWidth, int cellHeight, int opacity = -1) : CBitmap(1)
    {
        Create(rows * cellHeight, columns * cellWidth, opacity >= 0);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                pixels[(height - 1 - y) * width + x] = 0x101010u * (y / cellHeight * columns + x / cellWidth + 1);
        if (alpha) std::fill_n(alpha.get(), width * height, static_cast<std::uint8_t>(opacity));
    }
};

} // namespace korvane::test
