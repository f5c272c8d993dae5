// The instrument's program: the value last written to each parameter.
#include "framework/KVProgram.h"

#include <cstdio>

namespace korvane {

namespace {
bool Stored(int index) { return index >= 0 && index < param::Count; }
} // namespace

void KVProgram::SetParameter(int index, float value)
{
    if (Stored(index)) values[index] = value;
}

float KVProgram::GetParameter(int index) const { return Stored(index) ? static_cast<float>(values[index]) : 0.0f; }

void KVProgram::GetParameterLabel(int, char* buffer) const { std::snprintf(buffer, 32, "%%"); }

void KVProgram::GetParameterDisplay(int index, char* buffer) const
{
    std::snprintf(buffer, 32, "%.1f", static_cast<double>(GetParameter(index) * 100.0f));
}

void KVProgram::GetParameterName(int index, char* buffer) const
{
    std::snprintf(buffer, 64, "%s", Stored(index) ? kParameters[static_cast<std::size_t>(index)].name : "unknown");
}

void KVProgram::InitDefaults()
{
    for (int n = 0; n < param::Count; ++n) values[n] = GetParameterDefault(n);
    name.Set("<noname>");
}

} // namespace korvane
