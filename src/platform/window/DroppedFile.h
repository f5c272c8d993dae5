// A file in what another program drops: a list of URIs.
#pragma once

#include <string>
#include <string_view>

namespace korvane {

/// The system path of the first file of this machine in a text/uri-list; empty when there is none.
/// host  this machine's name
std::string FirstFileOf(std::string_view uriList, std::string_view host);

} // namespace korvane
