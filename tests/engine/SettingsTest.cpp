// Settings are worked out when something changes: then at once, and so that nobody hears that it is not done each run.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <memory>
#include <vector>

#include "engine/RenderLoop.h"
#include "engine/Transport.h"
#include "framework/ParameterTable.h"

namespace korvane {
namespace {

using Sound = std::vector<float>;

/// A synth channel that plays a note of its own and one with a lock, under everything that can move it.
struct Player {
    static constexpr int kChannel = 8, kFrames = 128;

    explicit Player(bool everyRun) : forced(everyRun), tables(kWaveTableFloats), other(kWaveTableFloats)
    {
        for (std::size_t n = 0; n < tables.size(); ++n) tables[n] = std::sin(0.0061f * static_cast<float>(n % 1024));
        for (std::size_t n = 0; n < other.size(); ++n) other[n] = n % 1024 < 300 ? 0.5f : -0.5f;
        engine.ResetGroove();
        engine.ResetEngine(48000.0f);
        Offer(tables);
        const std::pair<int, float> values[] = {{slot::NoteLength, 0.2f},
                                                {slot::FilterCutoff, 0.6f},
                                                {slot::WheelDestination, 1.0f},
                                                {slot::WheelAmount, 1.0f},
                                                {slot::PressureDestination, 4.0f},
                                                {slot::PressureAmount, 1.0f},
                                                {slot::VelocityDestination, 14.0f},
                                                {slot::VelocityAmount, 0.9f},
                                                {slot::LfoSync, 0.5f},
                                                {slot::LfoAmount, 0.6f},
                                                {slot::MixOsc2, 0.5f},
                                                {slot::EqGain, 0.9f},
                                                {slot::FxX + 6, 0.8f},
                                                {slot::FxGlue + 6, 1.0f},
                                                {slot::FxGlue, 1.0f}};
        for (const auto& [index, value] : values) engine.SetChannelParameter(index, value);
        auto& pattern = engine.score.Current();
        for (const int step : {0, 3}) pattern.steps[kChannel][step] = 1u;
        pattern.SetLock(kChannel, 3, slot::Pitch, 0.2f);
    }

    void Offer(const Sound& wave)
    {
        entries.push_back(std::make_unique<PoolEntry>());
        entries.back()->waveTables = {std::shared_ptr<void>(), wave.data()};
        auto* const use = new SoundUse{entries.back().get()};
        engine.Channel(kChannel).sound.sampleSlots[0].offer.Put(use, engine.samplePool->returned);
    }

    /// What the main pair has in the next blocks, the first with an odd length.
    Sound Play(int blocks)
    {
        Sound sound;
        for (int n = 0; n < blocks; ++n) {
            if (forced) ForgetAll();
            std::array<float, 2 * kFrames> block{};
            std::array<float*, 28> outputs{&block[0], &block[kFrames]};
            RenderFrames(engine, outputs.data(), n == 0 ? 37 : kFrames);
            sound.insert(sound.end(), block.begin(), block.end());
        }
        return sound;
    }

    void ForgetAll()
    {
        engine.changes.Add();
        for (auto& channel : engine.channels) {
            channel->sound.params.changes.Add();
            channel->unitsAwake = GrooveChannel::kWholeRack;
            for (auto& voice : channel->voices) voice->tunedAt = voice->setUpAt = 0;
        }
    }

    const bool forced;
    Sound tables, other;
    std::vector<std::unique_ptr<PoolEntry>> entries;
    GrooveEngine engine;
};

TEST(Settings, FollowEveryInputAtOnce)
{
    using Change = std::function<void(Player&, GrooveEngine&)>;
    const auto set = [](int index, float value) {
        return [=](Player&, GrooveEngine& e) { e.SetChannelParameter(index, value); };
    };
    // clang-format off
    const struct { const char* what; Change change; } cases[] = {
        {"cutoff",     set(slot::FilterCutoff, 0.3f)},   {"level",     set(slot::AmpLevel, 0.7f)},
        {"pan",        set(slot::Panning, 0.1f)},        {"semitones", set(slot::Pitch, 0.7f)},
        {"waves",      set(slot::MixOsc2, 0.1f)},        {"glue",      set(slot::FxGlue + 4, 1.0f)},
        {"unglue",     set(slot::FxGlue, 0.0f)},         {"equaliser", set(slot::EqOn, 1.0f)},
        {"envelope",   set(slot::EnvelopeAmount, 1.0f)}, {"LFO",       set(slot::LfoRate, 0.9f)},
        {"wheel",      [](Player&, GrooveEngine& e) { e.liveModWheel = 1.0f; }},
        {"bend",       [](Player&, GrooveEngine& e) { e.livePitchBend = 1.0f; }},
        {"pressure",   [](Player&, GrooveEngine& e) { e.livePressure = 1.0f; }},
        {"tempo",      [](Player&, GrooveEngine& e) { e.clock.tempo = 240.0f; }},
        {"rate",       [](Player&, GrooveEngine& e) { e.ResetEngine(44100.0f); }},
        {"mute",       [](Player&, GrooveEngine& e) { e.mixer.muted[Player::kChannel] = true; }},
        {"solo",       [](Player&, GrooveEngine& e) { e.selection.selectedChannel = 3, e.mixer.soloSelected = true; }},
        {"pad",        [](Player&, GrooveEngine& e) { e.buttons.fxOn[5] = true, e.RefreshFxActive(); }},
        {"live notes", [](Player&, GrooveEngine& e) { e.NoteOn(8, 55, 0.9f), e.NoteOn(8, 60, 0.2f); }},
        {"program",    [](Player&, GrooveEngine& e) { e.InitSettings(Player::kChannel); }},
        {"waveform",   [](Player& p, GrooveEngine&) { p.Offer(p.other); }},
    };
    // clang-format on
    for (const bool idle : {false, true})
        for (const auto& c : cases) {
            SCOPED_TRACE(c.what);
            Player changed(false), forced(true), unchanged(false);
            Sound after[3];
            for (Player* player : {&changed, &forced, &unchanged}) {
                if (!idle) SetPlay(player->engine, true);
                player->Play(20);
                if (player != &unchanged) c.change(*player, player->engine);
                if (idle) player->Play(1), SetPlay(player->engine, true);
                after[player == &changed ? 0 : player == &forced ? 1 : 2] = player->Play(1);
            }
            EXPECT_NE(after[0], after[2]) << "not heard at once";
            EXPECT_EQ(after[0], after[1]);
            EXPECT_EQ(changed.Play(250), forced.Play(250)); // with the lock, and the notes' ends
        }
}

} // namespace
} // namespace korvane
