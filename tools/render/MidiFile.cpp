// A standard MIDI file as a list of timed messages.
#include "render/MidiFile.h"

#include <algorithm>
#include <cstring>

#include "render/Failure.h"
#include "render/ReadFile.h"

namespace korvane::render {

namespace {

/// The only thing that touches the file's bytes; knows where they end.
class Reader {
public:
    Reader(const std::uint8_t* first, std::size_t size, const std::string& fileName)
        : next(first), end(first + size), name(fileName)
    {
    }

    [[noreturn]] void Fail(const char* what) const
    {
        throw Failure("'" + name + "' is no MIDI file that can be read: " + what);
    }
    bool AtEnd() const { return next == end; }
    std::uint8_t Byte()
    {
        if (AtEnd()) Fail("it ends too early");
        return *next++;
    }
    std::uint8_t Data()
    {
        const std::uint8_t byte = Byte();
        if (byte > 127) Fail("a data byte is out of range");
        return byte;
    }
    std::uint32_t Big(int bytes)
    {
        std::uint32_t value = 0;
        while (bytes-- > 0) value = value << 8 | Byte();
        return value;
    }
    std::uint32_t Variable()
    {
        std::uint32_t value = 0;
        for (int n = 0; n < 4; ++n) {
            const std::uint8_t byte = Byte();
            value = value << 7 | (byte & 0x7Fu);
            if (byte < 0x80) return value;
        }
        Fail("a number is too long");
    }
    Reader Part(std::uint32_t size)
    {
        if (size > static_cast<std::size_t>(end - next)) Fail("it ends too early");
        const Reader part(next, size, name);
        next += size;
        return part;
    }
    bool Tag(const char* tag)
    {
        bool same = true;
        for (int n = 0; n < 4; ++n) same = (Byte() == static_cast<std::uint8_t>(tag[n])) && same;
        return same;
    }

private:
    const std::uint8_t* next;
    const std::uint8_t* end;
    const std::string& name;
};

struct TickMessage {
    std::uint64_t tick;
    std::uint8_t status, data1, data2;
};

struct TickTempo {
    std::uint64_t tick;
    double microseconds; // per quarter note
};

struct Ticks {
    std::vector<TickMessage> messages;
    std::vector<TickTempo> tempi;
    std::uint64_t last = 0;
};

void ReadMeta(Reader& track, std::uint64_t tick, Ticks& ticks)
{
    constexpr std::uint8_t kTempo = 0x51;
    const std::uint8_t type = track.Byte();
    const std::uint32_t size = track.Variable();
    Reader content = track.Part(size);
    if (type != kTempo) return;
    if (size != 3) track.Fail("a tempo has no three bytes");
    const std::uint32_t microseconds = content.Big(3);
    if (microseconds == 0) track.Fail("a tempo is zero");
    ticks.tempi.push_back({tick, static_cast<double>(microseconds)});
}

void ReadTrack(Reader track, Ticks& ticks)
{
    std::uint64_t tick = 0;
    std::uint8_t running = 0;
    while (!track.AtEnd()) {
        tick += track.Variable();
        ticks.last = std::max(ticks.last, tick);
        std::uint8_t first = track.Byte();
        if (first == 0xFF) {
            ReadMeta(track, tick, ticks);
            running = 0;
        } else if (first == 0xF0 || first == 0xF7) {
            track.Part(track.Variable());
            running = 0;
        } else if (first >= 0xF0) {
            track.Fail("a system message stands in a track");
        } else {
            if (first < 0x80 && running == 0) track.Fail("running status has nothing to run on");
            std::uint8_t data1 = first;
            if (first >= 0x80) {
                running = first;
                data1 = track.Data();
            }
            const bool two = (running & 0xE0) != 0xC0; // program change and channel pressure have one byte
            const std::uint8_t data2 = two ? track.Data() : std::uint8_t{0};
            ticks.messages.push_back({tick, running, data1, data2});
        }
    }
}

} // namespace

MidiFile::MidiFile(const std::string& path)
{
    const std::vector<std::uint8_t> bytes = ReadFile(path);
    Reader file(bytes.data(), bytes.size(), path);
    if (!file.Tag("MThd")) file.Fail("it has no header");
    Reader header = file.Part(file.Big(4));
    const std::uint32_t type = header.Big(2), tracks = header.Big(2), division = header.Big(2);
    if (type > 1) file.Fail("only types 0 and 1 are played");
    if (division == 0 || division >= 0x8000) file.Fail("its time is not counted in quarter notes");
    Ticks ticks;
    for (std::uint32_t found = 0; found < tracks;) {
        const bool track = file.Tag("MTrk");
        Reader content = file.Part(file.Big(4));
        if (!track) continue;
        ReadTrack(content, ticks);
        ++found;
    }
    const auto earlier = [](const auto& a, const auto& b) { return a.tick < b.tick; };
    std::stable_sort(ticks.messages.begin(), ticks.messages.end(), earlier);
    std::stable_sort(ticks.tempi.begin(), ticks.tempi.end(), earlier);

    tempi.push_back({0.0, 0.0, 120.0});
    const auto seconds = [this, division](std::uint64_t tick) {
        const double quarters = static_cast<double>(tick) / division;
        return tempi.back().seconds + (quarters - tempi.back().quarters) * 60.0 / tempi.back().bpm;
    };
    std::size_t tempo = 0;
    const auto advance = [&](std::uint64_t tick) {
        for (; tempo < ticks.tempi.size() && ticks.tempi[tempo].tick <= tick; ++tempo) {
            const TickTempo& change = ticks.tempi[tempo];
            tempi.push_back(
                {seconds(change.tick), static_cast<double>(change.tick) / division, 60.0e6 / change.microseconds});
        }
    };
    for (const TickMessage& message : ticks.messages) {
        advance(message.tick);
        messages.push_back({seconds(message.tick), message.status, message.data1, message.data2});
    }
    advance(ticks.last);
    lengthSeconds = seconds(ticks.last);
}

const TempoChange& MidiFile::At(double seconds) const
{
    const auto later = std::upper_bound(tempi.begin() + 1, tempi.end(), seconds,
                                        [](double time, const TempoChange& change) { return time < change.seconds; });
    return *(later - 1);
}

double MidiFile::QuartersAt(double seconds) const
{
    const TempoChange& last = At(seconds);
    return last.quarters + (seconds - last.seconds) * last.bpm / 60.0;
}

} // namespace korvane::render
