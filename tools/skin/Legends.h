// What is printed beside each control.
#pragma once

#include <cstdint>

#include "skin/Icons.h"
#include "skin/Measures.h"

namespace korvane::skin {

enum class Side : std::uint8_t { Above, Below, Left, Right };

/// Stands beside the control of that parameter, or the n-th one of that role; moved by (dx, dy) from there.
struct Legend {
    int id; // of param::; kNoId: the role says which
    const char* text;
    Side side;
    int dx = 0, dy = 0;
    Role role = Role::None;
    int n = 0;
};

// clang-format off
inline constexpr Legend kLegends[] = {
    // Patterns, steps, note lights
    { 20, "PLAY ONCE", Side::Above}, {89, "THIS CH", Side::Below},
    { 34, "ON",       Side::Left}, {42, "ON", Side::Left},
    // Controllers
    { 47, "1",        Side::Above}, {48, "2", Side::Above}, {49, "3", Side::Above},
    { 50, "4",        Side::Above}, {51, "5", Side::Above},
    {kNoId, "ON",     Side::Right, 0, -8, Role::LinkSwitch}, {kNoId, "OFF", Side::Right, 0, 8, Role::LinkSwitch},
    // Effects
    { 72, "AMOUNT",   Side::Above, 0, 1}, {73, "SHAPE", Side::Above}, {75, "SYNC", Side::Above},
    { 77, "PAD X",    Side::Above}, {78, "PAD Y", Side::Above},
    { 79, "NO STUTTER", Side::Above},
    // Strip
    { 80, "LEVEL",    Side::Above, 2, -1},
    {kNoId, "L",      Side::Above, 0, -5, Role::Meter, 0}, {kNoId, "R", Side::Above, 0, -5, Role::Meter, 1},
    { 81, "PAN",      Side::Above, -2}, {82, "PITCH", Side::Above, 0, -1},
    { 90, "SLIDE",    Side::Above, -2}, {91, "SLIDE ON", Side::Below},
    { 84, "ATTACK",   Side::Above}, {85, "DECAY", Side::Above}, {86, "SUSTAIN", Side::Above},
    { 87, "RELEASE",  Side::Above}, {88, "LEVEL", Side::Above},
    // Filter, envelope, LFO
    { 92, "CUTOFF",   Side::Above}, {93, "RESO", Side::Above}, {94, "KEY TRK", Side::Above}, {96, "TYPE", Side::Above},
    {100, "ATTACK",   Side::Above}, {101, "DECAY", Side::Above}, {102, "AMOUNT", Side::Above},
    { 98, "DEST",     Side::Above}, {103, "INVERT", Side::Above},
    {105, "RATE",     Side::Above}, {106, "AMOUNT", Side::Above}, {107, "RETRIG", Side::Above},
    {108, "INVERT",   Side::Above}, {109, "SYNC", Side::Above}, {111, "DEST", Side::Above},
    {113, "SHAPE",    Side::Above},
    // Synth page
    {116, "VOICES",   Side::Above}, {118, "STEREO", Side::Above, 0, 1}, {117, "DETUNE", Side::Above, 0, 2},
    {121, "PHASE",    Side::Above, 0, 2}, {122, "RETRIG", Side::Above, 0, 3},
    {123, "MIX",      Side::Above}, {127, "PHASE", Side::Above}, {128, "RETRIG", Side::Above, 0, 4},
    {124, "OSC 3",    Side::Left}, {120, "NOISE", Side::Left},
    {119, "OCTAVE",   Side::Above},
    {130, "PITCH",    Side::Above, 0, 1}, {131, "CENTS", Side::Above, 0, 1},
    {126, "MODULATION", Side::Above}, {125, "AMOUNT", Side::Left},
    {kNoId, "WAVEFORM", Side::Above, 0, 1, Role::WaveList, 0}, {kNoId, "OSC", Side::Above, -10, -1, Role::WaveArrow, 0},
    {kNoId, "1", Side::Left, 0, 0, Role::WaveArrow, 0}, {kNoId, "2", Side::Left, 0, 0, Role::WaveArrow, 1},
    {kNoId, "3", Side::Left, 0, 0, Role::WaveArrow, 2},
    // Sampler page
    {136, "LEVEL",    Side::Above}, {137, "PAN", Side::Above}, {138, "PITCH", Side::Above},
    {139, "ATTACK",   Side::Above}, {140, "HOLD", Side::Above}, {141, "DECAY", Side::Above},
    {142, "LO CUT",   Side::Above, -1}, {143, "HI CUT", Side::Above, 1}, {144, "WIDTH", Side::Above},
    {145, "DELAY",    Side::Above}, {146, "INVERT", Side::Above, 0, 0}, {147, "REVERSE", Side::Above, 0, 0},
    {148, "BYPASS",   Side::Above, -1, -1}, {152, "LAYER", Side::Above, 0, -3},
    {153, "START",    Side::Right}, {kNoId, "SAMPLE", Side::Left, -2, 0, Role::LayerCommand, 0},
    // Channel page
    {183, "DESTINATION", Side::Above}, {182, "AMOUNT", Side::Above},
    {184, "SENS",     Side::Above, -2, 3},
    {186, "DESTINATION", Side::Above}, {185, "AMOUNT", Side::Above},
    {188, "DESTINATION", Side::Above}, {187, "AMOUNT", Side::Above},
    {189, "RANGE",    Side::Above},
    {190, "ON",       Side::Above, 0, 3},
    {191, "80 Hz",    Side::Above}, {192, "220 Hz", Side::Above}, {193, "1.2 kHz", Side::Above},
    {194, "6 kHz",    Side::Above}, {195, "12 kHz", Side::Above},
    // Programs
    {kNoId, "BANK",   Side::Left, -2, 0, Role::FolderList, 0},
    {kNoId, "PROGRAM", Side::Left, -2, 0, Role::ProgramArrow, 0},
};

/// The positions of a column of lights, from above.
struct LightLegend {
    int id; // of param::
    const char* texts[9];
};
inline constexpr LightLegend kLightLegends[] = {
    {71,  {"8/1", "4/1", "2/1", "1/1", "3/4", "1/2", "3/8", "1/4", "1/8"}},
    {76,  {"BEAT", "BAR"}},
    {95,  {"LP", "BP", "HP"}},
    {99,  {"CUTOFF", "MOD", "PITCH", "LFO"}},
    {110, {"FREE", "BEAT", "BAR"}},
    {112, {"CUTOFF", "MOD", "PITCH", "AMP"}},
};

struct CurveLegend {
    int id;
    Curve curves[4];
};
inline constexpr CurveLegend kCurveLegends[] = {
    {74,  {Curve::Sine, Curve::Triangle, Curve::RisingRamp, Curve::Square}},
    {114, {Curve::Sine, Curve::Triangle, Curve::FallingRamp, Curve::Square}},
};

/// Over controls of the lit display that belong together.
struct Heading {
    Page page;
    int firstId, lastId; // its line reaches from the one to the other
    const char* text;
    int y; // its middle
};
inline constexpr Heading kHeadings[] = {
    {Page::Synth,   123, 127, "OSC 2",       110}, {Page::Synth,   116, 116, "UNISON",     110},
    {Page::Sampler, 136, 138, "LAYER",       108}, {Page::Sampler, 139, 141, "ENVELOPE",   108},
    {Page::Sampler, 142, 144, "FILTER",      108}, {Page::Sampler, 145, 147, "PLAYBACK",   108},
    {Page::Channel, 183, 184, "VELOCITY",    108}, {Page::Channel, 186, 186, "MOD WHEEL",  108},
    {Page::Channel, 188, 188, "AFTERTOUCH",  108}, {Page::Channel, 189, 189, "PITCH BEND", 108},
    {Page::Channel, 190, 195, "EQUALISER, AN EXTRA STAGE OF EFFECT 10", 191},
};

/// Shaded behind what a heading is for, where that stands in no row.
struct Field {
    Page page;
    Box boxes[2];
};
inline constexpr Field kFields[] = {
    {Page::Synth, {{288, 102, 86, 68}, {}}},
    {Page::Synth, {{379, 102, 63, 102}, {336, 173, 99, 60}}},
};
// clang-format on

/// Below everything that stands on the display.
void ShadeFields(cairo_t* pen, Page page);
/// What the whole page has printed beside its controls, over what draws them.
void PrintLegends(cairo_t* pen, Page page);

} // namespace korvane::skin
