// An editor for tests: a window without a screen that writes down what its controls tell.
#pragma once

#include <algorithm>
#include <cstdio>
#include <functional>
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
        Idle();
    }
    ~Editor() override { Close(); }
    bool CreateContent() override { return true; }
    CBitmap* FindBitmap(int number) override { return number == 77 ? &page : nullptr; }
    float GetParameterValue(CControl*) override { return parameter; }
    float GetDefaultValue(CControl*) override { return 0.25f; }
    void GetParameterDisplay(CControl*, char* text) override { std::snprintf(text, 1024, "50"); }
    void BeginEdit(CControl*) override { Write("begin"); }
    void EndEdit(CControl*) override { Write("end"); }
    void ControlChanged(CControl* control) override
    {
        char text[32] = "";
        Write((std::snprintf(text, sizeof text, "%.4g", control->value), text));
        if (onChange) onChange(control);
    }

    /// Its parameter is number 5, with that value.
    template <class T>
    T* Add(Rect place, float value = 0.0f, CBitmap* image = nullptr)
    {
        auto* const control = new T(place, 5);
        parameter = value;
        AddControl(control);
        if (image) control->bitmap = image;
        return control;
    }
    void Mouse(int type, int x, int y, int modifiers = 0) { MouseEvent(x, y, modifiers, type); }
    void Click(int x, int y) { Mouse(mouse::LeftDown, x, y), Mouse(mouse::LeftUp, x, y); }
    /// What was told since the last call.
    std::string Heard() { return std::exchange(told, ""); }
    void Write(const std::string& line) { told += (told.empty() ? "" : " ") + line; }
    Color At(int x, int y) const { return backBuffer.pixels[(199 - y) * 300 + x]; }
    Color OnScreen(int x, int y) { return Screen().shown[y * 300 + x]; }
    MemoryWindow& Screen() { return static_cast<MemoryWindow&>(Platform()); }

    float parameter = 0.0f; // of all controls
    std::function<void(CControl*)> onChange;
    CBitmap page{77};
    std::string told;
};

/// An image of cells; each has the colour 0x101010 times its number, counted from 1, row by row from the top.
/// opacity  of all pixels; negative: no alpha
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
