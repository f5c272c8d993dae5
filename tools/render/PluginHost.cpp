// One plug-in as a VST 2.4 host drives it.
#include "render/PluginHost.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstring>

#include "render/Failure.h"

namespace korvane::render {

std::intptr_t PluginHost::Callback(AEffect* effect, std::int32_t opcode, std::int32_t, std::intptr_t, void* pointer,
                                   float)
{
    const auto* host = effect ? static_cast<const PluginHost*>(effect->user) : nullptr; // null while it is made
    switch (opcode) {
    case host_request::Version: return 2400;
    case host_request::GetTime: return host ? reinterpret_cast<std::intptr_t>(&host->time) : 0;
    case host_request::ProcessLevel: return host && host->realTime ? kRealTimeLevel : 0;
    case host_request::VendorString:
    case host_request::ProductString: std::strcpy(static_cast<char*>(pointer), "korvane-render"); return 1;
    default: return 0;
    }
}

PluginHost::PluginHost(const std::string& path, double rate, int blockFrames)
{
    time.tempo = 120.0;
    time.timeSignatureNumerator = time.timeSignatureDenominator = 4;
    time.flags = time_flag::TempoValid | time_flag::PpqPositionValid;
    library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) throw Failure("cannot load the plug-in '" + path + "': " + dlerror());
    using Entry = AEffect* (*)(AudioMasterCallback);
    const auto entry = reinterpret_cast<Entry>(dlsym(library, "VSTPluginMain"));
    effect = entry ? entry(Callback) : nullptr;
    if (!effect || effect->magic != FourBytes("PtsV")) {
        dlclose(library);
        throw Failure("'" + path + "' is no VST 2 plug-in that plays here");
    }
    effect->user = this;
    Ask(request::Open);
    Start(rate, blockFrames);
}

void PluginHost::SetFormat(double rate, int blockFrames)
{
    Ask(request::MainsChanged, 0, 0);
    Start(rate, blockFrames);
}

void PluginHost::Start(double rate, int blockFrames)
{
    time.sampleRate = rate;
    const auto make = [blockFrames](int count, auto& buffers, auto& begins) {
        buffers.assign(static_cast<std::size_t>(count), std::vector<float>(static_cast<std::size_t>(blockFrames)));
        begins.clear();
        for (auto& buffer : buffers) begins.push_back(buffer.data());
    };
    make(effect->numInputs, inputs, in);
    make(effect->numOutputs, outputs, out);
    SetRate(rate);
    Ask(request::SetBlockSize, 0, blockFrames);
    Ask(request::MainsChanged, 0, 1);
}

PluginHost::~PluginHost()
{
    Ask(request::MainsChanged, 0, 0);
    Ask(request::Close);
    dlclose(library);
}

std::string PluginHost::Text(std::int32_t opcode, int index) const
{
    char text[256] = "";
    Ask(opcode, index, 0, text);
    return text;
}

std::vector<std::uint8_t> PluginHost::GetState()
{
    void* data = nullptr;
    const std::intptr_t size = Ask(request::GetChunk, 0, 0, &data);
    const auto* bytes = static_cast<const std::uint8_t*>(data);
    return size > 0 && bytes ? std::vector<std::uint8_t>(bytes, bytes + size) : std::vector<std::uint8_t>();
}

void PluginHost::SetState(const std::vector<std::uint8_t>& bytes, const std::string& name)
{
    auto copy = bytes;
    if (Ask(request::SetChunk, 0, static_cast<std::intptr_t>(copy.size()), copy.data()) == 0)
        throw Failure("the plug-in refuses '" + name + "'");
}

std::pair<int, int> PluginHost::EditorSize() const
{
    ERect* place = nullptr;
    Ask(request::EditorRectangle, 0, 0, &place);
    return place ? std::pair(place->bottom - place->top, place->right - place->left) : std::pair(0, 0);
}

void PluginHost::QueueMidi(int frame, std::uint8_t status, std::uint8_t data1, std::uint8_t data2)
{
    VstMidiEvent event{};
    event.type = VstMidiEvent::kType;
    event.byteSize = sizeof event;
    event.deltaFrames = frame;
    event.midiData[0] = status;
    event.midiData[1] = data1;
    event.midiData[2] = data2;
    events.push_back(event);
}

void PluginHost::SetPlaying(bool running)
{
    time.flags |= time_flag::TransportChanged;
    time.flags = running ? time.flags | time_flag::TransportPlaying : time.flags & ~time_flag::TransportPlaying;
}

void PluginHost::Render(int frames)
{
    if (!events.empty()) {
        list.resize(sizeof(VstEvents) + events.size() * sizeof(VstEvent*));
        auto* all = reinterpret_cast<VstEvents*>(list.data());
        all->numEvents = static_cast<std::int32_t>(events.size());
        for (std::size_t n = 0; n < events.size(); ++n) (&all->events[0])[n] = reinterpret_cast<VstEvent*>(&events[n]);
        Ask(request::ProcessEvents, 0, 0, all);
    }
    effect->processReplacing(effect, in.data(), out.data(), frames);
    events.clear();
    time.flags &= ~time_flag::TransportChanged;
    time.samplePosition += frames;
}

std::string PluginHost::PairName(int pair) const
{
    VstPinProperties properties{};
    if (Ask(request::OutputProperties, 2 * pair, 0, &properties) == 0) return "Output " + std::to_string(pair + 1);
    return std::string(properties.label, strnlen(properties.label, sizeof properties.label));
}

} // namespace korvane::render
