// A host of one plug-in, whatever interface they share.
#include "render/Host.h"

#include "render/Names.h"

namespace korvane::render {

int Host::FindParameter(const std::string& name) const
{
    std::vector<std::string> names;
    for (int n = 0; n < Parameters(); ++n) names.push_back(ParameterName(n));
    return static_cast<int>(FindName(names, name, "parameter"));
}

std::string Host::ParameterText(int index) const { return ParameterName(index) + " = " + ParameterDisplay(index); }

} // namespace korvane::render
