// The instrument's program: the value last written to each parameter.
#pragma once

#include "framework/CProgram.h"
#include "framework/ParameterTable.h"
#include "platform/Shared.h"

namespace korvane {

/// Any thread writes and reads values; indices outside 0..195 are ignored and read 0.
class KVProgram : public CProgram {
public:
    void SetParameter(int index, float value) override;
    float GetParameter(int index) const override;
    void GetParameterLabel(int index, char* buffer) const override;
    void GetParameterDisplay(int index, char* buffer) const override;
    void GetParameterName(int index, char* buffer) const override;
    void InitDefaults() override;

private:
    Shared<float> values[param::Count];
};

} // namespace korvane
