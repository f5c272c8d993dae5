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

    /// n  of the row
    std::unique_ptr<CControl> Make(const ControlRow& row, int n);

private:
    struct Order { // what is wanted
        const ControlRow& row;
        int n, id;
        CBitmap* image;
        Rect place;
    };
    using Maker = std::unique_ptr<CControl> (ControlFactory::*)(const Order&);

    static Maker MakerOf(Widget widget);

    template <int kMode, bool kPassive = false>
    std::unique_ptr<CControl> Button(const Order& order);
    std::unique_ptr<CControl> Knob(const Order& order);
    std::unique_ptr<CControl> SmallKnob(const Order& order);
    std::unique_ptr<CControl> Steps(const Order& order);
    std::unique_ptr<CControl> LedTab(const Order& order);
    std::unique_ptr<CControl> Tab(const Order& order);
    std::unique_ptr<CControl> Fader(const Order& order);
    std::unique_ptr<CControl> LengthFader(const Order& order);
    std::unique_ptr<CControl> ModulationFader(const Order& order);
    std::unique_ptr<CControl> Number(const Order& order);
    std::unique_ptr<CControl> List(const Order& order);
    std::unique_ptr<CControl> Text(const Order& order);
    std::unique_ptr<CControl> Meter(const Order& order);
    std::unique_ptr<CControl> Pad(const Order& order);
    std::unique_ptr<CControl> Monitor(const Order& order);

    std::unique_ptr<CControlKnob> Strip(const Order& order, int frames);
    std::unique_ptr<CControlSlider> Slider(const Order& order);
    template <class Control>
    std::unique_ptr<Control> OverPage(const Order& order);

    CPluginUI& window;
    KVInstrument& instrument;
};

} // namespace korvane
