// The way back from engine and editor to the host.
#pragma once

namespace korvane {

class CPluginEditor;

/// Implemented by each bridge; the engine keeps it for its whole life. Any thread calls, the audio thread RealTime
/// only.
class CPluginWrapper {
public:
    /// The plug-in itself changed a parameter. Any stored index; hosts hear of those below numHostParams.
    virtual void ParameterAutomated(int index, float value) = 0;
    /// The editor, or null.
    virtual CPluginEditor* GetEditor() = 0;
    /// The user starts and ends a gesture on a host parameter.
    virtual void BeginEdit(int index) = 0;
    virtual void EndEdit(int index) = 0;
    /// Whether the calling thread must not wait, as far as the host tells.
    virtual bool RealTime() = 0;

protected:
    ~CPluginWrapper() = default;
};

} // namespace korvane
