// A part file.
#include "fuzz/Instrument.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    auto& instrument = korvane::fuzz::Instrument::Get();
    instrument.Try(&korvane::KVInstrument::LoadPartFile, korvane::fuzz::Altered(instrument.part, data, size));
    return 0;
}
