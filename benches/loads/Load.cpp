// What the instrument may have to play at once, as states for hosts.
#include "loads/Load.h"

#include <algorithm>
#include <fstream>
#include <numeric>
#include <random>
#include <stdexcept>

#include "content/state/StateImage.h"
#include "engine/RenderLoop.h"
#include "engine/Transport.h"
#include "framework/ChannelSlots.h"
#include "platform/Files.h"
#include "support/Riff.h"

namespace korvane::loads {
namespace {

struct Setting {
    int first, count;
    float value;
};

// clang-format off
constexpr Setting kAlways[] = {
    {slot::NoteLength, 1, 1.0f}, {slot::FilterCutoff, 1, 0.6f}, {slot::LayerPitch, kLayers, 0.52f},
    {slot::UnisonStereo, 1, 0.7f},
};
constexpr Setting kRich[] = {
    {slot::FilterResonance, 1, 0.4f}, {slot::FilterTracking, 1, 0.5f}, {slot::FilterType, 1, 0.0f},
    {slot::NoiseMix, 1, 0.3f}, {slot::MixOsc2, 2, 0.5f}, {slot::Modulation, 1, 0.5f}, {slot::ModKind, 1, 1.0f},
    {slot::EnvelopeAmount, 2, 0.4f}, {slot::EnvelopeAttack, 2, 0.6f}, {slot::LfoAmount, 2, 0.4f},
    {slot::LfoRate, 2, 0.5f}, {slot::EnvelopeDestination, 1, 1.0f}, {slot::LfoDestination, 1, 0.34f},
    {slot::LayerLoCut, kLayers, 0.3f}, {slot::LayerHiCut, kLayers, 0.7f}, {slot::LayerHold, kLayers, 0.5f},
};
constexpr Setting kEffectsOn[] = {
    {slot::FxGlue, kEffects, 1.0f}, {slot::FxX, kEffects, 0.6f}, {slot::FxY, kEffects, 0.4f},
    {slot::FxLfoAmount, kEffects, 0.7f}, {slot::EqOn, 1, 1.0f}, {slot::EqGain, kEqBands, 0.6f},
};
// clang-format on

template <class Rows>
void Put(Shared<float>* params, const Rows& rows)
{
    for (const Setting& row : rows)
        for (int n = 0; n < row.count; ++n) params[row.first + n] = row.value;
}

void Fill(GrooveEngine& engine, const Load& load, const std::filesystem::path& noise)
{
    const std::string file = EnginePath(noise.c_str());
    for (int c = 0; c < kChannels; ++c) {
        auto* const params = engine.storedParams[c];
        Put(params, kAlways);
        if (load.rich) Put(params, kRich);
        if (load.HasEffects(c)) Put(params, kEffectsOn);
        params[slot::UnisonVoices] = (static_cast<float>(load.unison) - 0.5f) / 15.0f;
        for (int n = 0; n < kSampleSlots; ++n) {
            const bool layer = n >= kFirstLayerSlot, plays = !layer || n < kFirstLayerSlot + load.layers;
            if (layer) params[slot::LayerBypass + n - kFirstLayerSlot] = plays ? 0.0f : 1.0f;
            engine.Channel(c).sound.sampleSlots[static_cast<std::size_t>(n)].path.Set(plays ? file.c_str() : "");
        }
        engine.score.patterns[0]->steps[c][0] = (1u << load.notes[static_cast<std::size_t>(c)]) - 1u;
    }
    engine.score.patterns[0]->UpdateLength();
}

/// How many voices sound a quarter second after its start.
int SoundingVoices(const std::vector<std::uint8_t>& state)
{
    const auto engine = Playing(state);
    std::array<float*, 2 + 2 * kChannels> nowhere{};
    for (int n = 0; n < 94; ++n) RenderFrames(*engine, nowhere.data(), 128);
    int sounding = 0;
    for (const auto& channel : engine->channels)
        for (const auto& voice : channel->voices) sounding += voice->active && voice->gain > 0.0f;
    return sounding;
}

} // namespace

int Load::Voices() const { return std::accumulate(notes.begin(), notes.end(), 0); }

Notes Spread(int voices, int channels)
{
    Notes notes{};
    for (int v = 0; v < voices; ++v) ++notes[static_cast<std::size_t>(v % channels)];
    return notes;
}

const std::vector<Load>& WholeLoads()
{
    static const std::vector<Load> loads{
        {.name = "silence", .plays = false},
        {.name = "default"},
        {.name = "typical", .notes = {1, 1, 1, 1, 1, 1, 1, 1, 3, 3, 2, 2, 2}, .unison = 4},
        {.name = "dry", .notes = Spread(78), .layers = kLayers, .unison = kUnison, .rich = true},
        {.name = "heaviest", .notes = Spread(78), .layers = kLayers, .unison = kUnison, .rich = true, .effects = true},
    };
    return loads;
}

std::vector<std::uint8_t> StateOf(const Load& load, const std::filesystem::path& noise)
{
    if (load.Voices() == 0) return {};
    GrooveEngine engine;
    engine.ResetGroove();
    Fill(engine, load, noise);
    std::vector<std::uint8_t> state(static_cast<std::size_t>(SaveState(engine, nullptr)));
    SaveState(engine, state.data());
    if (const int sounding = SoundingVoices(state); sounding != load.Voices())
        throw std::runtime_error(load.name + ": " + std::to_string(sounding) + " voices sound");
    return state;
}

std::unique_ptr<GrooveEngine> Playing(const std::vector<std::uint8_t>& state, const std::filesystem::path& bundle)
{
    auto engine = std::make_unique<GrooveEngine>();
    EnginePath((bundle / "Drum Samples").c_str()).copy(engine->samplePool->sampleFolder, 1023);
    EnginePath((bundle / "Synth Waves").c_str()).copy(engine->samplePool->waveFolder, 1023);
    engine->ResetGroove();
    engine->ResetEngine(48000.0f);
    if (!LoadState(*engine, state.data(), static_cast<std::int32_t>(state.size())))
        throw std::runtime_error("a state is no groove");
    engine->ServeRequests();
    SetPlay(*engine, true);
    return engine;
}

void WriteNoise(const std::filesystem::path& file)
{
    std::minstd_rand noise(1);
    riff::Bytes sound(20 * 48000 * 4, '\0');
    for (char& byte : sound) byte = static_cast<char>(noise() >> 8);
    std::ofstream(file, std::ios::binary) << riff::Wav(riff::Format(riff::kIntegers, 2, 16, 48000) + riff::Data(sound));
}

} // namespace korvane::loads
