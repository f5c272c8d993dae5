#pragma once
#include "engine/KVSynth.h"
#include "gui/controls/CControl.h"
namespace korvane { struct FXControl : CControl { FXControl(Rect r, int i, KVSynth&) : CControl(r,i) {} }; }
