// The score editor within the whole instrument's editor, in memory, and the hands on it.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "engine/Transport.h"
#include "support/PanelRig.h"

namespace korvane {

/// All patterns are empty at first, the first one is selected.
///
/// Do plays what hands do, in words: verbs and their places. "on 92 open 9" opens channel 9 by a right click on
/// parameter 92, "tap 10,5" presses and releases there, "drag A B" presses at A and releases at B, "band A B" selects
/// by a rubber band from cell to cell, "ctrl" holds that key or lets it go, "type _" is the space bar;
/// "9.10:20[12=0.25]" puts notes and a lock into step 10 of channel 9, as Text writes them.
///
/// Places: "10,5" middle of a cell, "L10,0.75" a height in the lane, "B2" a bar's last pixel, "K3" a key, "P120,400"
/// a pixel of the editor.
struct ScoreRig : testing::Test, PanelRig {
    ScoreRig()
    {
        Open();
        Engine().score.Reset();
    }
    ScoreEditControl& Score() { return *editor->panel.Of<ScoreEditControl>(Role::Score); }
    GroovePattern& Pattern(int n = 0) { return *static_cast<GroovePattern*>(Engine().score.patterns[n]); }
    Point Place(const std::string& text) const
    {
        float a = 0.0f, b = 0.0f;
        std::sscanf(text.c_str() + (text[0] > '9'), "%f,%f", &a, &b);
        const int x = static_cast<int>(a), y = static_cast<int>(b), row = text[0] == 'K' ? x : y;
        const int rowY = drums ? 154 + 28 * (7 - row) + 14 : 154 + 14 * (23 - row) + 7;
        if (text[0] == 'L') return {37 + 8 * x + 4, 10 + static_cast<int>(128 - 128 * b)};
        if (text[0] == 'B') return {37 + 128 * x + 127, 146};
        if (text[0] == 'K') return {10, rowY};
        return text[0] == 'P' ? Point{x, y} : Point{37 + 8 * x + 4, rowY};
    }
    void Edit(int channel)
    {
        Show(channel, false);
        const Rect place = editor->panel.Bound(lane)->rect;
        Click(place.x + place.w / 2, place.y + place.h / 2, mouse::RightDown);
        drums = channel < 8;
        top = drums ? 194 : 81;
        Move(600, 600); // below the grid
    }
    void Type(int code) { Key(code, true), Key(code, false); }
    void To(const std::string& place, int right = 0, int down = 0)
    {
        Move(Place(place).x + right, Place(place).y + down + top);
    }
    /// One step, as Text has it.
    void Put(const std::string& step)
    {
        int pattern = 0, channel = 0, column = 0, param = 0;
        unsigned notes = 0;
        float offset = 0.0f;
        if (step[1] == '/') pattern = step[0] - '0';
        const char* const text = step.c_str() + (step[1] == '/' ? 2 : 0);
        std::sscanf(text, "%d.%d:%x[%d=%f]", &channel, &column, &notes, &param, &offset);
        Pattern(pattern).SetNotes(channel, column, notes);
        Pattern(pattern).SetLock(channel, column, param, offset);
    }
    void Do(const std::string& hands)
    {
        std::istringstream words(hands);
        std::string verb, word;
        const auto next = [&] { return words >> word, word; };
        const auto number = [&] { return std::stoi(next()); };
        // clang-format off
        while (words >> verb) {
            if (verb.find(':') != std::string::npos) Put(verb);
            else if (verb == "on") lane = number(); // whose control opens it
            else if (verb == "open") Edit(number());
            else if (verb == "close") Click(5, 5, mouse::RightDown);
            else if (verb == "pattern") Engine().score.currentPattern = number();
            else if (verb == "channel") Engine().selection.selectedChannel = number();
            else if (verb == "playing") Engine().clock.playing = number() != 0;
            else if (verb == "to") To(next());
            else if (verb == "down") To(next()), Press(mouse::LeftDown);
            else if (verb == "up") Press(mouse::LeftUp);
            else if (verb == "tap") Do("down " + next() + " up");
            else if (verb == "drag") Do("down " + next()), Do("to " + next() + " up");
            else if (verb == "ctrl") window->HoldModifiers(window->modifiers ^ modifier::Ctrl), window->Serve(0);
            else if (verb == "band") Do("ctrl down " + next()), To(next(), 1, 3), Do("up ctrl"); // its cells
            else if (verb == "wheel") window->Wheel(number()), window->Serve(0);
            else if (verb == "type") Type(next() == "_" ? ' ' : word[0]);
            else ADD_FAILURE() << verb;
        }
        // clang-format on
    }
    /// Steps that are not empty, "pattern/channel.step:word in hex[parameter=offset]", and "|columns,rows|" selected.
    std::string Text()
    {
        std::string text;
        char part[64];
        const auto add = [&](auto... values) { std::snprintf(part, sizeof part, values...), text += part; };
        for (int n = 0; n < kPatterns * kChannels * kSteps; ++n) {
            const int pattern = n / kSteps / kChannels, channel = n / kSteps % kChannels, step = n % kSteps;
            const StepLockList& locks = Pattern(pattern).locks[channel][step];
            const unsigned notes = Pattern(pattern).steps[channel][step];
            if (notes == 0 && locks.Count() == 0) continue;
            if (!text.empty()) text += ' ';
            if (pattern) add("%d/", pattern); // not of the first
            add("%d.%d:%x", channel, step, notes);
            for (int k = 0; k < locks.Count(); ++k)
                add("[%d=%.3g]", locks.At(k).param, static_cast<double>(locks.At(k).offset));
        }
        const ScoreSelection& selection = Score().state.selection;
        const ScoreGrid& grid = drums ? kDrumGrid : kPianoRoll;
        const ScoreSpan columns = selection.Columns(grid), rows = selection.Rows(grid);
        if (selection.Exists()) add("|%d-%d,%d-%d|", columns.first, columns.last, rows.first, rows.last);
        return text;
    }
    /// What hands do in empty patterns, and what is then there.
    void Check(const std::vector<std::pair<std::string, std::string>>& cases)
    {
        for (const auto& [hands, left] : cases) {
            for (int n = 0; n < kPatterns; ++n) Pattern(n).Clear();
            Engine().score.currentPattern = 0;
            Do(hands);
            EXPECT_EQ(Text(), left) << hands;
            Do(window->modifiers ? "ctrl close up" : "close up");
        }
    }
    /// On the screen; (x, y) relative to the open editor.
    Color Pixel(int x, int y) const { return window->shown[static_cast<std::size_t>((y + top) * 1065 + x)] & 0xFFFFFF; }

    int lane = 88;
    bool drums = false;
    int top = 0; // of the open editor in the window
};

} // namespace korvane
