#pragma once
#include "gui/window/CPluginUI.h"
namespace korvane { struct CAboutPage : CControlGroup { explicit CAboutPage(CPluginUI* w) : CControlGroup(w) {} }; }
