// The keys of the panel, a row each: their states, caps and what is printed on them.
#include <array>
#include <string>

#include "skin/Caps.h"
#include "skin/Icons.h"
#include "skin/Images.h"
#include "skin/Measures.h"
#include "skin/Print.h"

namespace korvane::skin {

namespace {

struct State {
    double lit;
    bool down;
};

enum class Frames {
    Press,  // up, down
    Hold,   // off, on and lit
    Latch,  // off, on and held, on, off and held
    Chosen, // off, held, on, on and held
    Lights  // the same with a dim light between
};

using States = std::array<State, 6>;

States StatesOf(Frames frames)
{
    switch (frames) {
    case Frames::Press: return {{{0, false}, {0, true}}};
    case Frames::Hold: return {{{0, false}, {1, true}}};
    case Frames::Latch: return {{{0, false}, {1, true}, {1, false}, {0, true}}};
    case Frames::Chosen: return {{{0, false}, {0, true}, {1, false}, {1, true}}};
    default: return {{{0, false}, {0, true}, {0.5, false}, {0.5, true}, {1, false}, {1, true}}};
    }
}

using CapOf = Shade (*)(int column);
using Legend = void (*)(cairo_t*, Box face, int column, Shade ink);

struct KeyImage {
    int id;
    int columns, right, down; // from a column to the next, from a frame to the next
    int w, h;                 // of the key; the rest stays empty, for what stands closely beside it
    Frames frames;
    CapOf cap;
    Shade light;
    Legend legend;
    bool lamp = false; // of its own; the cap stays dark
};

// Caps

Shade Charcoal(int) { return kCharcoal; }
Shade Taupe(int) { return kTaupe; }
Shade Ivory(int) { return kIvory; }
Shade StepCap(int column) { return column >= 16 ? kSlate : column / 4 % 2 == 0 ? kTaupe : kCharcoal; }
Shade ChannelCap(int column) { return column < kSamplerChannels ? kCharcoal : kSlate; }

// Legends

constexpr Type kBig{13, Weight::Bold}, kName{8.5, Weight::Bold, 0.3};

void Number(cairo_t* pen, Box face, int number, Shade ink)
{
    Write(pen, kBig, ink, std::to_string(number).c_str(), face.MiddleX(), face.MiddleY());
}

void StepLegend(cairo_t* pen, Box face, int column, Shade ink)
{
    Number(pen, face, column < 16 ? column + 1 : column - 15, ink);
}

void PatternLegend(cairo_t* pen, Box face, int column, Shade ink) { Number(pen, face, column + 1, ink); }

void ChannelLegend(cairo_t* pen, Box face, int column, Shade ink)
{
    const bool sampler = column < kSamplerChannels;
    const int number = sampler ? column + 1 : column - kSamplerChannels + 1;
    Write(pen, kBig, ink, std::to_string(number).c_str(), face.MiddleX(), face.MiddleY() - 5);
    Write(pen, {7.5, Weight::Bold, 0.2}, Fade(ink, 0.85), sampler ? "SMP" : "SYN", face.MiddleX(), face.MiddleY() + 9);
}

void EffectLegend(cairo_t* pen, Box face, int column, Shade ink)
{
    constexpr const char* kNames[] = {"DIST", "CRSH", "CHOR", "PHAS", "LP", "HP", "ECHO", "VERB", "PAN", "PUMP"};
    Write(pen, {10, Weight::Bold}, ink, std::to_string(column + 1).c_str(), face.MiddleX(), face.MiddleY() - 4.5);
    Write(pen, {8, Weight::Bold}, Fade(ink, 0.9), kNames[column], face.MiddleX(), face.MiddleY() + 5.5);
}

void StutterLegend(cairo_t* pen, Box face, int column, Shade ink)
{
    constexpr const char* kLengths[] = {"1/1", "3/4", "1/2", "3/8", "1/4"};
    Write(pen, kBig, ink, kLengths[column], face.MiddleX(), face.MiddleY());
}

template <Icon icon>
void IconLegend(cairo_t* pen, Box face, int, Shade ink)
{
    Draw(pen, icon, face.MiddleX(), face.MiddleY(), 15, ink);
}

void RecordLegend(cairo_t* pen, Box face, int, Shade ink)
{
    Draw(pen, Icon::Record, face.MiddleX(), face.MiddleY(), 14, ink.red > 0.5 ? kRedLight : kDarkInk);
}

constexpr char kMuteText[] = "MUTE", kSoloText[] = "SOLO", kGlueText[] = "GLUE", kLearnText[] = "LEARN";
constexpr char kCopyText[] = "COPY", kPasteText[] = "PASTE", kClearText[] = "CLEAR";
constexpr char kEnv[] = "ENV", kLfo[] = "LFO";

template <const char* text>
void TextLegend(cairo_t* pen, Box face, int, Shade ink)
{
    Write(pen, {9.5, Weight::Bold, 0.4}, ink, text, face.MiddleX(), face.MiddleY());
}

template <const char* text>
void NumberedLegend(cairo_t* pen, Box face, int column, Shade ink)
{
    const std::string shown = std::string(text) + " " + std::to_string(column + 1);
    Write(pen, kName, ink, shown.c_str(), face.MiddleX(), face.MiddleY());
}

/// On to the next position.
void NextLegend(cairo_t* pen, Box face, int, Shade ink)
{
    Arrow(pen, face.MiddleX(), face.MiddleY(), 7, 0, 1, Fade(ink, 0.75));
}

/// A lamp that a latching key lights.
void LampLegend(cairo_t* pen, Box face, int, Shade ink)
{
    const bool lit = ink.red < 0.5;
    const double x = face.MiddleX(), y = face.MiddleY();
    if (lit) Glow(pen, x, y, 10, Fade(kRedLight, 0.9));
    Rounded(pen, {x - 6, y - 2, 12, 4}, 2);
    Fill(pen, lit ? Rgb(255, 196, 132) : Rgb(58, 22, 14));
    Rounded(pen, {x - 6, y - 2, 12, 4}, 2);
    Stroke(pen, lit ? kRedLight : Black(0.6), 1);
}

// clang-format off
constexpr KeyImage kKeys[] = {
//   id                    cols right down   w   h  frames             cap         light        legend
    {image::ButtonSteps,     24,   40,  46,  38, 44, Frames::Lights,  StepCap,    kAmber,      StepLegend},
    {image::ButtonParts,     13,   42,  49,  38, 49, Frames::Lights,  ChannelCap, kAmber,      ChannelLegend},
    {image::ButtonPatterns,   8,   42,  49,  38, 49, Frames::Chosen,  Taupe,      kAmber,      PatternLegend},
    {image::ButtonMute,       1,   39,  48,  39, 48, Frames::Hold,    Charcoal,   kAmber,      TextLegend<kMuteText>},
    {image::ButtonSolo,       1,   39,  48,  39, 48, Frames::Latch,   Charcoal,   kAmberLight, TextLegend<kSoloText>},
    {image::ButtonEdit,       1,   63,  50,  63, 50, Frames::Latch,   Charcoal,   kAmberLight, IconLegend<Icon::Pencil>},
    {image::ButtonPrev,       1,   63,  50,  63, 50, Frames::Press,   Charcoal,   kAmber,      IconLegend<Icon::Back>},
    {image::ButtonNext,       1,   63,  50,  63, 50, Frames::Press,   Charcoal,   kAmber,      IconLegend<Icon::Forward>},
    {image::ButtonRec,        1,   63,  50,  63, 50, Frames::Latch,   Charcoal,   kRedLight,   RecordLegend},
    {image::ButtonPlay,       1,   63,  50,  63, 50, Frames::Latch,   Charcoal,   kGreenLight, IconLegend<Icon::Play>},
    {image::LoopBar,          1,   39,  48,  39, 48, Frames::Latch,   Charcoal,   kAmberLight, IconLegend<Icon::Loop>},
    {image::ButtonCopy,       1,   47,  29,  47, 29, Frames::Press,   Taupe,      kAmber,      TextLegend<kCopyText>},
    {image::ButtonPaste,      1,   47,  29,  47, 29, Frames::Press,   Taupe,      kAmber,      TextLegend<kPasteText>},
    {image::ButtonClear,      1,   47,  29,  47, 29, Frames::Press,   Taupe,      kAmber,      TextLegend<kClearText>},
    {image::ButtonFX,        10,   30,  31,  30, 29, Frames::Hold,    Taupe,      kAmber,      EffectLegend},
    {image::ButtonGlue,       1,   48,  29,  48, 29, Frames::Latch,   Charcoal,   kAmberLight, TextLegend<kGlueText>},
    {image::ButtonLink,       1,   47,  29,  47, 29, Frames::Chosen,  Charcoal,   kAmberLight, TextLegend<kLearnText>},
    {image::ButtonStutter,    5,   50,  33,  50, 33, Frames::Hold,    Taupe,      kAmber,      StutterLegend},
    {image::TabEnvelope,      2,   36,  20,  36, 20, Frames::Hold,    Charcoal,   kAmber,      NumberedLegend<kEnv>},
    {image::TabLfo,           2,   36,  20,  36, 20, Frames::Hold,    Charcoal,   kAmber,      NumberedLegend<kLfo>},
    {image::ButtonSynth,      1,   32,  21,  32, 19, Frames::Press,   Ivory,      kAmber,      NextLegend},
    {image::ButtonSynthLed,   1,   32,  24,  32, 24, Frames::Latch,   Charcoal,   kCharcoal,   LampLegend, true},
};
// clang-format on

void DrawKey(cairo_t* pen, const KeyImage& key, int column, int row, State state)
{
    const CapLook look{key.cap(column), key.light, key.lamp ? 0.0 : state.lit, state.down};
    const Box face = DrawCap(pen, {column * 1.0 * key.right, row * 1.0 * key.down, key.w * 1.0, key.h * 1.0}, look);
    key.legend(pen, face, column, key.lamp && state.lit > 0 ? kDarkInk : InkOn(look));
}

} // namespace

bool DrawKeys(Picture& picture, int id)
{
    for (const KeyImage& key : kKeys) {
        if (key.id != id) continue;
        const States states = StatesOf(key.frames);
        for (int row = 0; row * key.down < picture.height; ++row)
            for (int column = 0; column < key.columns; ++column)
                DrawKey(picture.pen, key, column, row, states[static_cast<std::size_t>(row)]);
        return true;
    }
    return false;
}

} // namespace korvane::skin
