// Settings that installers and users leave for the instrument.
#pragma once

#include <cstddef>

namespace korvane {

/// Reads one text value of a key such as "SOFTWARE\Maker\Product". The user's settings are asked first, then the
/// machine's: the text file Maker/Product.conf in $XDG_CONFIG_HOME (unset: ~/.config), then in each folder of
/// $XDG_CONFIG_DIRS (unset: /etc/xdg). Each of its lines is NAME=VALUE; blanks around both are dropped, of lines with
/// the same name the first counts.
/// value  receives the text, cut at size - 1 bytes; untouched when no file has the name
bool ReadRegistryText(const char* key, const char* name, char* value, std::size_t size);

} // namespace korvane
