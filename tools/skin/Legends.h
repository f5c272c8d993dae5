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
    // Patterns, transport
    { 89, "CHANNEL",  Side::Below},
    { 20, "PLAY ONCE",     Side::Above},
    {  6, "EDIT",     Side::Below}, {4, "BACK", Side::Below}, {5, "FORWARD", Side::Below}, {3, "RECORD", Side::Below},
    {  1, "PLAY",     Side::Below}, {2, "LOOP BAR", Side::Below, 0, 1},
    { 34, "ON",       Side::Left}, {42, "ON", Side::Left},
    // Controllers
    {kNoId, "1", Side::Below, -2, 0, Role::ExtLed, 0}, {kNoId, "2", Side::Below, -2, 0, Role::ExtLed, 1},
    {kNoId, "3", Side::Below, -2, 0, Role::ExtLed, 2}, {kNoId, "4", Side::Below, -2, 0, Role::ExtLed, 3},
    {kNoId, "5", Side::Below, -2, 0, Role::ExtLed, 4},
    {kNoId, "LINK", Side::Right, 0, 0, Role::LinkSwitch, 0},
    // Effects
    { 71, "RATE",     Side::Below, 3},
    { 72, "AMOUNT",   Side::Below, 0, -1},
    { 73, "SHAPE",    Side::Above}, {75, "SYNC", Side::Above},
    {kNoId, "PAD X",  Side::Above, -26, 0, Role::PadAxis, 0}, {kNoId, "PAD Y", Side::Above, -26, 0, Role::PadAxis, 1},
    { 79, "STUTTER",  Side::Below}, {79, "BYPASS", Side::Below, 0, 8},
    // Strip
    { 80, "LEVEL",    Side::Below, 1, -1},
    {kNoId, "L",      Side::Above, 0, -1, Role::Meter, 0}, {kNoId, "R", Side::Above, 0, -1, Role::Meter, 1},
    { 81, "PAN",      Side::Below}, {82, "PITCH", Side::Below, 0, 1},
    { 90, "SLIDE",    Side::Above, 0, -1}, {91, "ON", Side::Below},
    { 84, "ATTACK",   Side::Below}, {85, "DECAY", Side::Below}, {86, "SUSTAIN", Side::Below},
    { 87, "RELEASE",  Side::Below}, {88, "LEVEL", Side::Below},
    // Filter, envelope, LFO
    { 92, "CUTOFF",   Side::Above}, {93, "RESO", Side::Above}, {94, "TRACK", Side::Above}, {96, "TYPE", Side::Above},
    {100, "ATTACK",   Side::Above}, {101, "DECAY", Side::Above}, {102, "AMOUNT", Side::Above},
    { 98, "DEST",     Side::Above}, {103, "INVERT", Side::Above},
    {105, "RATE",     Side::Above}, {106, "AMOUNT", Side::Above}, {107, "RETRIG", Side::Above},
    {108, "INVERT",   Side::Above}, {109, "SYNC", Side::Above}, {111, "DEST", Side::Above},
    {113, "SHAPE",    Side::Above},
    // Synth page
    {116, "VOICES",   Side::Above}, {118, "STEREO", Side::Above, 0, 1}, {117, "DETUNE", Side::Above},
    {119, "OCTAVE",   Side::Above}, {120, "NOISE", Side::Above}, {121, "PHASE", Side::Above},
    {122, "RETRIG",   Side::Left}, {128, "RETRIG", Side::Left},
    {123, "OSC 2",    Side::Above}, {124, "OSC 3", Side::Above, 0, 2}, {127, "PHASE", Side::Above},
    {130, "PITCH",    Side::Above, 0, 1}, {131, "CENTS", Side::Above, 0, 1},
    {126, "MODULATION", Side::Above}, {125, "AMOUNT", Side::Below},
    {kNoId, "WAVEFORM", Side::Above, 0, 1, Role::WaveList, 0},
    {kNoId, "1", Side::Left, 0, 0, Role::WaveArrow, 0}, {kNoId, "2", Side::Left, 0, 0, Role::WaveArrow, 1},
    {kNoId, "3", Side::Left, 0, 0, Role::WaveArrow, 2},
    // Sampler page
    {136, "LEVEL",    Side::Above}, {137, "PAN", Side::Above}, {138, "PITCH", Side::Above},
    {139, "ATTACK",   Side::Above}, {140, "HOLD", Side::Above}, {141, "DECAY", Side::Above},
    {142, "LO CUT",   Side::Above}, {143, "HI CUT", Side::Above}, {144, "WIDTH", Side::Above},
    {145, "DELAY",    Side::Above}, {146, "INVERT", Side::Above}, {147, "REVERSE", Side::Above},
    {148, "BYPASS",   Side::Above}, {152, "LAYER", Side::Above, 0, -2},
    // Channel page
    {182, "AMOUNT",   Side::Right}, {184, "SENS", Side::Right, -5}, {185, "AMOUNT", Side::Right},
    {187, "AMOUNT",   Side::Right},
    {190, "ON",       Side::Left},
    {191, "80 Hz",    Side::Above}, {192, "220 Hz", Side::Above}, {193, "1.2 kHz", Side::Above},
    {194, "6 kHz",    Side::Above}, {195, "12 kHz", Side::Above},
    {189, "BEND RANGE", Side::Above},
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
    {Page::Synth,   123, 123, "MIX",         111}, {Page::Synth,   127, 127, "OSC 2",      111},
    {Page::Synth,   116, 118, "UNISON",      111}, {Page::Synth,   122, 122, "UNISON",     177},
    {Page::Sampler, 136, 138, "LAYER",       108}, {Page::Sampler, 139, 141, "ENVELOPE",   108},
    {Page::Sampler, 142, 144, "FILTER",      108},
    {Page::Channel, 183, 183, "VELOCITY",    122}, {Page::Channel, 186, 186, "MOD WHEEL",  122},
    {Page::Channel, 188, 188, "PRESSURE",    122},
    {Page::Channel, 191, 195, "EQUALISER OF FX 10", 193},
};
// clang-format on

/// What the whole page has printed beside its controls, over what draws them.
void PrintLegends(cairo_t* pen, Page page);

} // namespace korvane::skin
