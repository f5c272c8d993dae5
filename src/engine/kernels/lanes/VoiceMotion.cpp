// Modulation of all voices, side by side.
#include "engine/kernels/VoiceMotion.h"

#include "engine/kernels/lanes/Transpose.h"

namespace korvane::KORVANE_ISA_SPACE {

ModulateVoicesKernel ModulateVoices;

namespace {

// A lane holds a voice and a copy of what moves in its channel.
constexpr int kTile = 32;                 // frames between packing
constexpr int kWorthPacking = 2 * kLanes; // frames of all voices of a group; fewer are faster one by one
constexpr int kMaxJobs = kChannels * kVoices;
constexpr int kRows = 4; // cutoff, gain, amp, modulation amount

constexpr VoiceMotion<float> kNoVoice = {};
constexpr ChannelMotion<float> kNoChannel = {};

/// The rows of one field after the other.
template <class Each, class Lanes>
void Pack(const Each* const (&from)[kLanes], Lanes& to)
{
    static_assert(sizeof(Lanes) == kLanes * sizeof(Each));
    constexpr int kFields = sizeof(Each) / sizeof(float);
    for (int field = 0; field < kFields; field += kLanes) {
        Floats rows[kLanes];
        for (int lane = 0; lane < kLanes; ++lane)
            rows[lane] = Load<Floats>(reinterpret_cast<const char*>(from[lane]) + field * sizeof(float));
        Transpose(rows);
        std::memcpy(reinterpret_cast<char*>(&to) + field * sizeof(Floats), rows, sizeof rows);
    }
}

template <int kFields, class Each, class Lanes>
void Unpack(const Lanes& from, Each* const (&to)[kLanes], int count)
{
    for (int field = 0; field < kFields; field += kLanes) {
        Floats rows[kLanes];
        std::memcpy(rows, reinterpret_cast<const char*>(&from) + field * sizeof(Floats), sizeof rows);
        Transpose(rows);
        for (int lane = 0; lane < count; ++lane)
            Store(rows[lane], reinterpret_cast<char*>(to[lane]) + field * sizeof(float));
    }
}

/// Voices that share a vector.
struct Group {
    union { // filled as a whole
        VoiceMotion<Floats> voice;
    };
    union {
        ChannelMotion<Floats> channel;
    };
    const MotionJob* const* jobs;
    int count;
    bool lfosAct = false, modAmount = false, sines = false; // in one lane at least
    std::int32_t nextRelease;
    alignas(64) Floats sine[kTile][kLfos];
    alignas(64) Floats frames[kRows][kTile];
    float* rows[kRows][kLanes]; // of the jobs, or `unread`
    alignas(64) float unread[kMaxRun];

    Group(const MotionJob* const* group, int size);
    void Finish();
    void FindRelease(std::int32_t after);
    void Release();
};

Group::Group(const MotionJob* const* group, int size) : jobs(group), count(size)
{
    const VoiceMotion<float>* voices[kLanes];
    const ChannelMotion<float>* channels[kLanes];
    for (int lane = 0; lane < kLanes; ++lane) {
        const MotionJob* const job = lane < count ? jobs[lane] : nullptr;
        voices[lane] = job ? job->voice : &kNoVoice;
        channels[lane] = job ? job->channel : &kNoChannel;
        rows[0][lane] = job ? job->cutoff : unread;
        rows[1][lane] = job ? job->gain : unread;
        rows[2][lane] = job ? job->amp : unread;
        rows[3][lane] = job && job->modAmount ? job->modAmount : unread;
        if (!job) continue;
        lfosAct |= job->lfosAct;
        modAmount |= job->modAmount != nullptr;
    }
    Pack(voices, voice);
    Pack(channels, channel);
    for (const Floats& shape : channel.shape) sines |= Any(shape == static_cast<float>(LfoShape::Sine));
    FindRelease(-1);
}

void Group::Finish()
{
    VoiceMotion<float>* voices[kLanes];
    ChannelMotion<float>* channels[kLanes];
    for (int lane = 0; lane < count; ++lane) {
        voices[lane] = jobs[lane]->voice;
        channels[lane] = jobs[lane]->moved;
    }
    Unpack<sizeof(VoiceMotion<float>) / sizeof(float)>(voice, voices, count);
    Unpack<2 + kLfos>(channel, channels, count);
}

void Group::FindRelease(std::int32_t after)
{
    nextRelease = kNeverReleased;
    for (int lane = 0; lane < count; ++lane)
        if (const std::int32_t at = jobs[lane]->release; at > after && at < nextRelease) nextRelease = at;
}

void Group::Release()
{
    for (int lane = 0; lane < count; ++lane) {
        if (jobs[lane]->release != nextRelease) continue;
        voice.amp.rate[lane] = voice.ampReleaseRate[lane];
        voice.amp.target[lane] = 0.0f;
    }
    FindRelease(nextRelease);
}

/// Where no LFO acts the frames before the last one need none.
void LoadSines(Group& group, int from)
{
    for (int l = 0; l < kLfos; ++l)
        for (int n = 0; n < kTile; n += kLanes) {
            Floats lanes[kLanes];
            for (int lane = 0; lane < kLanes; ++lane) {
                const float* const row = lane < group.count ? group.jobs[lane]->sines[l] : nullptr;
                lanes[lane] = Load<Floats>((row ? row : kNoRow) + from + n);
            }
            Transpose(lanes);
            for (int frame = 0; frame < kLanes; ++frame) group.sine[n + frame][l] = lanes[frame];
        }
}

/// Of one frame, those that have no row.
void FindSines(Group& group, int n)
{
    for (int l = 0; l < kLfos; ++l)
        for (int lane = 0; lane < group.count; ++lane)
            if (group.channel.shape[l][lane] == static_cast<float>(LfoShape::Sine) && !group.jobs[lane]->sines[l])
                group.sine[n][l][lane] = LfoSine(group.channel.phase[l][lane]);
}

void StoreFrames(Group& group, int from, int frames)
{
    for (int row = 0; row < (group.modAmount ? kRows : kRows - 1); ++row) {
        for (int n = frames; n % kLanes != 0; ++n) group.frames[row][n] = Floats{};
        for (int n = 0; n < frames; n += kLanes) {
            Floats lanes[kLanes];
            for (int frame = 0; frame < kLanes; ++frame) lanes[frame] = group.frames[row][n + frame];
            Transpose(lanes);
            for (int lane = 0; lane < kLanes; ++lane) Store(lanes[lane], group.rows[row][lane] + from + n);
        }
    }
}

/// Lanes whose level cannot reach 1 within a run, or that no step moves. Levels and targets of a magnitude below
/// kBelowFull and rates of 0..1 keep it there: rounding lifts a level by less than 2^-22 per frame.
Ints Settled(const Envelope<Floats>& envelope)
{
    constexpr float kBelowFull = 0.999f;
    const auto same = [](Floats a, Floats b) { return reinterpret_cast<Ints>(a) == reinterpret_cast<Ints>(b); };
    const Ints below = (Magnitude(envelope.level) < kBelowFull) & (Magnitude(envelope.target) < kBelowFull) &
                       (envelope.rate >= 0.0f) & (envelope.rate <= 1.0f);
    Envelope<Floats> next = envelope, plain = envelope;
    next.Step();
    plain.Step<false>();
    return below | (same(plain.level, envelope.level) & same(next.level, envelope.level) &
                    same(next.target, envelope.target) & same(next.rate, envelope.rate));
}

bool AllSettled(const VoiceMotion<Floats>& voice)
{
    return !Any(~(Settled(voice.amp) & Settled(voice.env1) & Settled(voice.env2)));
}

/// Frames of the tile.
template <bool kArrives, bool kLfosAct, bool kModAmount>
void RunFrames(Group& group, int from, int to)
{
    VoiceMotion<Floats> voice = group.voice;
    ChannelMotion<Floats> channel = group.channel;
    for (int n = from; n < to; ++n) {
        const MotionFrame<Floats> frame = StepMotion<kArrives, kLfosAct, kModAmount>(voice, channel, group.sine[n]);
        group.frames[0][n] = frame.cutoff;
        group.frames[1][n] = frame.gain;
        group.frames[2][n] = frame.amp;
        if constexpr (kModAmount) group.frames[3][n] = frame.modAmount;
    }
    // Field by field: what stands still is not worth a copy.
    group.voice.amp = voice.amp;
    group.voice.env1 = voice.env1;
    group.voice.env2 = voice.env2;
    group.voice.gain = voice.gain;
    group.voice.lfo1Out = voice.lfo1Out;
    group.voice.lfo2Out = voice.lfo2Out;
    group.voice.glidePitch = voice.glidePitch;
    group.channel.phase[0] = channel.phase[0];
    group.channel.phase[1] = channel.phase[1];
    group.channel.cutoff = channel.cutoff;
    group.channel.modAmount = channel.modAmount;
}

void Run(Group& group, int from, int to)
{
    if (from == to) return;
    static constexpr decltype(&RunFrames<false, false, false>) kFunctions[] = {
        RunFrames<false, false, false>, RunFrames<false, false, true>, RunFrames<false, true, false>,
        RunFrames<false, true, true>,   RunFrames<true, false, false>, RunFrames<true, false, true>,
        RunFrames<true, true, false>,   RunFrames<true, true, true>,
    };
    kFunctions[4 * !AllSettled(group.voice) + 2 * group.lfosAct + group.modAmount](group, from, to);
}

void RunGroup(const MotionJob* const* jobs, int count, int frames)
{
    if (count * frames < kWorthPacking) {
        for (int v = 0; v < count; ++v) ModulateVoicesPlainly(jobs[v], 1, frames);
        return;
    }
    Group group(jobs, count);
    for (int from = 0; from < frames; from += kTile) {
        const int size = frames - from < kTile ? frames - from : kTile;
        if (group.lfosAct && group.sines) LoadSines(group, from);
        for (int n = 0; n < size;) {
            const int to = group.nextRelease - from < size ? group.nextRelease - from : size;
            const bool last = from + to == frames; // where lfo1Out and lfo2Out are read
            Run(group, n, last ? to - 1 : to);
            if (last) {
                FindSines(group, to - 1);
                RunFrames<true, true, true>(group, to - 1, to);
            }
            if (from + to == group.nextRelease) group.Release();
            n = to;
        }
        StoreFrames(group, from, size);
    }
    group.Finish();
}

} // namespace

void ModulateVoices(const MotionJob* jobs, int count, int frames)
{
    const MotionJob* ordered[kMaxJobs]; // those with LFOs apart
    int placed = 0;
    for (const bool act : {true, false})
        for (int v = 0; v < count; ++v)
            if (jobs[v].lfosAct == act) ordered[placed++] = &jobs[v];
    for (int v = 0; v < count; v += kLanes) RunGroup(ordered + v, count - v < kLanes ? count - v : kLanes, frames);
}

} // namespace korvane::KORVANE_ISA_SPACE
