// Every control of the layout under a user's hand: the parameter moves, the host hears the gesture, the screen follows.
#include <algorithm>

#include <gtest/gtest.h>

#include "gui/controls/CControlDropDownList.h"
#include "support/PanelRig.h"

namespace korvane {
namespace {

constexpr int kTravel = 10; // pixels of a drag

/// Of a value, for a drag over the whole travel.
float DragOf(Widget widget)
{
    switch (widget) {
    case Widget::Knob:
    case Widget::SmallKnob:
    case Widget::Steps:
    case Widget::ModulationFader: return 0.05f; // 0.01 of a way of 2 per pixel
    default: return 0.025f;
    }
}

bool IsDragged(Widget widget)
{
    return (widget >= Widget::Knob && widget <= Widget::Steps) ||
           (widget >= Widget::Fader && widget <= Widget::LightNumber);
}

std::string Line(const char* what, int id, float value)
{
    char line[64];
    std::snprintf(line, sizeof line, "%s %d %g", what, id, static_cast<double>(value));
    return line;
}

struct ControlsTest : testing::Test, PanelRig {
    ControlsTest() { Open(); }

    /// Does with a control what its kind is for. What the host shall hear, and the value that shall result.
    struct Outcome {
        Log heard;
        float value;
    };
    Outcome Use(const PlacedControl& placed)
    {
        const Rect place = placed.control->rect;
        const Widget widget = placed.row->widget;
        if (IsDragged(widget)) return Drag(placed);
        if (widget == Widget::LedTab || widget == Widget::Tab || widget == Widget::TabColumn) return Choose(placed);
        if (widget == Widget::List) return Pick(placed);
        const float before = placed.control->GetValue();
        const int id = placed.control->id;
        Click(place.x + place.w / 4, place.y + place.h / 4);
        if (widget == Widget::Momentary) return {{Line("automate", id, 1), Line("automate", id, 0)}, 0.0f};
        if (widget == Widget::Pad)
            return {{Line("automate", 77, 27.0f / 111.0f), Line("automate", 78, 1.0f - 27.0f / 111.0f),
                     Line("automate", id, 1), Line("automate", id, 0)},
                    0.0f};
        const float after = before == 0.0f ? 1.0f : 0.0f;
        return {{Line("begin", id, 0), Line("automate", id, after), Line("end", id, 0)}, after};
    }

    Outcome Drag(const PlacedControl& placed)
    {
        const Widget widget = placed.row->widget;
        const int id = placed.control->id;
        const Rect place = placed.control->rect;
        const bool across = widget == Widget::LengthFader || widget == Widget::ModulationFader;
        const float before = instrument->GetParameter(id);
        const int way = before > 0.5f ? -1 : 1; // where there is room
        const int x = place.x + place.w / 2, y = place.y + place.h / 2;
        Move(x, y);
        Press(mouse::LeftDown);
        Move(across ? x + way * kTravel : x, across ? y : y - way * kTravel);
        Press(mouse::LeftUp);
        const float after = before + static_cast<float>(way) * DragOf(widget);
        return {{Line("begin", id, 0), Line("automate", id, after), Line("end", id, 0)}, after};
    }

    Outcome Choose(const PlacedControl& placed)
    {
        const ControlRow& row = *placed.row;
        const Rect place = placed.control->rect;
        const bool last = placed.control->GetValue() < 0.5f; // of the values
        const bool atEnd = last != ((row.look & look::Reversed) != 0);
        const int end = row.parts - 1;
        const bool down = row.widget != Widget::Tab;
        Click(place.x + (down || !atEnd ? 1 : place.w - 1), place.y + (!down || !atEnd ? 1 : place.h - 1));
        const float full = row.widget == Widget::Tab ? static_cast<float>(end) : 1.0f;
        const float after = last ? full : 0.0f;
        return {{Line("automate", placed.control->id, after)}, after};
    }

    Outcome Pick(const PlacedControl& placed)
    {
        auto* const list = static_cast<CControlDropDownList*>(placed.control);
        Click(list->rect.x + 5, list->rect.y + 5);
        const Rect item = list->GetItemRect(21);
        Click(item.x + 5, item.y + item.h / 2);
        return {{}, 21.0f};
    }
};

bool Near(const std::string& a, const std::string& b) // the same to 1e-5
{
    const std::size_t at = a.rfind(' ');
    return at == b.rfind(' ') && a.compare(0, at, b, 0, at) == 0 &&
           std::abs(std::stof(a.substr(at)) - std::stof(b.substr(at))) < 1e-5f;
}

TEST_F(ControlsTest, EachDoesWhatItsKindIsForOnEveryPageThatHasIt)
{
    std::vector<int> used(param::Count, 0);
    constexpr struct {
        int channel;
        bool screen;
    } kPages[] = {{2, false}, {9, false}, {2, true}, {9, true}};
    for (const auto& page : kPages) {
        for (const PlacedControl& placed : editor->panel) {
            const int id = placed.control->id;
            if (id < 0 || placed.row->role == Role::GrooveMenu || placed.row->role == Role::ScreenSwitch) continue;
            Show(page.channel, page.screen);
            if (placed.control->hidden) continue;
            SCOPED_TRACE("control " + std::to_string(id) + " channel " + std::to_string(page.channel));
            ++used[static_cast<std::size_t>(id)];
            Outcome expected = Use(placed);
            if (id >= param::HostCount) expected.heard.clear();
            const Log heard = Take();
            EXPECT_TRUE(std::ranges::equal(heard, expected.heard, Near)) << testing::PrintToString(heard);
            EXPECT_NEAR(placed.control->GetValue(), expected.value, 1e-5f);
            if (kParameters[static_cast<std::size_t>(id)].kind == Kind::Value) {
                EXPECT_NEAR(instrument->GetParameter(id), expected.value, 1e-5f);
            }
            Tick();
            const auto shows = [&](Rect part) {
                const Rect place = placed.control->rect;
                return part.Contains(place.x, place.y) && part.Contains(place.x + place.w - 1, place.y + place.h - 1);
            };
            EXPECT_TRUE(std::ranges::any_of(window->copies, shows));
        }
        instrument->ResetGroove();
    }
    for (int id = 0; id < param::Count; ++id) // what has no control
        EXPECT_EQ(used[static_cast<std::size_t>(id)] == 0, id == 67 || id == 154 || (id >= 179 && id <= 181)) << id;
}

TEST_F(ControlsTest, WhatTheHostWritesIsShownWithinOneTick)
{
    for (const int channel : {2, 9}) {
        Show(channel, true);
        for (const PlacedControl& placed : editor->panel) {
            const int id = placed.control->id;
            if (id < 0 || id >= param::Count || kParameters[static_cast<std::size_t>(id)].kind != Kind::Value) continue;
            const float next = placed.control->GetValue() > 0.5f ? 0.25f : 0.75f;
            instrument->SetParameter(id, next);
            Tick();
            EXPECT_FLOAT_EQ(placed.control->GetValue(), next) << id;
        }
    }
}

} // namespace
} // namespace korvane
