// Controls from the rows of the layout.
#pragma once

#include <memory>

#include "content/state/KVInstrument.h"
#include "editor/layout/Layout.h"
#include "gui/controls/CControlSlider.h"
#include "gui/controls/CControlTab.h"
#include "gui/window/CPluginUI.h"

namespace korvane {

/// What goes with a widget stands here, what a row adds in the row. The window's thread; images are loaded.
class ControlFactory {
public:
    ControlFactory(CPluginUI& shownIn, KVInstrument& shown) : window(shownIn), instrument(shown) {}

    /// Adds a control of a row to the window's main group, which owns it, and answers it.
    CControl* Add(const ControlRow& row, int n);

private:
    struct Order { // what is wanted
        const ControlRow& row;
        int n, id;
        CBitmap* image;
        Rect place;
    };
    using Adder = CControl* (ControlFactory::*)(const Order&);

    static Adder AdderOf(Widget widget);

    CControl* AddButton0(const Order& order); // toggles
    CControl* AddButton1(const Order& order); // toggles, shows that it is held
    CControl* AddButton3(const Order& order); // is on while it is held
    CControl* AddLed(const Order& order);
    CControl* AddKnob(const Order& order);
    CControl* AddSmallKnob(const Order& order);
    CControl* AddSteps(const Order& order);
    CControl* AddLedTab(const Order& order);
    CControl* AddTab(const Order& order);
    CControl* AddFader(const Order& order);
    CControl* AddLengthFader(const Order& order);
    CControl* AddModulationFader(const Order& order);
    CControl* AddNumberBox(const Order& order);
    CControl* AddDropDown(const Order& order);
    CControl* AddLabel(const Order& order);
    CControl* AddMeter(const Order& order);
    CControl* AddPad(const Order& order);
    CControl* AddMonitor(const Order& order);
    CControl* AddScore(const Order& order);

    CControl* Added(std::unique_ptr<CControl> made);
    std::unique_ptr<CControlButton> Button(const Order& order, int mode);
    std::unique_ptr<CControlKnob> Strip(const Order& order, int frames);
    std::unique_ptr<CControlSlider> Slider(const Order& order);
    template <class Control>
    std::unique_ptr<Control> OverPage(const Order& order);

    CPluginUI& window;
    KVInstrument& instrument;
};

} // namespace korvane
