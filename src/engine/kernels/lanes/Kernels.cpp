// The kernels of one instruction set.
#include "engine/kernels/Kernels.h"

#include "engine/kernels/lanes/Lanes.h"

namespace korvane::KORVANE_ISA_SPACE {

FilterVoicesKernel FilterVoices;
SidesKernel<DistortionSide> Distort;
SidesKernel<DecimatorSide> Decimate;
SidesKernel<PhaserSide> Phase;
SidesKernel<ResonantSide> FilterSides;
SidesKernel<EqualiserSide> Equalise;
ModulateVoicesKernel ModulateVoices;
ShapeVoicesKernel ShapeVoices;
RenderUnisonKernel RenderUnison;
AllSoundKernel AllSound;
SinesKernel Sines;
MixStripsKernel MixStrips;
HeardFramesKernel HeardFrames;
RunReverbsKernel RunReverbs;
PlayLayersKernel PlayLayers;
PumpKernel PumpAll;
TapeSpeedsKernel SpeedsOfTapes;
ChainTapesKernel ChainAll;

extern const Kernels kKernels;
constinit const Kernels kKernels = {
    .lanes = kLanes,
    .filterVoices = FilterVoices,
    .distort = Distort,
    .decimate = Decimate,
    .phase = Phase,
    .filterSides = FilterSides,
    .equalise = Equalise,
    .modulateVoices = ModulateVoices,
    .shapeVoices = ShapeVoices,
    .renderUnison = RenderUnison,
    .allSound = AllSound,
    .sines = Sines,
    .mixStrips = MixStrips,
    .heardFrames = HeardFrames,
    .runReverbs = RunReverbs,
    .playLayers = PlayLayers,
    .pump = PumpAll,
    .tapeSpeeds = SpeedsOfTapes,
    .chainTapes = ChainAll,
};

} // namespace korvane::KORVANE_ISA_SPACE
