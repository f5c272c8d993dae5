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
    bool mark = false; // a small light of its own
};

enum class Frames {
    Press,  // up, down
    Hold,   // off, on and lit
    Latch,  // off, on and held, on, off and held
    Chosen, // off, held, on, on and held
    Lights, // the same with a dim light between
    Marks   // with a mark between
};

using States = std::array<State, 6>;

States StatesOf(Frames frames)
{
    switch (frames) {
    case Frames::Press: return {{{0, false}, {0, true}}};
    case Frames::Hold: return {{{0, false}, {1, true}}};
    case Frames::Latch: return {{{0, false}, {1, true}, {1, false}, {0, true}}};
    case Frames::Chosen: return {{{0, false}, {0, true}, {1, false}, {1, true}}};
    case Frames::Lights: return {{{0, false}, {0, true}, {0.55, false}, {0.55, true}, {1, false}, {1, true}}};
    default: return {{{0, false}, {0, true}, {0, false, true}, {0, true, true}, {1, false}, {1, true}}};
    }
}

using CapOf = Shade (*)(int column);
using Legend = void (*)(cairo_t*, Box face, int column, Shade ink);

struct KeyImage {
    int id;
    int first, columns;
    int right, down; // from a column to the next, from a frame to the next
    double in;       // from the cell's left edge to the key
    int w, h;        // of the key; the rest stays empty, for what stands closely beside it
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
Shade Slate(int) { return kSlate; }
Shade StepCap(int column) { return Mix(kCharcoal, kTaupe, column / 4 % 2 == 0 ? 0.65 : 0.15); } // a beat is four

// Legends

constexpr Type kBig{13, Weight::Bold}, kName{9, Weight::Bold, 0.3};

void NumberLegend(cairo_t* pen, Box face, int column, Shade ink)
{
    Write(pen, kBig, ink, std::to_string(column + 1).c_str(), face.MiddleX(), face.MiddleY());
}

void EffectLegend(cairo_t* pen, Box face, int column, Shade ink)
{
    constexpr const char* kNames[] = {"DIST", "CRSH", "CHOR", "PHAS", "LP", "HP", "ECHO", "VERB", "PAN", "PUMP"};
    Write(pen, {10, Weight::Bold}, ink, std::to_string(column + 1).c_str(), face.MiddleX(), face.MiddleY() - 4.5);
    Write(pen, kLegend, ink, kNames[column], face.MiddleX(), face.MiddleY() + 5.5);
}

void StutterLegend(cairo_t* pen, Box face, int column, Shade ink)
{
    constexpr const char* kLengths[] = {"1/1", "3/4", "1/2", "3/8", "1/4"};
    Write(pen, kBig, ink, kLengths[column], face.MiddleX(), face.MiddleY());
}

void WriteBelow(cairo_t* pen, Box face, const char* text, Shade ink)
{
    Write(pen, kName, ink, text, face.MiddleX(), face.MiddleY() + 13);
}

constexpr double kIconUp = 5; // above the middle; its name is below

template <Icon icon, const char* name>
void IconLegend(cairo_t* pen, Box face, int, Shade ink)
{
    Draw(pen, icon, face.MiddleX(), face.MiddleY() - kIconUp, 15, ink);
    WriteBelow(pen, face, name, ink);
}

void RecordLegend(cairo_t* pen, Box face, int, Shade ink)
{
    const bool lit = ink.red < 0.5;
    Draw(pen, Icon::Record, face.MiddleX(), face.MiddleY() - kIconUp, 14, lit ? Rgb(255, 240, 214) : kDullRed);
    WriteBelow(pen, face, "RECORD", ink);
}

constexpr char kPlayText[] = "PLAY", kEditText[] = "EDIT", kBackText[] = "BACK", kForwardText[] = "FORWARD";
constexpr char kLoopText[] = "LOOP";
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
//   id                   first n right down in  w   h  frames           cap       light        legend
    {image::ButtonSteps,     0, 16, 40, 46, 0, 38, 44, Frames::Lights,  StepCap,  kAmber,      NumberLegend},
    {image::ButtonSteps,    16,  8, 40, 46, 3, 32, 44, Frames::Marks,   Slate,    kBlueLight,  NumberLegend},
    {image::ButtonParts,     0,  8, 42, 49, 0, 38, 49, Frames::Marks,   Charcoal, kAmber,      NumberLegend},
    {image::ButtonParts,     8,  5, 42, 49, 0, 38, 49, Frames::Marks,   Slate,    kAmber,      NumberLegend},
    {image::ButtonPatterns,  0,  8, 42, 49, 0, 38, 49, Frames::Chosen,  Taupe,    kAmber,      NumberLegend},
    {image::ButtonMute,      0,  1, 39, 48, 0, 39, 48, Frames::Hold,    Charcoal, kAmber,      TextLegend<kMuteText>},
    {image::ButtonSolo,      0,  1, 39, 48, 0, 39, 48, Frames::Latch,   Charcoal, kAmberLight, TextLegend<kSoloText>},
    {image::ButtonEdit,      0,  1, 63, 50, 0, 63, 50, Frames::Latch,   Charcoal, kAmberLight, IconLegend<Icon::Pencil, kEditText>},
    {image::ButtonPrev,      0,  1, 63, 50, 0, 63, 50, Frames::Press,   Charcoal, kAmber,      IconLegend<Icon::Back, kBackText>},
    {image::ButtonNext,      0,  1, 63, 50, 0, 63, 50, Frames::Press,   Charcoal, kAmber,      IconLegend<Icon::Forward, kForwardText>},
    {image::ButtonRec,       0,  1, 63, 50, 0, 63, 50, Frames::Latch,   Charcoal, kRedLight,   RecordLegend},
    {image::ButtonPlay,      0,  1, 63, 50, 0, 63, 50, Frames::Latch,   Charcoal, kGreenLight, IconLegend<Icon::Play, kPlayText>},
    {image::LoopBar,         0,  1, 39, 48, 0, 39, 48, Frames::Latch,   Charcoal, kAmberLight, IconLegend<Icon::Loop, kLoopText>},
    {image::ButtonCopy,      0,  1, 47, 29, 0, 47, 29, Frames::Press,   Taupe,    kAmber,      TextLegend<kCopyText>},
    {image::ButtonPaste,     0,  1, 47, 29, 0, 47, 29, Frames::Press,   Taupe,    kAmber,      TextLegend<kPasteText>},
    {image::ButtonClear,     0,  1, 47, 29, 0, 47, 29, Frames::Press,   Taupe,    kAmber,      TextLegend<kClearText>},
    {image::ButtonFX,        0, 10, 30, 31, 0, 30, 29, Frames::Hold,    Taupe,    kAmber,      EffectLegend},
    {image::ButtonGlue,      0,  1, 48, 29, 0, 48, 29, Frames::Latch,   Charcoal, kAmberLight, TextLegend<kGlueText>},
    {image::ButtonLink,      0,  1, 47, 29, 0, 47, 29, Frames::Chosen,  Charcoal, kAmberLight, TextLegend<kLearnText>},
    {image::ButtonStutter,   0,  5, 50, 33, 0, 50, 33, Frames::Hold,    Taupe,    kAmber,      StutterLegend},
    {image::TabEnvelope,     0,  2, 36, 20, 0, 36, 20, Frames::Hold,    Charcoal, kAmber,      NumberedLegend<kEnv>},
    {image::TabLfo,          0,  2, 36, 20, 0, 36, 20, Frames::Hold,    Charcoal, kAmber,      NumberedLegend<kLfo>},
    {image::ButtonSynth,     0,  1, 32, 21, 0, 32, 19, Frames::Press,   Ivory,    kAmber,      NextLegend},
    {image::ButtonSynthLed,  0,  1, 32, 24, 0, 32, 24, Frames::Latch,   Charcoal, kCharcoal,   LampLegend, true},
};
// clang-format on

/// Along the upper edge.
void DrawMark(cairo_t* pen, Box face, Shade light)
{
    const Box mark{face.x + 6, face.y + 4, face.w - 12, 3};
    for (const double out : {3.0, 2.0, 1.0}) {
        Rounded(pen, mark.Inset(-out), 1.5 + out);
        Fill(pen, Fade(light, 0.16));
    }
    Rounded(pen, mark, 1.5);
    Fill(pen, Lighter(light, 0.3));
}

void DrawKey(cairo_t* pen, const KeyImage& key, int column, int row, State state)
{
    const CapLook look{key.cap(column), key.light, key.lamp ? 0.0 : state.lit, state.down};
    const double x = (key.first + column) * key.right + key.in, y = row * key.down;
    const Box face = DrawCap(pen, {x, y, key.w * 1.0, key.h * 1.0}, look);
    if (state.mark) DrawMark(pen, face, key.light);
    key.legend(pen, face, column, key.lamp && state.lit > 0 ? kDarkInk : InkOn(look));
}

} // namespace

bool DrawKeys(Picture& picture, int id)
{
    bool drawn = false;
    for (const KeyImage& key : kKeys) {
        if (key.id != id) continue;
        const States states = StatesOf(key.frames);
        for (int row = 0; row * key.down < picture.height; ++row)
            for (int column = 0; column < key.columns; ++column)
                DrawKey(picture.pen, key, column, row, states[static_cast<std::size_t>(row)]);
        drawn = true;
    }
    return drawn;
}

} // namespace korvane::skin
