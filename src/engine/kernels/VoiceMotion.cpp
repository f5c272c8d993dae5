// Modulation, voice by voice.
#include "engine/kernels/VoiceMotion.h"

namespace korvane {

namespace {

float SineOf(const MotionJob& job, const ChannelMotion<float>& channel, int l, int n)
{
    if (channel.shape[l] != static_cast<float>(LfoShape::Sine)) return 0.0f;
    return job.sines[l] ? job.sines[l][n] : LfoSine(channel.phase[l]);
}

void Modulate(const MotionJob& job, int frames)
{
    VoiceMotion<float>& voice = *job.voice;
    ChannelMotion<float> channel = *job.channel;
    for (int n = 0; n <= frames; ++n) {
        if (n == job.release) {
            voice.amp.rate = voice.ampReleaseRate;
            voice.amp.target = 0.0f;
        }
        if (n == frames) break;
        const float sines[] = {SineOf(job, channel, 0, n), SineOf(job, channel, 1, n)};
        const MotionFrame<float> frame = StepMotion<true, true, true>(voice, channel, sines);
        job.cutoff[n] = frame.cutoff;
        job.gain[n] = frame.gain;
        job.amp[n] = frame.amp;
        if (job.modAmount) job.modAmount[n] = frame.modAmount;
    }
    for (int l = 0; l < kLfos; ++l) job.moved->phase[l] = channel.phase[l];
    job.moved->cutoff = channel.cutoff;
    job.moved->modAmount = channel.modAmount;
}

} // namespace

void ModulateVoicesPlainly(const MotionJob* jobs, int count, int frames)
{
    for (int v = 0; v < count; ++v) Modulate(jobs[v], frames);
}

} // namespace korvane
