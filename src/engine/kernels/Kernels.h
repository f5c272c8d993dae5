// The inner loops of the engine, as each instruction set has them.
#pragma once

#include "engine/kernels/AllSound.h"
#include "engine/kernels/Amplitude.h"
#include "engine/kernels/Decimator.h"
#include "engine/kernels/Distortion.h"
#include "engine/kernels/Equaliser.h"
#include "engine/kernels/HeardFrames.h"
#include "engine/kernels/Isa.h"
#include "engine/kernels/Layers.h"
#include "engine/kernels/Phaser.h"
#include "engine/kernels/Pump.h"
#include "engine/kernels/ResonantFilter.h"
#include "engine/kernels/Reverb.h"
#include "engine/kernels/Sines.h"
#include "engine/kernels/StripMix.h"
#include "engine/kernels/Tape.h"
#include "engine/kernels/Unison.h"
#include "engine/kernels/VoiceFilter.h"
#include "engine/kernels/VoiceMotion.h"

namespace korvane {

/// Every kernel's header begins with its plain form, which is its definition: the compiled forms give the same bits.
struct Kernels {
    int lanes; // floats side by side
    FilterVoicesKernel* filterVoices;
    SidesKernel<DistortionSide>* distort;
    SidesKernel<DecimatorSide>* decimate;
    SidesKernel<PhaserSide>* phase;
    SidesKernel<ResonantSide>* filterSides;
    SidesKernel<EqualiserSide>* equalise;
    ModulateVoicesKernel* modulateVoices;
    ShapeVoicesKernel* shapeVoices;
    RenderUnisonKernel* renderUnison;
    AllSoundKernel* allSound;
    SinesKernel* sines;
    MixStripsKernel* mixStrips;
    HeardFramesKernel* heardFrames;
    RunReverbsKernel* runReverbs;
    PlayLayersKernel* playLayers;
    PumpKernel* pump;
    TapeSpeedsKernel* tapeSpeeds;
    ChainTapesKernel* chainTapes;
};

/// Of an instruction set that runs here (Isa.h). Any thread.
const Kernels& KernelsOf(Isa isa);

/// Those that the engine uses, chosen when the library is loaded.
extern const Kernels& kernels;

} // namespace korvane
