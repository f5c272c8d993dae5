// The score editor within the whole instrument's editor, in memory, and the hands on it.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "editor/score/ScoreEditControl.h"
#include "engine/Transport.h"
#include "support/PanelRig.h"

namespace korvane {

/// All patterns are empty and the first one is selected. Points are relative to the open score editor.
struct ScoreRig : testing::Test, PanelRig {
    ScoreRig()
    {
        Open();
        Engine().score.Reset();
    }
    ScoreEditControl& Score() { return *editor->panel.Of<ScoreEditControl>(Role::Score); }
    ScoreState& State() { return Score().state; }
    GroovePattern& Pattern(int n = 0) { return *static_cast<GroovePattern*>(Engine().score.patterns[n]); }

    /// Opens it as a user does, with a right click on a parameter's control.
    void Edit(int channel, int lane = 88)
    {
        Show(channel, false);
        const Rect place = editor->panel.Bound(lane)->rect;
        PanelRig::Click(place.x + place.w / 2, place.y + place.h / 2, mouse::RightDown);
        drums = channel < 8;
        top = drums ? 194 : 81;
    }
    /// The middle of a cell.
    Point Cell(int column, int row) const
    {
        return {37 + 8 * column + 4, drums ? 154 + 28 * (7 - row) + 14 : 154 + 14 * (23 - row) + 7};
    }
    static Point Lane(int column, float value)
    {
        return {37 + 8 * column + 4, 10 + static_cast<int>(128 - 128 * value)};
    }
    static Point Strip(int bar) { return {37 + 128 * bar + 64, 146}; }
    Point Key(int row) const { return {10, Cell(0, row).y}; }

    void To(Point p) { Move(p.x, p.y + top); }
    void Down(Point p)
    {
        To(p);
        Press(mouse::LeftDown);
    }
    void Up() { Press(mouse::LeftUp); }
    void Drag(Point from, Point to, int modifiers = 0)
    {
        window->HoldModifiers(modifiers);
        Down(from);
        To(to);
        Up();
        window->HoldModifiers(0);
    }
    void Tap(Point p) { Drag(p, p); }
    void Wheel(int notches)
    {
        window->Wheel(notches);
        window->Serve(0);
    }
    void Type(int code)
    {
        PanelRig::Key(code, true);
        PanelRig::Key(code, false);
    }
    void SetPlaying(bool on)
    {
        instrument->SetParameter(1, on);
        PanelRig::Play(64);
    }

    /// Steps as Text tells them.
    void Put(const std::string& text, int pattern = 0)
    {
        std::istringstream words(text);
        for (std::string word; words >> word;) {
            int channel = 0, step = 0, param = 0;
            unsigned notes = 0;
            float offset = 0.0f;
            if (std::sscanf(word.c_str(), "%d.%d:%x[%d=%f]", &channel, &step, &notes, &param, &offset) == 5)
                Pattern(pattern).SetLock(channel, step, param, offset);
            Pattern(pattern).SetNotes(channel, step, notes);
        }
    }
    /// What is not empty: channel.step:word in hex, [parameter=offset] of each lock.
    std::string Text(int pattern = 0)
    {
        std::string text;
        char part[64];
        for (int n = 0; n < kChannels * kSteps; ++n) {
            const StepLockList& locks = Pattern(pattern).locks[n / kSteps][n % kSteps];
            const unsigned notes = Pattern(pattern).steps[n / kSteps][n % kSteps];
            if (notes == 0 && locks.Count() == 0) continue;
            std::snprintf(part, sizeof part, "%s%d.%d:%x", text.empty() ? "" : " ", n / kSteps, n % kSteps, notes);
            text += part;
            for (int k = 0; k < locks.Count(); ++k) {
                std::snprintf(part, sizeof part, "[%d=%.3g]", locks.At(k).param,
                              static_cast<double>(locks.At(k).offset));
                text += part;
            }
        }
        return text;
    }
    void Empty() { Pattern().Clear(); }
    /// Notes of a channel that are held, after a short block.
    std::vector<int> Sounding(int channel)
    {
        PanelRig::Play(64);
        std::vector<int> notes;
        for (const auto& voice : Engine().Channel(channel).voices)
            if (voice->active && !voice->releasing) notes.push_back(voice->note);
        return notes;
    }
    /// What the screen shows after a tick; (x, y) relative to the open editor.
    Color Pixel(int x, int y) const
    {
        return window->shown[static_cast<std::size_t>(y + top) * 1065 + static_cast<std::size_t>(x)] & 0xFFFFFF;
    }

    bool drums = false;
    int top = 0; // of the open editor in the window
};

} // namespace korvane
