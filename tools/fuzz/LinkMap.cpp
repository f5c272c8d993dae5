// The file of MIDI links: read, written again, and every source moved.
#include "fuzz/Instrument.h"

using namespace korvane::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Instrument& instrument = Instrument::Get();
    const Limits limits(size);
    korvane::MidiLinks& links = instrument.synth.links;
    korvane::Fill(links.links, std::int16_t{-1});
    korvane::Fill(links.ignoreValue, std::uint8_t{0});
    instrument.content.File("linkmap", {data, data + size});
    const char* root = instrument.synth.folders.root;
    links.Read(root);
    Require(links.Write(root), "links that cannot be written");
    const Bytes written = korvane::ReadBytes(instrument.content.path / "linkmap");
    const std::size_t whole = size < 2 * korvane::source::Count ? size / 2 * 2 : std::min(size, written.size());
    Require(std::equal(data, data + whole, written.begin()), "links that changed");
    for (int n = 0; n < 128; ++n) {
        for (const int status : {0xB0, 0xE0, 0x90, 0x80})
            instrument.synth.QueueEvent(static_cast<std::uint8_t>(status), static_cast<std::uint8_t>(n), 100, 0,
                                        n % 16);
        if (n % 16 == 15) instrument.Play(32);
    }
    instrument.Forget();
    return 0;
}
