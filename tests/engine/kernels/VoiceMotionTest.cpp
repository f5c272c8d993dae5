// Modulation of each instruction set against its plain form.
#include "engine/kernels/OnEachIsa.h"

#include <cstring>

#include "engine/voice/Lfo.h"

namespace korvane {
namespace {

struct Rows {
    alignas(64) float cutoff[kMaxRun], gain[kMaxRun], amp[kMaxRun], modAmount[kMaxRun];
};

struct Rig {
    Edges edges;
    std::vector<ChannelMotion<float>> channels = std::vector<ChannelMotion<float>>(kChannels), moved = channels;
    std::vector<VoiceMotion<float>> voices;
    std::vector<Rows> rows;
    std::vector<MotionJob> jobs;
    float sines[kChannels][kLfos][kMaxRun];

    float Part() { return static_cast<float>(edges.Below(1 << 10)) * 0x1p-10f; }
    float OneOf(std::initializer_list<float> values)
    {
        return values.begin()[edges.Below(static_cast<int>(values.size()))];
    }

    Rig(int count, int frames, int acting)
        : voices(static_cast<std::size_t>(count)), rows(voices.size(), Rows{}), jobs(voices.size())
    {
        bool acts[kChannels] = {};
        for (int c = 0; c < kChannels; ++c) FillChannel(c, acts[c] = edges.Below(4) < acting);
        for (std::size_t v = 0; v < voices.size(); ++v) {
            const std::size_t c = v * kChannels / voices.size();
            VoiceMotion<float>& voice = voices[v];
            for (Envelope<float>* envelope : {&voice.amp, &voice.env1, &voice.env2})
                *envelope = {OneOf({0.0f, 0.999f, 1.0f, Part()}), OneOf({0.0f, 0.5f, 1.0f, 1.5f, 5.0f}),
                             OneOf({0.0f, 1.0f, 0.01f * Part()}), 0.01f * Part(), OneOf({0.0f, 0.5f, 1.0f, 1.5f})};
            for (float* value : {&voice.gain, &voice.gainTarget, &voice.glidePitch, &voice.glideTarget})
                *value = edges();
            voice.cutoffOffset = Part(), voice.ampReleaseRate = OneOf({1e-5f, 0.01f, 1.0f});
            MotionJob& job = jobs[v] = {&voice,         &channels[c],   &moved[c],    {},          acts[c],
                                        kNeverReleased, rows[v].cutoff, rows[v].gain, rows[v].amp, rows[v].modAmount};
            if (c % 3 == 0) job.modAmount = nullptr;
            if (edges.Below(3) == 0) job.release = 1 + edges.Below(frames);
            for (int l = 0; l < kLfos; ++l)
                if (acts[c] && channels[c].shape[l] == 0.0f) job.sines[l] = sines[c][l];
        }
    }

    void FillChannel(int c, bool acts)
    {
        ChannelMotion<float>& channel = channels[static_cast<std::size_t>(c)];
        for (int l = 0; l < kLfos; ++l) {
            channel.phase[l] = Part(), channel.amount[l] = Part() - 0.5f;
            channel.increment[l] = OneOf({0.0f, 0.0005f, 0.7f, 3.3f, 0x1p24f, Part()});
            channel.shape[l] = OneOf({-1.0f, 0.0f, 1.0f, 2.0f, 3.0f});
            channel.scaled[l] = channel.toAmp[l] = 0.0f;
            if (acts) channel.scaled[l] = OneOf({0.0f, 1.0f}), channel.toAmp[l] = OneOf({0.0f, 1.0f});
            Lfo{channel.phase[l], channel.increment[l]}.FillSines(sines[c][l], kMaxRun);
        }
        channel.cutoff = Part(), channel.modAmount = Part();
        channel.cutoffBase = OneOf({channel.cutoff, 0.0f, 1.0f}), channel.modTarget = Part();
        channel.glideRate = OneOf({0.001f, 1.0f, 0.02f});
        const float heard = acts ? 1.0f : 0.0f;
        channel.toCutoff = {edges(), 0.0f, heard, 0.0f};
        channel.toModAmount = {0.0f, edges(), 0.0f, heard};
    }
};

TEST(VoiceMotionKernel, GivesTheBitsOfThePlainForm)
{
    for (const int count : {0, 1, 3, 5, 16, 17, 78})
        for (const int acting : {0, 1, 4})
            for (const int frames : {1, 2, 15, 16, 33, 128, 511, 512}) {
                SCOPED_TRACE(count * 10000 + frames * 10 + acting);
                const auto plain = std::make_unique<Rig>(count, frames, acting);
                ModulateVoicesPlainly(plain->jobs.data(), count, frames);
                OnEachIsa([&](const Kernels& isa) {
                    const auto rig = std::make_unique<Rig>(count, frames, acting);
                    isa.modulateVoices(rig->jobs.data(), count, frames);
                    const auto differ = [frames](const float* a, const float* b) {
                        return std::memcmp(a, b, sizeof(float) * static_cast<std::size_t>(frames));
                    };
                    for (std::size_t v = 0; v < rig->rows.size(); ++v) {
                        const Rows &a = rig->rows[v], &b = plain->rows[v];
                        EXPECT_FALSE(differ(a.cutoff, b.cutoff) || differ(a.gain, b.gain) || differ(a.amp, b.amp) ||
                                     differ(a.modAmount, b.modAmount));
                        EXPECT_EQ(std::memcmp(&rig->voices[v], &plain->voices[v], sizeof(VoiceMotion<float>)), 0) << v;
                    }
                    for (std::size_t c = 0; c < kChannels; ++c)
                        EXPECT_EQ(std::memcmp(&rig->moved[c], &plain->moved[c], 4 * sizeof(float)), 0) << c;
                });
            }
}

} // namespace
} // namespace korvane
