// The sampler channel's source: up to four sample layers per note.
#pragma once

#include "engine/voice/SoundingVoice.h"

namespace korvane {

struct ChannelSound;

/// Sets up the four layers for the note that starts: gain, pitch, delay, envelope, filters, start point.
void StartLayers(ChannelSound& channel, ChannelVoice& voice);

/// Whether a layer still has sample to play, after a delay perhaps.
bool LayersCanPlay(const ChannelSound& channel, const ChannelVoice& voice);

/// Tunes the layers for the coming run. The note number plays no part: pitch is the layer's own plus the channel's
/// plus modulation, and at 0 semitones one sample frame goes into each output frame, whatever the sample's rate.
void TuneLayers(ChannelSound& channel, ChannelVoice& voice);

/// Renders the layers of the sampler voices among them into their buffers. Linear interpolation, a low-cut and a
/// high-cut section per side, squared attack-hold-decay envelope.
void RenderSamplers(SoundingVoices sounding, int frames);

} // namespace korvane
