// A sound that is replaced under a voice.
#include <gtest/gtest.h>

#include "engine/voice/VoiceRig.h"

namespace korvane {
namespace {

struct PlayedRig : VoiceRig {
    static constexpr int kLong = 4000, kNothing = 0;

    /// Has played a note for a while.
    PlayedRig(bool isSampler, float height, int frames) : VoiceRig(isSampler)
    {
        Give(isSampler ? kFirstLayerSlot : 0, height, frames);
        Start({}, 60, 500);
        before = Play(100).left.back();
    }

    /// A cosine of some 260 hertz.
    void Give(int at, float height, int frames)
    {
        const auto wave = [height](float cycles) { return height * std::cos(6.2831853f * cycles); };
        if (at >= kFirstLayerSlot)
            GiveSample(at - kFirstLayerSlot, frames, 1,
                       [&](int, int n) { return wave(static_cast<float>(n) / 170.0f); });
        else
            GiveWave(at, [&](int, int i) { return wave(static_cast<float>(i) / 1024.0f); });
    }

    void Replace(int at, float height, int frames)
    {
        SampleSlot& target = channel.sound.sampleSlots[static_cast<std::size_t>(at)];
        PoolEntry* const playing = target.Playing();
        if (frames != kNothing) Give(at, height, frames);
        target.offer.Put(new SoundUse{frames == kNothing ? nullptr : target.Playing()}, pool->returned);
        target.entry = playing;
    }

    float before = 0.0f; // frame that came last
};

// The voice goes on with the new sound, without a jump; where there is none, it ends as softly.
TEST(Seam, JoinsWhatIsReplacedWithoutAJump)
{
    constexpr int kFrames = 3000, kJoined = 2900; // the low cut takes its time
    constexpr float kHeight = 0.5f;
    for (const bool isSampler : {true, false}) {
        const int played = isSampler ? kFirstLayerSlot : 0, other = isSampler ? 0 : kFirstLayerSlot;
        // clang-format off
        const struct { const char* what; int slot; float height; int frames; float heard; bool sounds; } cases[] = {
            {"another",          played, -kHeight, PlayedRig::kLong,    -kHeight, true},
            {"none",             played, 0.0f,     PlayedRig::kNothing, 0.0f,     !isSampler},
            {"a short one",      played, -kHeight, 50, isSampler ? 0.0f : -kHeight, !isSampler},
            {"of another kind",  other,  -kHeight, PlayedRig::kLong,    kHeight,  true},
        };
        // clang-format on
        for (const auto& c : cases) {
            SCOPED_TRACE(std::string(isSampler ? "sample: " : "waveform: ") + c.what);
            PlayedRig rig(isSampler, kHeight, PlayedRig::kLong), always(isSampler, c.heard, PlayedRig::kLong);
            rig.Replace(c.slot, c.height, c.frames);
            const Sound sound = rig.Play(kFrames), expected = always.Play(kFrames);
            const std::vector<float> whole = PlayedRig(isSampler, kHeight, PlayedRig::kLong).Play(kFrames).left;
            const float loud = *std::max_element(whole.begin(), whole.end());
            float last = rig.before;
            for (const float x : sound.left) ASSERT_LE(std::fabs(std::exchange(last, x) - x), 0.1f * loud);
            for (int n = kJoined; n < kFrames; ++n) ASSERT_NEAR(sound.left[n], expected.left[n], 0.02f * loud) << n;
            EXPECT_EQ(rig.Last().active, c.sounds);
        }
    }
}

} // namespace
} // namespace korvane
