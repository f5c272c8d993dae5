// Events of any kind in blocks of any size.
#include "content/ByteReader.h"
#include "fuzz/Instrument.h"

using namespace korvane::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Instrument& instrument = Instrument::Get();
    const Limits limits(size);
    korvane::ByteReader in(data, static_cast<std::int32_t>(size));
    int frames = 20000; // no more: a byte can ask for much
    while (in.Ok() && in.Left() > 0) {
        const auto status = in.Read<std::uint8_t>(), first = in.Read<std::uint8_t>(), second = in.Read<std::uint8_t>();
        if (status < 0x40) {
            const int block = std::min(status * first, frames);
            frames -= block;
            instrument.Play(block);
        } else {
            instrument.synth.QueueEvent(status, first, second, 0, in.Read<std::int16_t>());
        }
    }
    instrument.Play(500);
    instrument.Forget();
    return 0;
}
