#pragma once
#include "gui/controls/CControl.h"
namespace korvane { struct KVMeter : CControl { KVMeter(Rect r, CBitmap*) : CControl(r,-1) {} float level=0; void OnTick() override{} void OnHoverChanged() override{} }; }
