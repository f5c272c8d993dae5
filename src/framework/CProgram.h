// A named set of parameter values.
#pragma once

#include <cstdio>
#include <memory>

#include "platform/SharedText.h"

namespace korvane {

/// Base of programs; holds the name and the link of the engine's list.
class CProgram {
public:
    CProgram() = default;
    CProgram(const CProgram&) = delete;
    virtual ~CProgram() = default;
    virtual void SetParameter(int, float) {}
    virtual float GetParameter(int) const { return 0.0f; }
    virtual float GetParameterDefault(int) const { return 0.0f; }
    virtual void GetParameterLabel(int, char* buffer) const { std::snprintf(buffer, 32, "---"); }
    virtual void GetParameterDisplay(int index, char* buffer) const
    {
        std::snprintf(buffer, 32, "%.0f", static_cast<double>(GetParameter(index) * 100.0f));
    }
    virtual void GetParameterName(int, char* buffer) const { std::snprintf(buffer, 32, "<unknown>"); }
    virtual void InitDefaults() {}

    static constexpr int kNameBytes = 256;
    SharedText<kNameBytes> name{"noname"}; // any thread writes and reads
    std::unique_ptr<CProgram> next;
};

} // namespace korvane
