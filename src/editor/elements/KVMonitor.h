#pragma once
#include "engine/GrooveEngine.h"
#include "gui/controls/CControl.h"
namespace korvane { struct KVMonitor : CControl { KVMonitor(Rect r, GrooveEngine&) : CControl(r,-1) {} }; }
