// Controls from the rows of the layout.
#include "editor/layout/ControlFactory.h"

#include "editor/elements/FXControl.h"
#include "editor/elements/KVMeter.h"
#include "editor/elements/KVMonitor.h"
#include "editor/score/ScoreEditControl.h"
#include "gui/controls/CControlDropDownList.h"

namespace korvane {

namespace {

constexpr Color kAmber = Rgb(240, 136, 63), kInk = Rgb(87, 70, 46), kSilk = Rgb(210, 192, 164);

// What opens over the panel, as the lit display
constexpr Color kPaperTop = Rgb(236, 222, 192), kPaperBottom = Rgb(220, 203, 168), kPaperFrame = Rgb(58, 44, 28);
constexpr Color kPaperInk = Rgb(52, 38, 22);

void SetTextColor(CControlTextDisplay& control, Color color) { control.textColor = control.hoverTextColor = color; }

void SetPopup(CControlKnob& control)
{
    control.popupTopColor = kPaperTop;
    control.popupBottomColor = kPaperBottom;
    control.popupFrameColor = kPaperFrame;
    control.popupTextColor = kPaperInk;
}

/// The current item is written in rust, on a band.
void SetList(DropDownLook& list)
{
    list.topColor = kPaperTop;
    list.bottomColor = kPaperBottom;
    list.frameColor = kPaperFrame;
    list.itemColor = kPaperInk;
    list.selectedItemColor = Rgb(138, 50, 6);
    list.selectedBandColor = Rgb(224, 118, 42, 70);
    list.headingColor = Rgb(96, 74, 42);
}

void SetTabs(CControlTab& tab, const ControlRow& row, Size image)
{
    tab.tabCount = row.parts;
    tab.vertical = row.widget == Widget::TabColumn;
    tab.tabWidth = image.width / row.parts;
    tab.tabHeight = image.height / 2;
    tab.normalized = row.look & look::Normalized;
    tab.reversed = row.look & look::Reversed;
}

} // namespace

ControlFactory::Adder ControlFactory::AdderOf(Widget widget)
{
    using F = ControlFactory;
    switch (widget) {
    case Widget::Toggle: return &F::AddButton0;
    case Widget::Latch: return &F::AddButton1;
    case Widget::Momentary: return &F::AddButton3;
    case Widget::Led: return &F::AddLed;
    case Widget::Knob: return &F::AddKnob;
    case Widget::SmallKnob: return &F::AddSmallKnob;
    case Widget::Steps: return &F::AddSteps;
    case Widget::LedTab: return &F::AddLedTab;
    case Widget::Tab:
    case Widget::TabColumn: return &F::AddTab;
    case Widget::Fader:
    case Widget::LevelFader: return &F::AddFader;
    case Widget::LengthFader: return &F::AddLengthFader;
    case Widget::ModulationFader: return &F::AddModulationFader;
    case Widget::DarkNumber:
    case Widget::LightNumber: return &F::AddNumberBox;
    case Widget::List: return &F::AddDropDown;
    case Widget::Text:
    case Widget::GlowingText: return &F::AddLabel;
    case Widget::Meter: return &F::AddMeter;
    case Widget::Pad: return &F::AddPad;
    case Widget::Monitor: return &F::AddMonitor;
    case Widget::Score: break;
    }
    return &F::AddScore;
}

CControl* ControlFactory::Add(const ControlRow& row, int n)
{
    CBitmap* const image = window.FindBitmap(row.image);
    const int id = row.id == kNoId ? kNoId : row.id + n;
    return (this->*AdderOf(row.widget))({row, n, id, image, PlaceOf(row, n, image ? image->GetSize() : Size{})});
}

CControl* ControlFactory::Added(std::unique_ptr<CControl> made)
{
    CControl* const control = made.release();
    window.AddControl(control);
    return control;
}

// Buttons

std::unique_ptr<CControlButton> ControlFactory::Button(const Order& order, int mode)
{
    auto made = std::make_unique<CControlButton>(order.place, order.id);
    made->bitmap = order.image;
    made->imageOffset.x = order.row.column + order.n * order.row.columnStep;
    made->mode = mode;
    return made;
}

CControl* ControlFactory::AddButton0(const Order& order) { return Added(Button(order, button::Toggle)); }
CControl* ControlFactory::AddButton1(const Order& order) { return Added(Button(order, button::ToggleOnPress)); }
CControl* ControlFactory::AddButton3(const Order& order) { return Added(Button(order, button::Momentary)); }

CControl* ControlFactory::AddLed(const Order& order)
{
    auto made = Button(order, button::Toggle);
    made->disabled = true;
    return Added(std::move(made));
}

// Knobs

/// With its value in a pop-up, as fast with Ctrl as without.
std::unique_ptr<CControlKnob> ControlFactory::Strip(const Order& order, int frames)
{
    auto made = std::make_unique<CControlKnob>(order.place, order.id);
    made->bitmap = order.image;
    made->frameCount = frames;
    made->crossfade = made->showValuePopup = true;
    made->fineFactor = 1.0f;
    SetPopup(*made);
    return made;
}

CControl* ControlFactory::AddKnob(const Order& order)
{
    auto made = Strip(order, kKnobFrames);
    made->smoothing = 0.8f;
    return Added(std::move(made));
}

CControl* ControlFactory::AddSmallKnob(const Order& order)
{
    auto made = Strip(order, kSmallKnobFrames);
    if (order.row.look & look::Detent) made->centreDetent = 0.1f;
    return Added(std::move(made));
}

CControl* ControlFactory::AddSteps(const Order& order)
{
    auto made = Strip(order, order.row.parts);
    made->crossfade = order.row.look & look::Crossfade;
    if (order.row.look & look::TwoSpeeds) made->fineFactor = 0.2f;
    return Added(std::move(made));
}

// Tabs

CControl* ControlFactory::AddLedTab(const Order& order)
{
    auto made = std::make_unique<CControlTab>(order.place, order.id);
    made->bitmap = order.image;
    made->tabCount = order.row.parts;
    made->tabWidth = order.place.w;
    made->tabHeight = order.place.h / order.row.parts;
    made->vertical = made->normalized = made->sharedImage = true;
    made->reversed = order.row.look & look::Reversed;
    return Added(std::move(made));
}

CControl* ControlFactory::AddTab(const Order& order)
{
    auto made = std::make_unique<CControlTab>(order.place, order.id);
    made->bitmap = order.image;
    if (order.image) SetTabs(*made, order.row, order.image->GetSize());
    return Added(std::move(made));
}

// Over the page

template <class Control>
std::unique_ptr<Control> ControlFactory::OverPage(const Order& order)
{
    auto made = std::make_unique<Control>(order.place, order.id);
    made->bitmap = window.GetBackgroundBitmap();
    made->imageOffset = {order.place.x, order.place.y};
    return made;
}

std::unique_ptr<CControlSlider> ControlFactory::Slider(const Order& order)
{
    auto made = OverPage<CControlSlider>(order);
    made->handle = order.image;
    SetPopup(*made);
    made->sensitivity = 0.005f;
    made->fineFactor = 1.0f;
    made->showValuePopup = !(order.row.look & look::NoPopup);
    return made;
}

CControl* ControlFactory::AddFader(const Order& order)
{
    constexpr int kAboveTrack = 8;
    auto made = Slider(order);
    made->track.y += kAboveTrack;
    made->handleOffset = {0, -kAboveTrack};
    made->horizontalTrack = made->crossfade = true;
    made->smoothing = 0.8f;
    return Added(std::move(made));
}

CControl* ControlFactory::AddLengthFader(const Order& order)
{
    auto made = Slider(order);
    made->horizontal = true;
    return Added(std::move(made));
}

CControl* ControlFactory::AddModulationFader(const Order& order)
{
    auto made = OverPage<CControlSlider>(order);
    made->handle = order.image;
    made->horizontal = true;
    return Added(std::move(made));
}

CControl* ControlFactory::AddNumberBox(const Order& order)
{
    auto made = OverPage<CControlNumber>(order);
    SetTextColor(*made, order.row.widget == Widget::DarkNumber ? kInk : kSilk);
    return Added(std::move(made));
}

CControl* ControlFactory::AddDropDown(const Order& order)
{
    auto made = OverPage<CControlDropDownList>(order);
    SetTextColor(*made, order.row.look & look::Amber ? kAmber : kBlack);
    made->beginsInside = true;
    SetList(made->look);
    return Added(std::move(made));
}

CControl* ControlFactory::AddLabel(const Order& order)
{
    const bool glows = order.row.widget == Widget::GlowingText;
    auto made = OverPage<CControlTextDisplay>(order);
    SetTextColor(*made, glows ? kAmber : kSilk);
    if (glows) made->glow = 0.2f;
    made->beginsInside = true;
    return Added(std::move(made));
}

// The instrument's own

CControl* ControlFactory::AddMeter(const Order& order)
{
    return Added(std::make_unique<KVMeter>(order.place, order.image));
}

CControl* ControlFactory::AddPad(const Order& order)
{
    return Added(std::make_unique<FXControl>(order.place, order.id, instrument));
}

CControl* ControlFactory::AddMonitor(const Order& order)
{
    return Added(std::make_unique<KVMonitor>(order.place, *instrument.engine));
}

CControl* ControlFactory::AddScore(const Order& order)
{
    return Added(std::make_unique<ScoreEditControl>(order.place, instrument));
}

} // namespace korvane
