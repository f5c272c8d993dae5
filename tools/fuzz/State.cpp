// A host's chunk: loaded, saved, loaded and saved again, played.
#include "fuzz/Instrument.h"

using namespace korvane::fuzz;

static bool Load(const Bytes& image)
{
    return Instrument::Get().synth.SetProgramChunk(image.data(), static_cast<std::int32_t>(image.size())) > 0;
}

static Bytes Saved()
{
    Bytes image(static_cast<std::size_t>(Instrument::Get().synth.GetProgramChunk(nullptr)));
    Instrument::Get().synth.GetProgramChunk(image.data());
    return image;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Instrument& instrument = Instrument::Get();
    const Bytes image = Altered(instrument.state, data, size);
    const Limits limits(image.size());
    Load(image);
    const Bytes saved = Saved();
    Require(Load(saved), "what was saved is refused");
    Require(Saved() == saved, "what was saved loads as something else");
    instrument.synth.SetPlaying(true);
    for (const int frames : {64, 500}) instrument.Play(frames);
    instrument.Forget();
    return 0;
}
