// Where the code of this library lies on disk.
#pragma once

#include <string>

namespace korvane {

/// Absolute path, with backslashes, of the loaded file that this code is part of: the plug-in, or the program that it
/// is linked into. Links are followed, so a plug-in that is linked into a host's folder still finds its own. Empty when
/// the system does not know. The first call decides, so it comes while the module is being loaded: the system may know
/// the path only relative to the folder that the process was in then.
const std::string& ModulePath();

/// The folder of ModulePath, without a backslash at its end.
std::string ModuleFolder();

} // namespace korvane
